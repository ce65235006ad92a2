#pragma once
// The window's texts from the toolkit's resources, in the current language.
#include <string>

#include "window/window_texts.h"

WindowTexts ToolkitTexts();
// GetText of `key` as a wide string.
std::wstring ToolkitText(const wchar_t* key);
std::wstring ToolkitLanguage();
