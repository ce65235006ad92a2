#pragma once
// Texts for the window's logic in tests: every key reads as "<key>" unless
// the test gives it a text, so an expected line names the keys it is made of.
#include <map>
#include <string>

#include "window/window_texts.h"

namespace window_test {

inline WindowTexts Texts(std::map<std::wstring, std::wstring> table = {}, std::wstring language = L"en-US")
{
    WindowTexts texts;
    texts.language = std::move(language);
    texts.lookup = [table = std::move(table)](const std::wstring& key) {
        const auto found = table.find(key);
        return found != table.end() ? found->second : L"<" + key + L">";
    };
    return texts;
}

} // namespace window_test
