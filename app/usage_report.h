// What `spacemgm usage` prints: the quota line, the five groups of the bar,
// the category rows in their display order, and the backup devices. The
// report is collected the way the window's load thread collects it.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "space_data/cloud_space_types.h"

namespace app {

struct UsageReport
{
    std::string usedText;
    std::string totalText;
    unsigned long long usedBytes = 0;
    unsigned long long totalBytes = 0;
    std::map<std::string, unsigned long long> colors;
    std::map<std::string, long> lengths;
    std::map<std::string, unsigned long long> storage;
    std::vector<std::shared_ptr<CloudSpaceItem>> items;
    std::vector<BackUpModel> backups;
};

// The category's name as the log lines spell it ("CloudBackUp" for 5).
std::string CategoryName(CloudSpaceType type);

// Size text of a category row: empty for a row without bytes.
std::string CategorySizeText(const CloudSpaceItem& item);

std::string FormatUsageText(const UsageReport& report);
std::string FormatUsageJson(const UsageReport& report);

} // namespace app
