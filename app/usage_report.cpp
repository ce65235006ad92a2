#include "app/usage_report.h"

#include <json/json.h>

#include <cstdio>
#include <sstream>

#include "app/display_text.h"
#include "app/failure_lines.h"
#include "foundation/utilities.h"

namespace app {

namespace {

struct Group
{
    const char* key;
    const char* words;
};

const Group kGroups[] = {
    {"backup", "Cloud backup"}, {"drive", "Cloud drive"},     {"photos", "Gallery"},
    {"other", "Other"},         {"family", "Family sharing"},
};

std::string Hex(unsigned long long color)
{
    char buffer[24];
    std::snprintf(buffer, sizeof buffer, "0x%08llX", color);
    return buffer;
}

template <class Map> typename Map::mapped_type ValueOr0(const Map& map, const std::string& key)
{
    const auto found = map.find(key);
    return found == map.end() ? typename Map::mapped_type() : found->second;
}

std::string ColorText(const UsageReport& report, const std::string& key)
{
    const auto found = report.colors.find(key);
    return found == report.colors.end() ? std::string("none") : Hex(found->second);
}

std::shared_ptr<CloudSpaceItem> RowOf(const UsageReport& report, CloudSpaceType type)
{
    for (const auto& item : report.items) {
        if (item && item->type == type) {
            return item;
        }
    }
    return nullptr;
}

// "34.00 GB, 2 devices", "42.00 GB", "3621 items"; the figures as the module
// formats them, the units as the window's list shows them.
std::string RowText(const CloudSpaceItem& item, const CategoryTexts& texts)
{
    const std::string size = CategorySizeText(item);
    const std::string count = item.count.empty() || item.count == "0"
                                  ? std::string()
                                  : texts.CountText(static_cast<CloudSpaceType>(item.type), item.count);
    if (size.empty() && count.empty()) {
        return "0 B";
    }
    if (size.empty() || count.empty()) {
        return size + count;
    }
    return size + ", " + count;
}

void WriteCategories(std::ostream& out, const UsageReport& report, const CategoryTexts& texts)
{
    out << "Categories:\n";
    // The rows first, in the order the load sorted them; then the categories
    // without a row, in the order of the window's templates.
    for (const auto& item : report.items) {
        if (item) {
            out << "  " << EscapeForTerminal(texts.NameOf(item->type)) << ": "
                << EscapeForTerminal(RowText(*item, texts)) << "\n";
        }
    }
    for (CloudSpaceType type : AllCategories()) {
        if (!RowOf(report, type)) {
            out << "  " << EscapeForTerminal(texts.NameOf(type)) << ": no data\n";
        }
    }
}

void WriteBackups(std::ostream& out, const UsageReport& report)
{
    out << "Backups:\n";
    if (report.backups.empty()) {
        out << "  (none)\n";
    }
    for (const BackUpModel& backup : report.backups) {
        const std::string name = backup.deviceName.empty() ? "(unnamed device)" : backup.deviceName;
        out << "  " << EscapeForTerminal(name) << ": " << EscapeForTerminal(backup.sizeText) << ", device "
            << EscapeForTerminal(backup.deviceId) << "\n";
    }
}

Json::Value ErrorsJson(const std::vector<FailedExchange>& failures)
{
    Json::Value errors(Json::arrayValue);
    for (const FailedExchange& failure : failures) {
        Json::Value entry;
        entry["service"] = failure.service;
        entry["serviceName"] = ServiceDisplayName(failure.service);
        entry["path"] = failure.path;
        entry["status"] = failure.status;
        entry["problem"] = failure.problem;
        entry["seconds"] = failure.seconds;
        entry["message"] = FailureLine(failure);
        errors.append(entry);
    }
    return errors;
}

} // namespace

std::string CategorySizeText(const CloudSpaceItem& item)
{
    return item.space > 0 ? FormatSizeText(static_cast<double>(item.space)) : std::string();
}

std::string FormatUsageText(const UsageReport& report, const CategoryTexts& texts)
{
    std::ostringstream out;
    out << "Used " << report.usedText << " of " << report.totalText << "\n";
    if (ValueOr0(report.lengths, "full") > 0) {
        out << "The account is full.\n";
    }
    out << "Groups:\n";
    for (const Group& group : kGroups) {
        out << "  " << group.words << ": "
            << FormatSizeText(static_cast<double>(ValueOr0(report.storage, group.key))) << "\n";
    }
    WriteCategories(out, report, texts);
    WriteBackups(out, report);
    return out.str();
}

std::string FormatUsageJson(const UsageReport& report)
{
    Json::Value root;
    root["quota"]["used"] = report.usedText;
    root["quota"]["total"] = report.totalText;
    root["quota"]["usedBytes"] = Json::UInt64(report.usedBytes);
    root["quota"]["totalBytes"] = Json::UInt64(report.totalBytes);
    Json::Value& groups = root["groups"] = Json::Value(Json::arrayValue);
    for (const Group& group : kGroups) {
        Json::Value entry;
        entry["key"] = group.key;
        entry["bytes"] = Json::UInt64(ValueOr0(report.storage, group.key));
        entry["color"] = ColorText(report, group.key);
        entry["length"] = Json::Int64(ValueOr0(report.lengths, group.key));
        groups.append(entry);
    }
    for (const char* key : {"full", "bkcolor"}) {
        root["bar"][key]["color"] = ColorText(report, key);
        root["bar"][key]["length"] = Json::Int64(ValueOr0(report.lengths, key));
    }
    Json::Value& items = root["categories"] = Json::Value(Json::arrayValue);
    for (const auto& item : report.items) {
        Json::Value row;
        row["type"] = static_cast<int>(item->type);
        row["name"] = CategoryName(item->type);
        row["space"] = Json::Int64(item->space);
        row["sizeText"] = CategorySizeText(*item);
        row["count"] = item->count;
        row["recycle"] = Json::Int64(item->recycle);
        if (item->type == Browser) {
            row["bookmarkCount"] = item->bookmarkCount;
            row["infoflowCount"] = item->infoflowCount;
        }
        items.append(row);
    }
    Json::Value& backups = root["backups"] = Json::Value(Json::arrayValue);
    for (const BackUpModel& backup : report.backups) {
        Json::Value row;
        row["deviceId"] = backup.deviceId;
        row["deviceName"] = backup.deviceName;
        row["size"] = Json::Int64(backup.size);
        row["sizeText"] = backup.sizeText;
        backups.append(row);
    }
    root["errors"] = ErrorsJson(report.failures);
    Json::StreamWriterBuilder writer;
    writer["indentation"] = "  ";
    return Json::writeString(writer, root) + "\n";
}

} // namespace app
