#include "key_scan.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>

namespace texts {

namespace {

bool IsIdentifierChar(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

std::string ReadFile(const std::filesystem::path& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

bool HasListedExtension(const std::filesystem::path& path, const std::vector<std::string>& extensions)
{
    const std::string extension = path.extension().string();
    return std::find(extensions.begin(), extensions.end(), extension) != extensions.end();
}

} // namespace

std::set<std::string> TextKeysIn(const std::string& content)
{
    static const std::string kPrefix = "IDS_";
    std::set<std::string> keys;
    for (auto at = content.find(kPrefix); at != std::string::npos; at = content.find(kPrefix, at + 1)) {
        if (at > 0 && IsIdentifierChar(content[at - 1]))
            continue;
        std::size_t end = at + kPrefix.size();
        while (end < content.size() && IsIdentifierChar(content[end]))
            ++end;
        const std::string token = content.substr(at, end - at);
        if (token.back() != '_')
            keys.insert(token);
    }
    return keys;
}

std::set<std::string> ScanTextKeys(const std::vector<ScanFolder>& folders)
{
    std::set<std::string> keys;
    for (const auto& scan : folders) {
        std::error_code error;
        if (!std::filesystem::is_directory(scan.folder, error))
            continue;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(scan.folder)) {
            if (!entry.is_regular_file() || !HasListedExtension(entry.path(), scan.extensions))
                continue;
            const auto found = TextKeysIn(ReadFile(entry.path()));
            keys.insert(found.begin(), found.end());
        }
    }
    return keys;
}

std::vector<ScanFolder> WindowSources(const std::filesystem::path& sourceRoot)
{
    return {
        {sourceRoot / "window", {".cpp", ".h"}},
        {sourceRoot / "Res/skin/SpaceMgm", {".xml"}},
        {sourceRoot / "Res/skin/Gallery/Error", {".xml"}},
    };
}

} // namespace texts
