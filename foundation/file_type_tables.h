// Constant tables that sort file names into kinds: extensions (lower case,
// with their dot), category keys, icon paths and MIME types.
#pragma once

#include <map>
#include <string>
#include <vector>

extern const std::vector<std::wstring> VideoExtensions;    // 28 entries
extern const std::vector<std::wstring> PictureExtensions;  // 21 entries
extern const std::vector<std::wstring> DocumentExtensions; // 69 entries
extern const std::vector<std::wstring> ArchiveExtensions;  // 13 entries
extern const std::vector<std::wstring> AudioExtensions;    // 38 entries

// "folder", "document", "table", "power", "pic", "pdf", "audio", "video", "other".
extern const std::vector<std::wstring> FileCategoryKeys;

// The 30 icons under the skin folder, names spelt as the files are.
extern const std::vector<std::wstring> FileIconPaths;

// Extension (narrow, with its dot) to MIME type; every extension of the five
// lists above has an entry.
extern const std::map<std::string, std::string> MimeTypes;
