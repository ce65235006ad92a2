// Checks the shape of a trace identifier: "<code>_11_<seconds>_<8 digits>".
#pragma once

#include <cstdint>
#include <string>

#include <gtest/gtest.h>

// Seconds since the epoch, as the trace identifier writes them.
int64_t NowSeconds();

// Passes when `traceId` starts with the five-character `code`, carries the
// fixed "11", a time between `notBefore` and `notAfter`, and eight digits.
// An expected code of "" means the identifier itself must be empty.
::testing::AssertionResult IsTraceIdWithCode(const std::string& traceId, const std::string& code,
                                             int64_t notBefore, int64_t notAfter);
