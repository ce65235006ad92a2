#pragma once
// The rows of `BackupList` and what a deletion changes: the device rows, the
// cloud backup row corrected by hand after a deletion, and the operation
// record of the deleted device.
#include <cstdint>
#include <map>
#include <string>

#include "foundation/utilities.h"
#include "space_data/cloud_space_types.h"
#include "window/space_window_types.h"
#include "window/window_texts.h"

// Shown for a device whose name could not be matched.
inline constexpr const wchar_t* kUnnamedDeviceKey = L"IDS_MAIN_PAGE_PanCapacity_App";

// The name of a device row: its name widened from UTF-8, or the text of
// kUnnamedDeviceKey when it has none.
std::wstring BackupRowName(const BackUpModel& model, const WindowTexts& texts);
// The size of a device row: its size text as the backup query wrote it.
std::wstring BackupRowSize(const BackUpModel& model);

// `RefreshBackupInfo` on the model's cloud backup item and a copy of its
// row: one device fewer (never below 0, an empty count reads as 0), the
// deleted bytes off the size (never below 0), and the row's count, size and
// first panel line rewritten. The name, icon, second line and button stay.
void RefreshBackupRow(CloudSpaceItem& item, SpaceInfo& row, long long deletedSize, const WindowTexts& texts);

// The device name of a deletion's operation record is widened with the
// system's ANSI code page, not from UTF-8 as everywhere else.
inline constexpr unsigned int kDeletedDeviceNameCodePage = kCodePageSystem;

// The values of the operation record of a deleted device backup.
std::map<std::wstring, std::wstring> DeletedBackupValues(int64_t size, const std::string& deviceName);
