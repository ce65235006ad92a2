#pragma once
// The values that every road of the space data layer produces or consumes:
// the category, the outcome of a deletion, one category's usage and one
// device's cloud backup.
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/backup_host_messages.h"

// A plain integer enumeration: the value is the category everywhere, in
// `CloudSpaceItem`, in the detail records and in the window's list. The value
// 7 is left out on purpose; no worker, request or row ever uses it.
enum CloudSpaceType : int32_t
{
    Contact = 0,
    Notepad = 1,
    Gallery = 2,
    CloudDisk = 3,
    Recorder = 4,
    CloudBackUp = 5,
    Browser = 6,
    HarassmentInterception = 8,
    Message = 9,
    Phone = 10,
    Wlan = 11,
    Calendar = 12,
};

enum DeleteResult : int32_t
{
    DeleteSuccess = 0,
    DeleteFailed = 1,
    // Only the harassment deletion gives it: the service reported both
    // removed and refused files, or reported neither.
    DeletePartFailed = 2,
};

// One category's usage. `count` stays text because the window shows it as
// it is; categories that count records leave `space` at 0.
struct CloudSpaceItem
{
    CloudSpaceType type = Contact;
    int64_t space = 0;
    std::string count;
    CloudSpaceType sortType = Contact;
    int64_t recycle = 0;
    int32_t bookmarkCount = 0;
    int32_t infoflowCount = 0;
};

// One device's cloud backup row. The leading fields are filled by neither
// generation of the backup query; they travel with the row untouched.
struct BackUpModel
{
    int64_t reserved1 = 0;
    int64_t reserved2 = 0;
    std::string reservedText;
    int64_t reserved3 = 0;
    int64_t reserved4 = 0;
    int32_t reserved5 = 0;
    int32_t reserved6 = 0;
    std::string deviceName;
    std::string sizeText;
    int64_t size = 0;
    std::string deviceId;
};

// What the backup worker hands back: `item` is null when there is nothing
// to show, `models` holds one row per device with bytes.
struct BackupData
{
    std::shared_ptr<CloudSpaceItem> item;
    std::vector<BackUpModel> models;
};
