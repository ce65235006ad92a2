#include "space_data/cloud_space_query.h"

#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <fstream>

#include "foundation/utilities.h"
#include "platform/any_basic_http_lib_context.h"
#include "platform/any_basic_http_lib_strategy.h"
#include "platform/global_param_wrapper.h"
#include "platform/logger.h"
#include "platform/user_auth_service.h"
#include "space_data/quota_size_text.h"

namespace {

// The bar's length in pixels at a scale of 1.
constexpr float kBarLength = 530.0f;

const char* const kGroupKeys[] = {"backup", "drive", "photos", "other", "family"};

// Colours used when the operations configuration gives none.
const std::map<std::string, unsigned long long>& DefaultColors()
{
    static const std::map<std::string, unsigned long long> colors = {
        {"backup", 0xFF00BFC9ULL}, {"drive", 0xFF007DFFULL},  {"photos", 0xFF47CC47ULL},
        {"other", 0xFFFFBF00ULL},  {"family", 0xFFFF7500ULL},
    };
    return colors;
}

constexpr unsigned long long kFullColor = 0xFFFA2A2DULL;
constexpr unsigned long long kBackgroundColor = 0xFFF2F2F2ULL;

uint64_t GroupBytes(const NS::Drive::UserSpaceInfo& info, const std::string& key)
{
    if (key == "backup")
        return info.backup;
    if (key == "drive")
        return info.drive;
    if (key == "photos")
        return info.photos;
    if (key == "other")
        return info.other;
    return info.family;
}

// A member of `value` when it is an object; jsoncpp throws when asked for a
// member of an array or scalar, and a configuration file may hold anything.
Json::Value MemberOf(const Json::Value& value, const char* name)
{
    if (!value.isObject()) {
        return Json::Value();
    }
    return value[name];
}

std::string TextOf(const Json::Value& value)
{
    if (value.isString() || value.isNumeric() || value.isBool()) {
        return value.asString();
    }
    return std::string();
}

} // namespace

CloudSpaceQuery* CloudSpaceQuery::GetInstance()
{
    static CloudSpaceQuery instance;
    return &instance;
}

void CloudSpaceQuery::Task()
{
    GetCloudSpaceRequest();
    InitColorType();
    fullThreshold = 15.36f;
    const std::string path =
        WideToNarrowCopy(GlobalParamWrapper::GetAppDataLocalPath() + L"/SpaceOMConfig.json", 0);
    if (access(path.c_str(), F_OK) == 0) {
        GetItemsColor(GetConfigFromFile(path));
    } else {
        itemColors.clear();
    }
}

void CloudSpaceQuery::GetCloudSpaceRequest()
{
    spaceInfo = NS::Drive::UserSpaceInfo();
    if (NS::Drive::UserSpace::QueryUserSpace(spaceInfo, true)) {
        lastQueryTime = GetLongDateTime();
    } else {
        Logger::Output(Logger::subNuvoraSuite, Logger::_ERROR, __LINE__,
                       "CloudSpaceQuery::GetCloudSpaceRequest", std::string("network error!"), true);
    }
}

Json::Value CloudSpaceQuery::GetConfigFromFile(std::string path)
{
    std::ifstream file(path);
    std::string text;
    std::string line;
    while (std::getline(file, line)) {
        text += line;
    }
    Json::Value root;
    if (!StringToJson(text, root)) {
        return Json::Value();
    }
    return MemberOf(MemberOf(root, "cloud_space_usage"), "items");
}

void CloudSpaceQuery::InitColorType()
{
    colorTypes["backup"] = 0;
    colorTypes["drive"] = 1;
    colorTypes["family"] = 2;
    colorTypes["other"] = 3;
    colorTypes["photos"] = 4;
}

void CloudSpaceQuery::GetItemsColor(const Json::Value& items)
{
    if (!items.isArray()) {
        return;
    }
    for (Json::ArrayIndex i = 0; i < items.size(); ++i) {
        const Json::Value& element = items[i];
        const std::string key = TextOf(MemberOf(element, "key"));
        const auto type = colorTypes.find(key);
        if (type == colorTypes.end()) {
            continue;
        }
        // The first character is taken for the '#' and becomes the alpha
        // byte; a colour written without '#' therefore loses a digit.
        std::string color = TextOf(MemberOf(element, "color"));
        color.replace(0, 1, "0xFF");
        itemColors[type->second] = ItemColor{type->second, color, type->first};
    }
}

bool CloudSpaceQuery::StringToJson(const std::string& text, Json::Value& out)
{
    return !text.empty() && ParseJson(text, out);
}

long long CloudSpaceQuery::GetSpaceLength(const std::string& url)
{
    AnyBasicHttpLibStrategy strategy;
    strategy.SetCertPath("");
    strategy.SetUrl(url);
    strategy.SetLogFunction([](const std::string&) {});
    strategy.SetHttpRequestMethod(0);
    const UserAuthService* auth = UserAuthService::GetInstance();
    strategy.SetHeaders({{"Authorization", "Bearer " + WideToUtf8(auth->GetCurrentAT())},
                         {"uid", WideToUtf8(auth->GetCurrentUserID())}});
    AnyCurlHttpLibContext context(strategy);
    std::string response;
    context.Request(response);

    Json::Value root;
    StringToJson(response, root);
    // A "used" that is not a 64-bit integer counts as absent: jsoncpp would
    // throw on the conversion.
    if (root.isObject() && root.isMember("used") && root["used"].isInt64()) {
        return root["used"].asInt64();
    }
    return 0;
}

