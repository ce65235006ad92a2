#include "window/backup_rows.h"

#include <algorithm>
#include <cstdlib>

#include "space_data/cloud_space_detail_show.h"
#include "window/size_texts.h"

std::wstring BackupRowName(const BackUpModel& model, const WindowTexts& texts)
{
    std::wstring name = WidenUtf8(model.deviceName);
    if (name.empty())
        name = texts.Text(kUnnamedDeviceKey);
    return name;
}

std::wstring BackupRowSize(const BackUpModel& model)
{
    return WidenUtf8(model.sizeText);
}

void RefreshBackupRow(CloudSpaceItem& item, SpaceInfo& row, long long deletedSize, const WindowTexts& texts)
{
    const int count = std::max(std::atoi(item.count.c_str()) - 1, 0);
    item.count = std::to_string(count);
    row.szRemark = std::to_wstring(count) + ItemUnit(texts, item.type, count);
    item.space = std::max<int64_t>(item.space - deletedSize, 0);
    row.szItemSize = SizeDisplayText(static_cast<double>(item.space), texts.language);
    // The panel title of a cloud backup page; the page record itself is not kept.
    CloudBackUpDetailShow detail;
    detail.itemName = texts.Text(L"IDS_SPACEMANAGEMENT_BACKUP_HEADER2");
    row.szInfo1 = detail.itemName + L" " + row.szItemSize;
}

std::map<std::wstring, std::wstring> DeletedBackupValues(int64_t size, const std::string& deviceName)
{
    std::wstring device;
    NarrowToWide(deviceName, device, kDeletedDeviceNameCodePage);
    return {{L"size", std::to_wstring(size)}, {L"device", device}};
}
