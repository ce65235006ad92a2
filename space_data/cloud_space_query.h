#pragma once
// The account's quota as the cloud reports it, and what the usage bar makes
// of it: segment lengths, colours and size texts. One process-wide instance;
// the window's load thread drives it and the host may query it directly.
// There is no lock: `Task` and the readers run in sequence on one thread.
#include <json/json.h>

#include <cstdint>
#include <map>
#include <string>

#include "platform/user_space.h"

class CloudSpaceQuery
{
public:
    // Colour of one quota group as the operations configuration gives it.
    struct ItemColor
    {
        int32_t colorType = 0;
        std::string color; // text such as 0xFF00BFC9
        std::string key;
    };

    static CloudSpaceQuery* GetInstance();

    CloudSpaceQuery(const CloudSpaceQuery&) = default;
    CloudSpaceQuery& operator=(const CloudSpaceQuery&) = default;

    void Task();
    void GetCloudSpaceRequest();
    Json::Value GetConfigFromFile(std::string path);
    void InitColorType();
    void GetItemsColor(const Json::Value& items);
    bool StringToJson(const std::string& text, Json::Value& out);
    long long GetSpaceLength(const std::string& url);
    std::map<std::string, long> GetLengthOfItems(float scale);
    std::map<std::string, unsigned long long> GetColorInfo();
    std::map<std::string, unsigned long long> GetStorageOfType();
    void UpdateDisplayData(std::string& used, std::string& total);
    void Delete00AndDot(std::string& text);
    int GetUsedValue();
    void GetUsedAndTotalValue(unsigned long long& used, unsigned long long& total);
    bool CheckRemainSpace(const unsigned long long& size);
    long long getRefaceSpaceTime();
    long long GetLongDateTime();
    NS::Drive::UserSpaceInfo& GetSpaceInfo();

private:
    CloudSpaceQuery() = default;

    std::string HumanReadableFilesize(double bytes);

    // Carried along by copies only; no operation reads them.
    std::string reservedText;
    Json::Value reservedJson;

    NS::Drive::UserSpaceInfo spaceInfo;
    std::map<int32_t, ItemColor> itemColors;
    std::map<std::string, int32_t> colorTypes;
    std::map<std::string, std::string> reservedMap;
    int64_t lastQueryTime = 0;
    float fullThreshold = 15.36f;
    std::map<std::string, long> itemLengths;
};
