// The host's logger. A line is filed under a channel, the module name joined
// with the severity suffix (module 7 at severity 2 is "subSpaceManage_INFO");
// the joining happens inside the logger. The position of a name in the two
// lists below is the number callers pass.
#pragma once

#include <array>
#include <map>
#include <string>

namespace Logger {

enum ModuleType : int
{
    subNuvoraSuite = 0,
    subCloud = 1,
    subRecord = 2,
    subGallery = 3,
    subContact = 4,
    subSetting = 5,
    subFeedback = 6,
    subSpaceManage = 7,
    subOMService = 8,
    subPushService = 9,
    subUserAuthService = 10,
    subPortalGuiDepcDownload = 11,
    subGPW = 12,
    subGRS = 13,
};

enum LogSeverity : int
{
    _NET = 0,
    _DEBUG = 1,
    _INFO = 2,
    _SYNC = 3,
    _TRACE_UI = 4,
    _ERROR = 5,
};

inline constexpr std::array<const char*, 14> ModuleNames = {
    "subNuvoraSuite", "subCloud",       "subRecord",          "subGallery",
    "subContact",     "subSetting",     "subFeedback",        "subSpaceManage",
    "subOMService",   "subPushService", "subUserAuthService", "subPortalGuiDepcDownload",
    "subGPW",         "subGRS",
};

inline constexpr std::array<const char*, 6> SeveritySuffixes = {
    "_NET", "_DEBUG", "_INFO", "_SYNC", "_TRACE_UI", "_ERROR",
};

// `function` is "Class::Member"; `flush` asks for the line to reach the file
// before the call returns.
void Output(int module, int severity, int line, const std::string& function, const std::string& message,
            bool flush);
// The same with a wide message, written as UTF-8.
void Output(int module, int severity, int line, const std::string& function, const std::wstring& message,
            bool flush);

// One record of a user action: the logger's event, operation and action
// types, and named values.
void OutputOperationLog(int event, int operationType, int actionType,
                        const std::map<std::wstring, std::wstring>& values);

} // namespace Logger
