#pragma once
// Text resources by key and language, read from Res/lang/<language>.json
// under the instance path: one flat JSON object mapping keys to texts. A
// key missing from the current language falls back to en-US; a key missing
// from both is shown as the key itself. Safe to call from any thread.

#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <vector>

#include "toolkit/core/dui_string.h"

namespace DuiLib {

class CResourceManager
{
public:
    static CResourceManager* GetInstance();

    // Switches the current language ("en-US", "ru-RU", "th-TH", ...).
    void SetLanguage(LPCTSTR pstrLanguage);
    LPCTSTR GetLanguage();
    // The text for `key`; the pointer stays valid for the life of the
    // process.
    LPCTSTR GetText(LPCTSTR key);
    // Forgets loaded files, so the next GetText reads them again.
    void ReloadText();

private:
    CResourceManager();
    using Table = std::map<std::wstring, std::wstring>;
    const Table& TableFor(const std::wstring& language);

    std::mutex m_mutex;
    std::wstring m_language;
    // Every table ever loaded stays alive so returned pointers stay valid.
    std::map<std::wstring, std::shared_ptr<Table>> m_tables;
    std::vector<std::shared_ptr<Table>> m_retired;
    std::set<std::wstring> m_missing;
    std::set<std::wstring> m_languageNames;
};

// Scaling helpers between logical units and device pixels at the process
// DPI (see CDPI).
class CResourceManagerEx
{
public:
    static CResourceManagerEx* GetInstance();
    // Logical to device pixels.
    static int Scale(int value);
    // Device to logical pixels.
    static int RestoreScale(int value);
};

} // namespace DuiLib
