#include "toolkit/core/resource_manager.h"

#include <json/json.h>

#include <fstream>
#include <sstream>

#include "toolkit/core/attributes.h"
#include "toolkit/core/dpi.h"
#include "toolkit/core/resource_paths.h"

namespace DuiLib {

namespace {

constexpr const wchar_t* kFallbackLanguage = L"en-US";

std::map<std::wstring, std::wstring> ReadLanguageFile(const std::string& path)
{
    std::map<std::wstring, std::wstring> table;
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return table;
    Json::CharReaderBuilder builder;
    Json::Value root;
    std::string errors;
    try {
        if (!Json::parseFromStream(builder, in, &root, &errors) || !root.isObject())
            return table;
    } catch (const std::exception&) {
        // Nesting past jsoncpp's limit throws; such a file has no texts.
        return table;
    }
    for (const auto& key : root.getMemberNames()) {
        const Json::Value& value = root[key];
        if (value.isString())
            table[attr::Widen(key)] = attr::Widen(value.asString());
    }
    return table;
}

} // namespace

CResourceManager* CResourceManager::GetInstance()
{
    static CResourceManager instance;
    return &instance;
}

CResourceManager::CResourceManager() : m_language(kFallbackLanguage) {}

void CResourceManager::SetLanguage(LPCTSTR pstrLanguage)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_language = pstrLanguage ? pstrLanguage : L"";
    m_languageNames.insert(m_language);
}

LPCTSTR CResourceManager::GetLanguage()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    // The returned pointer must outlive a later SetLanguage.
    return m_languageNames.insert(m_language).first->c_str();
}

const CResourceManager::Table& CResourceManager::TableFor(const std::wstring& language)
{
    auto found = m_tables.find(language);
    if (found == m_tables.end()) {
        const std::string path =
            attr::Narrow(resource_paths::Instance()) + "Res/lang/" + attr::Narrow(language) + ".json";
        found = m_tables.emplace(language, std::make_shared<Table>(ReadLanguageFile(path))).first;
    }
    return *found->second;
}

LPCTSTR CResourceManager::GetText(LPCTSTR key)
{
    const std::wstring wanted = key ? key : L"";
    std::lock_guard<std::mutex> lock(m_mutex);
    const Table& current = TableFor(m_language);
    auto hit = current.find(wanted);
    if (hit != current.end())
        return hit->second.c_str();
    const Table& fallback = TableFor(kFallbackLanguage);
    hit = fallback.find(wanted);
    if (hit != fallback.end())
        return hit->second.c_str();
    return m_missing.insert(wanted).first->c_str();
}

void CResourceManager::ReloadText()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    for (auto& entry : m_tables)
        m_retired.push_back(entry.second);
    m_tables.clear();
}

CResourceManagerEx* CResourceManagerEx::GetInstance()
{
    static CResourceManagerEx instance;
    return &instance;
}

int CResourceManagerEx::Scale(int value)
{
    CDPI dpi;
    return dpi.Scale(value);
}

int CResourceManagerEx::RestoreScale(int value)
{
    CDPI dpi;
    return dpi.ScaleBack(value);
}

} // namespace DuiLib
