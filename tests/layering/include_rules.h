#pragma once
// Reads the table of allowed folder-to-folder includes and checks every
// `#include "..."` of a source tree against it.
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace layering {

// Folder (relative to the tree, "/"-separated) -> folders it may include.
struct IncludeRules
{
    std::map<std::string, std::vector<std::string>> allowed;
};

// Parses the table; a malformed line throws std::runtime_error naming the
// file and the line.
IncludeRules ReadIncludeRules(const std::filesystem::path& table);

struct Violation
{
    std::string file; // relative to the tree
    int line = 0;
    std::string included;
    std::string why;
};

// Every quoted include of every .h and .cpp below `root` that goes against
// the rules. An include is resolved beside the including file first, then
// from the root; one that resolves to neither is not checked.
std::vector<Violation> FindViolations(const std::filesystem::path& root, const IncludeRules& rules);

std::string Describe(const Violation& violation);

} // namespace layering
