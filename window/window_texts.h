#pragma once
// Where the window's logic reads its texts: the toolkit's text resources in
// the window, a table in tests. `language` is the current language, as the
// plural and Thai rules need it.
#include <functional>
#include <string>

struct WindowTexts
{
    std::function<std::wstring(const std::wstring& key)> lookup;
    std::wstring language;

    std::wstring Text(const std::wstring& key) const { return lookup ? lookup(key) : key; }
};
