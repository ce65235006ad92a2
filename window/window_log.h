#pragma once
// Log lines of the space window: module 7 (subSpaceManage), the function as
// "Class::Member". Debug lines are not flushed; info and error lines are,
// so that what the user did and what failed reach the file at once.
#include <string>

#include "platform/logger.h"

inline bool WindowLogFlushes(int severity)
{
    return severity != Logger::_DEBUG;
}

inline void WindowLog(int severity, int line, const char* function, const std::string& message)
{
    Logger::Output(Logger::subSpaceManage, severity, line, function, message, WindowLogFlushes(severity));
}

inline void WindowLog(int severity, int line, const char* function, const std::wstring& message)
{
    Logger::Output(Logger::subSpaceManage, severity, line, function, message, WindowLogFlushes(severity));
}
