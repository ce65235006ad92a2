#include "app/usage_report.h"

#include <json/json.h>

#include <cstdio>
#include <sstream>

#include "foundation/utilities.h"

namespace app {

namespace {

const char* const kGroupKeys[] = {"backup", "drive", "photos", "other", "family"};

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

} // namespace

std::string CategoryName(CloudSpaceType type)
{
    switch (type) {
    case Contact:
        return "Contact";
    case Notepad:
        return "Notepad";
    case Gallery:
        return "Gallery";
    case CloudDisk:
        return "CloudDisk";
    case Recorder:
        return "Recorder";
    case CloudBackUp:
        return "CloudBackUp";
    case Browser:
        return "Browser";
    case HarassmentInterception:
        return "HarassmentInterception";
    case Message:
        return "Message";
    case Phone:
        return "Phone";
    case Wlan:
        return "Wlan";
    case Calendar:
        return "Calendar";
    }
    return "Unknown";
}

std::string CategorySizeText(const CloudSpaceItem& item)
{
    return item.space > 0 ? FormatSizeText(static_cast<double>(item.space)) : std::string();
}

std::string FormatUsageText(const UsageReport& report)
{
    std::ostringstream out;
    out << "Used " << report.usedText << " of " << report.totalText << "\n";
    out << "Groups:\n";
    for (const char* key : kGroupKeys) {
        out << "  " << key << ": " << ValueOr0(report.storage, key) << " bytes, colour "
            << ColorText(report, key) << ", bar " << ValueOr0(report.lengths, key) << "\n";
    }
    out << "  full: colour " << ColorText(report, "full") << ", bar " << ValueOr0(report.lengths, "full")
        << "\n";
    out << "  bkcolor: colour " << ColorText(report, "bkcolor") << ", bar "
        << ValueOr0(report.lengths, "bkcolor") << "\n";
    out << "Categories:\n";
    if (report.items.empty()) {
        out << "  (none)\n";
    }
    for (const auto& item : report.items) {
        out << "  " << CategoryName(item->type) << ": size "
            << (item->space > 0 ? CategorySizeText(*item) : "-") << ", count "
            << (item->count.empty() ? "-" : item->count) << "\n";
    }
    out << "Backups:\n";
    if (report.backups.empty()) {
        out << "  (none)\n";
    }
    for (const BackUpModel& backup : report.backups) {
        out << "  " << (backup.deviceName.empty() ? "(unnamed device)" : backup.deviceName) << ": "
            << backup.sizeText << " (" << backup.size << " bytes), device " << backup.deviceId << "\n";
    }
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
    for (const char* key : kGroupKeys) {
        Json::Value group;
        group["key"] = key;
        group["bytes"] = Json::UInt64(ValueOr0(report.storage, key));
        group["color"] = ColorText(report, key);
        group["length"] = Json::Int64(ValueOr0(report.lengths, key));
        groups.append(group);
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
    Json::StreamWriterBuilder writer;
    writer["indentation"] = "  ";
    return Json::writeString(writer, root) + "\n";
}

} // namespace app
