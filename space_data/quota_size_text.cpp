#include "space_data/quota_size_text.h"

#include <cstdio>

void EraseFirstZeroFraction(std::string& text)
{
    const auto at = text.find(".00");
    if (at != std::string::npos) {
        text.erase(at, 3);
    }
}

std::string FormatQuotaSize(double bytes)
{
    static const char* const kUnits[] = {"B", "KB", "MB", "GB", "TB", "PB"};
    int unit = 0;
    // Three divisions at most: the largest unit reached is GB.
    while (bytes >= 1024.0 && unit < 3) {
        bytes /= 1024.0;
        ++unit;
    }
    char buffer[260];
    std::snprintf(buffer, sizeof buffer, "%.2f %s", bytes, kUnits[unit]);
    std::string text(buffer);
    EraseFirstZeroFraction(text);
    return text;
}