std::map<std::string, long> CloudSpaceQuery::GetLengthOfItems(float scale)
{
    itemLengths.clear();
    const uint64_t used = spaceInfo.used;
    const uint64_t total = spaceInfo.total;

    uint64_t shown = used;
    float remaining = 0.0f;
    if (used < total) {
        remaining = static_cast<float>(total - used) / 1024.0f / 1024.0f;
    } else {
        shown = total;
    }
    const float perByte = total != 0 ? scale * kBarLength / static_cast<float>(total) : 0.0f;

    if (fullThreshold >= remaining) {
        itemLengths["full"] = static_cast<long>(static_cast<float>(shown) * perByte);
        for (const char* key : kGroupKeys) {
            itemLengths[key] = 0;
        }
    } else {
        itemLengths["full"] = 0;
        for (const char* key : kGroupKeys) {
            const float length = static_cast<float>(GroupBytes(spaceInfo, key)) * perByte;
            // Any used group stays visible as at least one pixel.
            itemLengths[key] = (length > 0.0f && length < 1.0f) ? 1 : static_cast<long>(length);
        }
    }
    itemLengths["bkcolor"] = total != 0 ? static_cast<long>(static_cast<float>(total) * perByte)
                                        : static_cast<long>(scale * kBarLength);
    return itemLengths;
}

std::map<std::string, unsigned long long> CloudSpaceQuery::GetColorInfo()
{
    std::map<std::string, unsigned long long> colors;
    if (!itemColors.empty()) {
        // A configured palette replaces the defaults wholly: a group the file
        // leaves out has no colour at all.
        for (const auto& entry : itemColors) {
            colors[entry.second.key] = std::strtoul(entry.second.color.c_str(), nullptr, 16) & 0xFFFFFFFFULL;
        }
    } else {
        colors = DefaultColors();
    }
    colors["full"] = kFullColor;
    colors["bkcolor"] = kBackgroundColor;
    return colors;
}

std::map<std::string, unsigned long long> CloudSpaceQuery::GetStorageOfType()
{
    std::map<std::string, unsigned long long> storage;
    for (const char* key : kGroupKeys) {
        storage[key] = GroupBytes(spaceInfo, key);
    }
    return storage;
}

void CloudSpaceQuery::UpdateDisplayData(std::string& used, std::string& total)
{
    used = HumanReadableFilesize(static_cast<double>(spaceInfo.used));
    total = HumanReadableFilesize(static_cast<double>(spaceInfo.total));
}

void CloudSpaceQuery::Delete00AndDot(std::string& text)
{
    EraseFirstZeroFraction(text);
}

int CloudSpaceQuery::GetUsedValue()
{
    if (spaceInfo.total == 0) {
        return 0;
    }
    const int value = static_cast<int>(static_cast<double>(spaceInfo.used) /
                                       static_cast<double>(spaceInfo.total) * 10000.0);
    // An account with anything stored never reads as empty.
    if (spaceInfo.used != 0 && value == 0) {
        return 1;
    }
    return value;
}

void CloudSpaceQuery::GetUsedAndTotalValue(unsigned long long& used, unsigned long long& total)
{
    used = spaceInfo.used;
    total = spaceInfo.total;
}

bool CloudSpaceQuery::CheckRemainSpace(const unsigned long long& size)
{
    constexpr double kLowSpaceMb = 300.0;
    constexpr long long kRequeryAfterMs = 1200000; // 20 minutes
    constexpr double kReserveMb = 10.0;

    const auto remainingMb = [this] {
        return (static_cast<double>(spaceInfo.total) - static_cast<double>(spaceInfo.used)) / 1024.0 / 1024.0;
    };
    const long long now = GetLongDateTime();
    // Low accounts are asked on every check, others at most every 20 minutes.
    if (remainingMb() <= kLowSpaceMb || now - lastQueryTime >= kRequeryAfterMs) {
        GetCloudSpaceRequest();
    }
    const double sizeMb = static_cast<double>(size) / 1024.0 / 1024.0;
    if (remainingMb() - sizeMb > kReserveMb) {
        // Lowers the stored `used` although the caller is about to add data;
        // the next quota query replaces it. Callers rely on this as it stands.
        spaceInfo.used -= size;
        return true;
    }
    return false;
}

long long CloudSpaceQuery::getRefaceSpaceTime()
{
    return lastQueryTime;
}

long long CloudSpaceQuery::GetLongDateTime()
{
    using Ticks = std::chrono::duration<long long, std::ratio<1, 10000000>>; // 100 ns
    const auto ticks = std::chrono::duration_cast<Ticks>(std::chrono::system_clock::now().time_since_epoch());
    return ticks.count() / 10000;
}

NS::Drive::UserSpaceInfo& CloudSpaceQuery::GetSpaceInfo()
{
    return spaceInfo;
}

std::string CloudSpaceQuery::HumanReadableFilesize(double bytes)
{
    std::string text = FormatQuotaSize(bytes);
    if (GlobalParamWrapper::IsReplaceCommaCountry()) {
        text = GlobalParamWrapper::ReplaceComma(text);
    }
    return text;
}
