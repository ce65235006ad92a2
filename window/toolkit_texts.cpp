#include "window/toolkit_texts.h"

#include "toolkit/duilib.h"

std::wstring ToolkitText(const wchar_t* key)
{
    const wchar_t* text = DuiLib::CResourceManager::GetInstance()->GetText(key);
    return text != nullptr ? text : L"";
}

std::wstring ToolkitLanguage()
{
    const wchar_t* language = DuiLib::CResourceManager::GetInstance()->GetLanguage();
    return language != nullptr ? language : L"";
}

WindowTexts ToolkitTexts()
{
    WindowTexts texts;
    texts.language = ToolkitLanguage();
    texts.lookup = [](const std::wstring& key) { return ToolkitText(key.c_str()); };
    return texts;
}
