#include "window/space_rows.h"

#include <cstdlib>

#include "window/detail_pages.h"
#include "window/size_texts.h"

const std::vector<SpaceRowTemplate>& SpaceRowTemplates()
{
    static const std::vector<SpaceRowTemplate> rows = {
        {Wlan, L"IDS_SPACEMANAGEMENT_Wlan", L"SpaceMgm/wifi.svg"},
        {Phone, L"IDS_SPACEMANAGEMENT_PHONE", L"SpaceMgm/callRecord.svg"},
        {Browser, L"IDS_SPACEMANAGEMENT_BROWSER", L"SpaceMgm/browser.svg"},
        {Message, L"IDS_SPACEMANAGEMENT_MESSAGE", L"SpaceMgm/mms.svg"},
        {Calendar, L"IDS_SPACEMANAGEMENT_CALENDAR", L"SpaceMgm/calendar.svg"},
        {Contact, L"IDS_MAIN_PAGE_Plugin_Contacts", L"SpaceMgm/contacts.svg"},
        {CloudBackUp, L"IDS_MAIN_PAGE_PanCapacity_Backup", L"SpaceMgm/cloudBackup.svg"},
        {Gallery, L"IDS_MAIN_PAGE_Plugin_Gallery", L"SpaceMgm/gallery.svg"},
        {CloudDisk, L"IDS_MAIN_PAGE_Plugin_Drive", L"SpaceMgm/cloudDisk.svg"},
        {Notepad, L"IDS_MAIN_PAGE_Plugin_Notepad", L"SpaceMgm/notes.svg"},
        {Recorder, L"IDS_MAIN_PAGE_Plugin_Recorder", L"SpaceMgm/soundRecording.svg"},
        {HarassmentInterception, L"IDS_SPACEMANAGEMENT_HARASSMENTINTERCEPTION",
         L"SpaceMgm/harassmentFilter.svg"},
    };
    return rows;
}

std::map<CloudSpaceType, SpaceInfo> BuildSpaceInfoMap(const WindowTexts& texts)
{
    std::map<CloudSpaceType, SpaceInfo> map;
    for (const SpaceRowTemplate& row : SpaceRowTemplates()) {
        SpaceInfo info;
        info.type = row.type;
        info.szItemName = row.nameKey;
        info.szItemPic = row.picture;
        SpaceInfo& stored = map[row.type] = info;
        stored.szItemName = texts.Text(row.nameKey);
    }
    return map;
}

SpaceInfo MakeRowInfo(const SpaceInfo& rowTemplate, const CloudSpaceItem& item,
                      const CloudSpaceDetailShow& detail, const WindowTexts& texts)
{
    SpaceInfo info = rowTemplate;
    const int count = std::atoi(item.count.c_str());
    if (count > 0)
        info.szRemark = WidenUtf8(item.count) + ItemUnit(texts, item.type, count);
    if (item.space > 0)
        info.szItemSize = SizeDisplayText(static_cast<double>(item.space), texts.language);
    info.szInfo1 = detail.itemInfo1;
    if (detail.itemInfo2State == kDetailShown)
        info.szInfo2 = detail.itemInfo2;
    if (detail.buttonState == kDetailShown) {
        info.szBtnText = detail.buttonText;
        info.szBtnColor = WidenUtf8(detail.buttonColor);
    }
    return info;
}

RowColumns ColumnsOf(const SpaceInfo& info)
{
    RowColumns columns;
    if (!info.szItemSize.empty()) {
        columns.sizeText = info.szItemSize;
        columns.remarkText = info.szRemark;
        columns.remarkTextSet = true;
        columns.remarkVisible = !info.szRemark.empty();
    } else {
        columns.sizeText = info.szRemark;
        columns.remarkVisible = false;
    }
    return columns;
}
