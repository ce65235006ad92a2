#include "app/category_names.h"

#include <cstdlib>
#include <fstream>
#include <sstream>

#include <json/value.h>

#include "foundation/utilities.h"

namespace app {
namespace {

struct CategoryRow
{
    CloudSpaceType type;
    const char* textKey;
    const char* name;
};

// The order and the keys of the window's row templates.
const CategoryRow kRows[] = {
    {Wlan, "IDS_SPACEMANAGEMENT_Wlan", "Wlan"},
    {Phone, "IDS_SPACEMANAGEMENT_PHONE", "Phone"},
    {Browser, "IDS_SPACEMANAGEMENT_BROWSER", "Browser"},
    {Message, "IDS_SPACEMANAGEMENT_MESSAGE", "Message"},
    {Calendar, "IDS_SPACEMANAGEMENT_CALENDAR", "Calendar"},
    {Contact, "IDS_MAIN_PAGE_Plugin_Contacts", "Contact"},
    {CloudBackUp, "IDS_MAIN_PAGE_PanCapacity_Backup", "CloudBackUp"},
    {Gallery, "IDS_MAIN_PAGE_Plugin_Gallery", "Gallery"},
    {CloudDisk, "IDS_MAIN_PAGE_Plugin_Drive", "CloudDisk"},
    {Notepad, "IDS_MAIN_PAGE_Plugin_Notepad", "Notepad"},
    {Recorder, "IDS_MAIN_PAGE_Plugin_Recorder", "Recorder"},
    {HarassmentInterception, "IDS_SPACEMANAGEMENT_HARASSMENTINTERCEPTION", "HarassmentInterception"},
};

const CategoryRow* RowOf(CloudSpaceType type)
{
    for (const CategoryRow& row : kRows) {
        if (row.type == type) {
            return &row;
        }
    }
    return nullptr;
}

std::map<std::string, std::string> ReadTexts(const std::string& path)
{
    std::map<std::string, std::string> texts;
    std::ifstream in(path, std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    Json::Value root;
    if (!in || !ParseJson(content.str(), root) || !root.isObject()) {
        return texts;
    }
    for (const std::string& key : root.getMemberNames()) {
        if (root[key].isString()) {
            texts[key] = root[key].asString();
        }
    }
    return texts;
}

// A language names a file in Res/lang/; anything but letters, digits and
// "-" ("en-US") could name a file elsewhere.
std::string LanguageFile(const std::string& resourceRoot, const std::string& language)
{
    const bool plain = !language.empty() && language.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                                                       "abcdefghijklmnopqrstuvwxyz"
                                                                       "0123456789-") == std::string::npos;
    return resourceRoot + "/Res/lang/" + (plain ? language : std::string("en-US")) + ".json";
}

} // namespace

const std::vector<CloudSpaceType>& AllCategories()
{
    static const std::vector<CloudSpaceType> all = [] {
        std::vector<CloudSpaceType> types;
        for (const CategoryRow& row : kRows) {
            types.push_back(row.type);
        }
        return types;
    }();
    return all;
}

const char* CategoryTextKey(CloudSpaceType type)
{
    const CategoryRow* row = RowOf(type);
    return row != nullptr ? row->textKey : "";
}

std::string CategoryName(CloudSpaceType type)
{
    const CategoryRow* row = RowOf(type);
    return row != nullptr ? row->name : "Unknown";
}

CategoryTexts::CategoryTexts(const std::string& resourceRoot, const std::string& language)
    : language_(language), texts_(ReadTexts(LanguageFile(resourceRoot, language))),
      fallback_(ReadTexts(LanguageFile(resourceRoot, "en-US")))
{
}

std::string CategoryTexts::Text(const std::string& key) const
{
    for (const auto* table : {&texts_, &fallback_}) {
        const auto found = table->find(key);
        if (found != table->end() && !found->second.empty()) {
            return found->second;
        }
    }
    return std::string();
}

std::string CategoryTexts::NameOf(CloudSpaceType type) const
{
    const std::string name = Text(CategoryTextKey(type));
    return name.empty() ? CategoryName(type) : name;
}

std::string CategoryTexts::CountText(CloudSpaceType type, const std::string& count) const
{
    const bool digits =
        !count.empty() && count.size() < 10 && count.find_first_not_of("0123456789") == std::string::npos;
    const int number = digits ? std::stoi(count) : 0;
    const std::wstring baseKey =
        type == CloudBackUp ? L"IDS_SPACEMANAGEMENT_NUMUNITS" : L"IDS_SPACEMANAGEMENT_CLOUDBACKNUMUNITS";
    std::string unit =
        Text(WideToUtf8(PluralKey(std::wstring(language_.begin(), language_.end()), number, baseKey)));
    for (size_t at = unit.find("%d"); at != std::string::npos; at = unit.find("%d", at)) {
        unit.erase(at, 2);
    }
    return count + unit;
}

std::string ResourceRoot()
{
    const char* fromEnvironment = std::getenv("SPACEMGM_RESOURCE_ROOT");
    if (fromEnvironment != nullptr && fromEnvironment[0] != '\0') {
        return fromEnvironment;
    }
    return SPACEMGM_RESOURCE_DIR;
}

} // namespace app
