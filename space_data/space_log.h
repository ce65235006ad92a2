#pragma once
// Log lines of the space data layer: module 7 (subSpaceManage) and the
// function name as "Class::Member". Messages are fixed texts and never hold
// a token.
#include <string>

#include "platform/logger.h"

inline void SpaceLog(int severity, int line, const char* function, const std::string& message,
                     bool flush = true)
{
    Logger::Output(Logger::subSpaceManage, severity, line, function, message, flush);
}

#define SPACE_LOG_INFO(function, message) SpaceLog(Logger::_INFO, __LINE__, function, message)
#define SPACE_LOG_ERROR(function, message) SpaceLog(Logger::_ERROR, __LINE__, function, message)
#define SPACE_LOG_DEBUG(function, message) SpaceLog(Logger::_DEBUG, __LINE__, function, message)
