#pragma once
// The data of the three backup messages that the module sends to the host
// window given to `SetCloudbackupTipParam`. Each message carries an event
// handle in wParam and a pointer in lParam; the host writes its answer
// through the pointer, then sets the event.
//
//   version message:     lParam is a std::string*, the backup generation ("v1", "v3", ...)
//   device list message: lParam is a std::vector<BackupDevListSt>*, filled by the host
//   delete message:      lParam is a std::string*, the device id in, the outcome text out
//
// The message numbers are the host's choice and travel with the call.
#include <string>

// One entry of the device list that the host fills on a version 3 query.
// The module reads only the two strings; the rest is the host's.
struct BackupDevListSt
{
    std::string deviceName;
    std::string deviceId;
    std::string hostData;
};
