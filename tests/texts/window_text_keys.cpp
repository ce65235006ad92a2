#include "window_text_keys.h"

#include <algorithm>

#include "foundation/utilities.h"

namespace texts {

const std::vector<std::string>& WindowTextKeys()
{
    static const std::vector<std::string> keys = {
        // Frame and pages.
        "IDS_SPACEMANAGEMENT_TITLE",
        "IDS_SPACEMANAGEMENT_CLOSE",
        "IDS_SPACEMANAGEMENT_LOADING",
        "IDS_SPACEMANAGEMENT_EMPTY_TITLE",
        "IDS_SPACEMANAGEMENT_EMPTY_DETAIL",
        "IDS_SPACEMANAGEMENT_FAILED_TITLE",
        "IDS_SPACEMANAGEMENT_FAILED_DETAIL",
        "IDS_SPACEMANAGEMENT_REFRESH",
        // Quota line, bar and legend.
        kUsedOfTotalKey,
        "IDS_SPACEMANAGEMENT_UPGRADE",
        "IDS_SPACEMANAGEMENT_FULL_TIPS",
        "IDS_SPACEMANAGEMENT_LEGEND_BACKUP",
        "IDS_SPACEMANAGEMENT_LEGEND_DRIVE",
        "IDS_SPACEMANAGEMENT_LEGEND_GALLERY",
        "IDS_SPACEMANAGEMENT_LEGEND_APPDATA",
        "IDS_SPACEMANAGEMENT_LEGEND_FAMILY",
        kLegendOffsetKey,
        // The category list: its heading and the twelve names.
        "IDS_SPACEMANAGEMENT_LIST_TITLE",
        "IDS_SPACEMANAGEMENT_Wlan",
        "IDS_SPACEMANAGEMENT_PHONE",
        "IDS_SPACEMANAGEMENT_BROWSER",
        "IDS_SPACEMANAGEMENT_MESSAGE",
        "IDS_SPACEMANAGEMENT_CALENDAR",
        "IDS_MAIN_PAGE_Plugin_Contacts",
        "IDS_MAIN_PAGE_PanCapacity_Backup",
        "IDS_MAIN_PAGE_Plugin_Gallery",
        "IDS_MAIN_PAGE_Plugin_Drive",
        "IDS_MAIN_PAGE_Plugin_Notepad",
        "IDS_MAIN_PAGE_Plugin_Recorder",
        "IDS_SPACEMANAGEMENT_HARASSMENTINTERCEPTION",
        // The item panel: line titles and the operation button.
        "IDS_SPACEMANAGEMENT_BACKUP_HEADER2",
        "IDS_GALLERY_ALBUM_DELETE",
        "IDS_SPACEMANAGEMENT_RECORDERSECTITLE",
        "IDS_SPACEMANAGEMENT_BROWSERFIRTITLE",
        "IDS_SPACEMANAGEMENT_BROWSERSECTITLE",
        "IDS_SPACEMANAGEMENT_MESSAGEFIRTITLE",
        "IDS_SPACEMANAGEMENT_CALENDARFIRTITLE",
        "IDS_SPACEMANAGEMENT_CONTACTBUTTONTEXT",
        "IDS_SPACEMANAGEMENT_NOTEPADBUTTONTEXT",
        "IDS_SPACEMANAGEMENT_GalleryButtonText",
        "IDS_SPACEMANAGEMENT_COLLECTIONBUTTONTEXT",
        "IDS_SPACEMANAGEMENT_RECORDERBUUTONTEXT",
        // Deleting all records of a category, and its failure toast.
        "IDS_SPACEMANAGEMENT_DELETE",
        "IDS_SPACEMANAGEMENT_CANCLE",
        "IDS_SPACEMANAGEMENT_DELETEALL_TITLE",
        "IDS_SPACEMANAGEMENT_DELETEALL_DETAIL",
        "IDS_SPACEMANAGEMENT_DELETE_FAILED",
        // The device list of the cloud backup and deleting one backup.
        "IDS_SPACEMANAGEMENT_BACKUP_LIST_TITLE",
        "IDS_MAIN_PAGE_PanCapacity_App",
        "IDS_SPACEMANAGEMENT_DELETEBACKUP_TITLE",
        kBackupDetailKey,
    };
    return keys;
}

const std::vector<std::string>& PluralBaseKeys()
{
    // UNIT_STRIPES follows the counts of the panel lines; NUMUNITS counts
    // the devices of the cloud backup row and CLOUDBACKNUMUNITS the records
    // of every other row: the last two names read the wrong way round.
    static const std::vector<std::string> keys = {
        "IDS_SPACEMANAGEMENT_UNIT_STRIPES",
        "IDS_SPACEMANAGEMENT_NUMUNITS",
        "IDS_SPACEMANAGEMENT_CLOUDBACKNUMUNITS",
    };
    return keys;
}

const std::vector<std::string>& TitleKeys()
{
    static const std::vector<std::string> keys = {
        "IDS_MAIN_PAGE_Plugin_Contacts",
        "IDS_SPACEMANAGEMENT_PHONE",
        "IDS_SPACEMANAGEMENT_Wlan",
        "IDS_SPACEMANAGEMENT_BACKUP_HEADER2",
        "IDS_GALLERY_ALBUM_DELETE",
        "IDS_SPACEMANAGEMENT_RECORDERSECTITLE",
        "IDS_SPACEMANAGEMENT_BROWSERFIRTITLE",
        "IDS_SPACEMANAGEMENT_BROWSERSECTITLE",
        "IDS_SPACEMANAGEMENT_MESSAGEFIRTITLE",
        "IDS_SPACEMANAGEMENT_CALENDARFIRTITLE",
    };
    return keys;
}

std::set<std::string> PluralFormsFor(const std::string& language, const std::string& base)
{
    std::wstring wideLanguage;
    std::wstring wideBase;
    NarrowToWide(language, wideLanguage, kCodePageUtf8);
    NarrowToWide(base, wideBase, kCodePageUtf8);
    // Plural rules repeat every hundred; a negative count must be covered too.
    std::set<std::string> forms;
    for (int count = -1; count <= 200; ++count)
        forms.insert(WideToUtf8(PluralKey(wideLanguage, count, wideBase)));
    return forms;
}

std::set<std::string> RequiredKeys(const std::string& language, const std::set<std::string>& scanned)
{
    const auto& bases = PluralBaseKeys();
    std::set<std::string> required(WindowTextKeys().begin(), WindowTextKeys().end());
    for (const auto& base : bases) {
        const auto forms = PluralFormsFor(language, base);
        required.insert(forms.begin(), forms.end());
    }
    for (const auto& key : scanned) {
        if (std::find(bases.begin(), bases.end(), key) == bases.end())
            required.insert(key);
    }
    return required;
}

} // namespace texts
