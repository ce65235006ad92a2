#include "trace_id_check.h"

#include <cctype>
#include <ctime>

int64_t NowSeconds()
{
    return static_cast<int64_t>(std::time(nullptr));
}

namespace {

bool AllDigits(const std::string& text)
{
    if (text.empty()) {
        return false;
    }
    for (char c : text) {
        if (!std::isdigit(static_cast<unsigned char>(c))) {
            return false;
        }
    }
    return true;
}

} // namespace

::testing::AssertionResult IsTraceIdWithCode(const std::string& traceId, const std::string& code,
                                             int64_t notBefore, int64_t notAfter)
{
    if (code.empty()) {
        if (traceId.empty()) {
            return ::testing::AssertionSuccess();
        }
        return ::testing::AssertionFailure() << "expected no trace id, got \"" << traceId << "\"";
    }
    const std::string head = code + "_11_";
    if (traceId.compare(0, head.size(), head) != 0) {
        return ::testing::AssertionFailure()
               << "\"" << traceId << "\" does not start with \"" << head << "\"";
    }
    const size_t lastSeparator = traceId.rfind('_');
    if (lastSeparator < head.size()) {
        return ::testing::AssertionFailure() << "\"" << traceId << "\" has no time field";
    }
    const std::string seconds = traceId.substr(head.size(), lastSeparator - head.size());
    const std::string digits = traceId.substr(lastSeparator + 1);
    if (!AllDigits(seconds)) {
        return ::testing::AssertionFailure() << "time field \"" << seconds << "\" is not a number";
    }
    const int64_t value = std::stoll(seconds);
    if (value < notBefore || value > notAfter) {
        return ::testing::AssertionFailure()
               << "time " << value << " is outside [" << notBefore << ", " << notAfter << "]";
    }
    if (digits.size() != 8 || !AllDigits(digits)) {
        return ::testing::AssertionFailure() << "random field \"" << digits << "\" is not eight digits";
    }
    return ::testing::AssertionSuccess();
}
