#include "include_rules.h"

#include <algorithm>
#include <fstream>
#include <regex>
#include <sstream>
#include <stdexcept>

namespace fs = std::filesystem;

namespace layering {

namespace {

bool Covers(const std::string& folder, const std::string& inner)
{
    return inner == folder || inner.rfind(folder + "/", 0) == 0;
}

// The most specific folder of the table that covers `folder`, or "" when
// none does.
std::string RuleFolderOf(const IncludeRules& rules, const std::string& folder)
{
    std::string best;
    for (const auto& [ruleFolder, unused] : rules.allowed) {
        (void)unused;
        if (Covers(ruleFolder, folder) && ruleFolder.size() > best.size())
            best = ruleFolder;
    }
    return best;
}

bool IsAllowed(const IncludeRules& rules, const std::string& from, const std::string& to)
{
    if (from == to)
        return true;
    for (const std::string& entry : rules.allowed.at(from)) {
        if (entry == "*" || Covers(entry, to))
            return true;
    }
    return false;
}

std::string FolderOf(const fs::path& relativeFile)
{
    return relativeFile.parent_path().generic_string();
}

bool IsSource(const fs::path& path)
{
    const std::string extension = path.extension().string();
    return extension == ".h" || extension == ".cpp";
}

bool IsBuildOutput(const fs::path& relative)
{
    const std::string first = relative.begin()->string();
    return first.rfind("build", 0) == 0 || first.front() == '.';
}

void CheckFile(const fs::path& root, const fs::path& relative, const IncludeRules& rules,
               std::vector<Violation>& found)
{
    static const std::regex includeLine(R"re(^\s*#\s*include\s*"([^"]+)")re");
    const std::string folder = FolderOf(relative);
    const std::string from = RuleFolderOf(rules, folder);
    std::ifstream in(root / relative);
    std::string text;
    int lineNumber = 0;
    while (std::getline(in, text)) {
        ++lineNumber;
        std::smatch match;
        if (!std::regex_search(text, match, includeLine))
            continue;
        const std::string included = match[1];
        fs::path target;
        if (fs::exists(root / relative.parent_path() / included))
            target = (relative.parent_path() / included).lexically_normal();
        else if (fs::exists(root / included))
            target = fs::path(included).lexically_normal();
        else
            continue;
        if (from.empty()) {
            found.push_back({relative.generic_string(), lineNumber, included,
                             "the folder \"" + folder + "\" has no line in the table"});
            return;
        }
        const std::string to = RuleFolderOf(rules, FolderOf(target));
        if (!IsAllowed(rules, from, to)) {
            found.push_back(
                {relative.generic_string(), lineNumber, included,
                 "\"" + from + "\" may not include from \"" + (to.empty() ? FolderOf(target) : to) + "\""});
        }
    }
}

} // namespace

IncludeRules ReadIncludeRules(const fs::path& table)
{
    std::ifstream in(table);
    if (!in)
        throw std::runtime_error(table.string() + ": cannot be read");
    IncludeRules rules;
    std::string text;
    int lineNumber = 0;
    while (std::getline(in, text)) {
        ++lineNumber;
        const auto hash = text.find('#');
        if (hash != std::string::npos)
            text.erase(hash);
        std::istringstream words(text);
        std::string folder;
        if (!(words >> folder))
            continue;
        if (rules.allowed.count(folder) != 0) {
            throw std::runtime_error(table.string() + ":" + std::to_string(lineNumber) + ": \"" + folder +
                                     "\" has a line already");
        }
        std::vector<std::string>& targets = rules.allowed[folder];
        for (std::string target; words >> target;)
            targets.push_back(target);
    }
    return rules;
}

std::vector<Violation> FindViolations(const fs::path& root, const IncludeRules& rules)
{
    std::vector<fs::path> files;
    for (auto it = fs::recursive_directory_iterator(root); it != fs::recursive_directory_iterator(); ++it) {
        const fs::path relative = fs::relative(it->path(), root);
        if (it->is_directory() && IsBuildOutput(relative)) {
            it.disable_recursion_pending();
            continue;
        }
        if (it->is_regular_file() && IsSource(it->path()))
            files.push_back(relative);
    }
    std::sort(files.begin(), files.end());
    std::vector<Violation> found;
    for (const fs::path& file : files)
        CheckFile(root, file, rules, found);
    return found;
}

std::string Describe(const Violation& violation)
{
    return violation.file + ":" + std::to_string(violation.line) + ": #include \"" + violation.included +
           "\": " + violation.why;
}

} // namespace layering
