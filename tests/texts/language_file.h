#pragma once
// Reads one language file of Res/lang/ strictly: the toolkit's own reader
// passes over what it cannot use, so a broken file would only show up as
// missing texts in the window.
#include <filesystem>
#include <map>
#include <string>

namespace texts {

// Key -> text, both UTF-8.
using TextTable = std::map<std::string, std::string>;

// The file must be valid UTF-8 holding one JSON object whose values are all
// strings, with no key written twice. Anything else throws
// std::runtime_error naming the file and the problem.
TextTable ReadLanguageFile(const std::filesystem::path& path);

} // namespace texts
