#pragma once
// Checks, before the window shows anything, that every file it will need
// can be used: the language files, the skins of the rows and of the error
// toast, and every image the skins and the rows name. A problem is one line
// that names the file (and the line, for XML and JSON).
#include <optional>
#include <string>
#include <vector>

#include "toolkit/duilib.h"

// A language file must exist and be one JSON object of texts.
std::optional<std::string> CheckLanguageFile(const std::string& path);

// The language files the window reads: the current language and en-US,
// which fills in missing keys.
std::optional<std::string> CheckLanguages(const std::wstring& language);

// Builds a skin file once, with `callback` for the window's own elements
// and a paint manager of its own, to see that it can be built, and checks
// the images of what it built.
std::optional<std::string> CheckSkinFile(const wchar_t* file, DuiLib::IDialogBuilderCallback* callback);

// Every background image in the tree below `root` must load.
std::optional<std::string> CheckTreeImages(DuiLib::CControlUI* root, DuiLib::CPaintManagerUI& pm,
                                           const std::wstring& skinFile);

// Each image (relative to the skin folder) must load.
std::optional<std::string> CheckImages(const std::vector<std::wstring>& images, DuiLib::CPaintManagerUI& pm,
                                       const std::string& usedBy);
