#pragma once
// Finds the text keys that the window's code and skins name, so that a key
// the window starts to read is checked in every language file without
// anyone adding it to a list.
#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace texts {

struct ScanFolder
{
    std::filesystem::path folder;
    std::vector<std::string> extensions; // ".cpp", ".xml", ...
};

// Every "IDS_..." token of `content`: "IDS_" not preceded by a letter, digit
// or underscore, with the letters, digits and underscores that follow. A
// token ending in "_" is a prefix that the code completes, and no key.
std::set<std::string> TextKeysIn(const std::string& content);

// The tokens of every file with a listed extension below each folder. A
// folder that does not exist gives nothing.
std::set<std::string> ScanTextKeys(const std::vector<ScanFolder>& folders);

// The window's code and skins below `sourceRoot`.
std::vector<ScanFolder> WindowSources(const std::filesystem::path& sourceRoot);

} // namespace texts
