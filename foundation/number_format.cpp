// Number and size texts. The two size formatters differ on purpose (the
// backup list groups thousands, the item pages step at 900 and follow the
// country's decimal comma); neither is to be merged with the other.
#include "foundation/utilities.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "platform/global_param_wrapper.h"

namespace {

const char* const kSizeUnits[] = {"B", "KB", "MB", "GB"};

std::string FormatDefault(double value)
{
    const int length = std::snprintf(nullptr, 0, "%f", value);
    std::string text(static_cast<size_t>(length) + 1, '\0');
    std::snprintf(text.data(), text.size(), "%f", value);
    text.resize(static_cast<size_t>(length));
    return text;
}

} // namespace

std::string FormatFixed2(double value)
{
    char buffer[50];
    const int written = std::snprintf(buffer, sizeof buffer, "%.*lf", 2, value);
    if (written < 0) {
        return {};
    }
    return buffer;
}

std::string GroupThousands(double value)
{
    const std::string text = FormatDefault(value);
    if (!std::isfinite(value) || std::fabs(value) < 1000) {
        return text;
    }
    const size_t point = text.find('.');
    const std::string integerPart = text.substr(0, point);
    const std::string tail = integerPart.substr(integerPart.size() - 3);
    // The integer part of "%f" is the value truncated, digit for digit, so
    // dropping its last three digits is the integer division by 1000 without
    // the range limit of a machine integer.
    std::string head = integerPart.substr(0, integerPart.size() - 3);
    if (head.empty() || head == "-") {
        return text;
    }
    if (point == std::string::npos) {
        return head + "," + tail;
    }
    return head + "," + tail + "." + text.substr(point + 1, 2);
}

std::string FormatSizeGrouped(double bytes)
{
    size_t unit = 0;
    double value = bytes;
    while (value >= 1024 && unit < 3) {
        value /= 1024;
        ++unit;
    }
    if (value > 999.0) {
        // Between 999 and 1000 GroupThousands keeps all six decimals; the
        // backup list trims them from what it shows.
        return GroupThousands(std::atof(FormatFixed2(value).c_str())) + " " + kSizeUnits[unit];
    }
    return FormatFixed2(value) + " " + kSizeUnits[unit];
}

std::string FormatSizeText(double bytes)
{
    size_t unit = 0;
    double value = bytes;
    while (value > 900 && unit < 3) {
        value /= 1024;
        ++unit;
    }
    std::string number = FormatFixed2(value);
    if (GlobalParamWrapper::IsReplaceCommaCountry()) {
        number = GlobalParamWrapper::ReplaceComma(number);
    }
    return number + " " + kSizeUnits[unit];
}
