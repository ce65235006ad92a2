// What `spacemgm usage` prints: the quota line, the five groups of the bar,
// the twelve categories and the backup devices, as text for a person or as
// one JSON document. The report is collected the way the window's load
// thread collects it.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "app/category_names.h"
#include "app/exchange_log.h"
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
    // The exchanges of the load that failed; filled by the program.
    std::vector<FailedExchange> failures;
};

// Size text of a category row: empty for a row without bytes.
std::string CategorySizeText(const CloudSpaceItem& item);

// For a person: categories under the names the window gives them, groups in
// words with their sizes, "no data" for a category without a row, device
// names escaped. The failures are not part of it; they go to stderr.
std::string FormatUsageText(const UsageReport& report, const CategoryTexts& texts);

// Everything, raw bytes, colours and bar lengths included, and the failures
// under "errors".
std::string FormatUsageJson(const UsageReport& report);

} // namespace app
