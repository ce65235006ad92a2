#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <sstream>

#include "host/logger_sink.h"
#include "platform/operation_manage_service.h"
#include "space_data/cloud_space_query.h"
#include "space_fixture.h"

namespace {

using spacemgm_test::CloudEmulator;

std::string ReadFile(const std::string& path)
{
    std::ifstream in(path);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

Json::Value ParseText(const std::string& text)
{
    Json::Value value;
    Json::CharReaderBuilder builder;
    std::string errors;
    std::istringstream in(text);
    Json::parseFromStream(builder, in, &value, &errors);
    return value;
}

CloudSpaceQuery Copy()
{
    return *CloudSpaceQuery::GetInstance();
}

} // namespace

TEST(QueryUserSpace, FillsTheGroupsTheAccountHolds)
{
    CloudEmulator cloud;
    host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
    const Json::Value groups = cloud.Account()["groups"];
    NS::Drive::UserSpaceInfo info;
    ASSERT_TRUE(NS::Drive::UserSpace::QueryUserSpace(info, true));
    EXPECT_EQ(info.total, cloud.Account()["quota"]["total"].asUInt64());
    EXPECT_EQ(info.used, groups["used"].asUInt64());
    EXPECT_EQ(info.backup, groups["backup"].asUInt64());
    EXPECT_EQ(info.drive, groups["drive"].asUInt64());
    EXPECT_EQ(info.photos, groups["photos"].asUInt64());
    EXPECT_EQ(info.other, groups["other"].asUInt64());
    EXPECT_EQ(info.family, groups["family"].asUInt64());
    EXPECT_GT(info.total, 0u);
}

TEST(CloudSpaceQuery, FailedQueryLogsNetworkErrorAndLeavesZeros)
{
    for (const char* kind : {"status", "notJson", "cut", "empty", "wrongTypes"}) {
        CloudEmulator cloud;
        host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
        Json::Value rule;
        rule["service"] = "accountQuota";
        rule["kind"] = kind;
        if (std::string(kind) == "status") {
            rule["status"] = 500;
        }
        cloud.AddFault(rule);
        CloudSpaceQuery query = Copy();
        const long long before = query.getRefaceSpaceTime();
        Logger::ScopedMemorySink sink;
        query.GetCloudSpaceRequest();
        EXPECT_EQ(query.GetSpaceInfo().used, 0u) << kind;
        EXPECT_EQ(query.GetSpaceInfo().total, 0u) << kind;
        EXPECT_EQ(query.getRefaceSpaceTime(), before) << kind;
        const auto records = sink.Records();
        ASSERT_EQ(records.size(), 1u) << kind;
        EXPECT_EQ(records[0].module, 0);
        EXPECT_EQ(records[0].severity, 5);
        EXPECT_EQ(records[0].function, "CloudSpaceQuery::GetCloudSpaceRequest");
        EXPECT_EQ(records[0].message, "network error!");
        EXPECT_TRUE(records[0].flush);
    }
}

TEST(CloudSpaceQuery, SuccessfulQueryStampsTheTime)
{
    CloudEmulator cloud;
    host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
    CloudSpaceQuery query = Copy();
    const long long before = query.GetLongDateTime();
    query.GetCloudSpaceRequest();
    EXPECT_GE(query.getRefaceSpaceTime(), before);
    EXPECT_GT(query.GetSpaceInfo().total, 0u);
}

TEST(CloudSpaceQuery, CheckRemainSpaceFalseWhenExactlyTenMegabytesWouldRemain)
{
    CloudEmulator cloud;
    host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
    CloudSpaceQuery query = Copy();
    query.GetCloudSpaceRequest(); // a fresh stamp: no query for 20 minutes
    ASSERT_GT(query.getRefaceSpaceTime(), 0);
    const unsigned long long mib = 1024ULL * 1024ULL;
    query.GetSpaceInfo().used = 0;
    query.GetSpaceInfo().total = 1024 * mib;
    EXPECT_FALSE(query.CheckRemainSpace(1014 * mib));
    EXPECT_EQ(query.GetSpaceInfo().used, 0u);
    EXPECT_TRUE(query.CheckRemainSpace(1013 * mib));
}

TEST(CloudSpaceQuery, TwoChecksLowerTheStoredUsedTwiceUntilAQueryReplacesIt)
{
    CloudEmulator cloud;
    host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
    CloudSpaceQuery query = Copy();
    query.GetCloudSpaceRequest();
    const unsigned long long realUsed = query.GetSpaceInfo().used;
    const unsigned long long mib = 1024ULL * 1024ULL;
    query.GetSpaceInfo().used = 500 * mib;
    query.GetSpaceInfo().total = 2048 * mib;
    EXPECT_TRUE(query.CheckRemainSpace(100 * mib));
    EXPECT_TRUE(query.CheckRemainSpace(100 * mib));
    EXPECT_EQ(query.GetSpaceInfo().used, 300 * mib);
    query.GetCloudSpaceRequest();
    EXPECT_EQ(query.GetSpaceInfo().used, realUsed);
}

TEST(CloudSpaceQuery, LowAccountIsAskedOnEveryCheck)
{
    CloudEmulator cloud;
    host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
    CloudSpaceQuery query = Copy();
    query.GetCloudSpaceRequest();
    const unsigned long long mib = 1024ULL * 1024ULL;
    query.GetSpaceInfo().used = 0;
    query.GetSpaceInfo().total = 200 * mib; // 200 MB left: at most 300, so it asks again
    cloud.ClearLog();
    query.CheckRemainSpace(1);
    EXPECT_EQ(cloud.RequestLog().size(), 1u);
    EXPECT_GT(query.GetSpaceInfo().total, 200 * mib);
}

TEST(GetSpaceOMConfig, DownloadsTheFileAndTaskReadsItsColours)
{
    CloudEmulator cloud;
    const host::HostConfig config = space_test::ConfigFor(cloud);
    host::SetCurrentHostConfig(config);
    ASSERT_TRUE(COperationManageService::GetInstance()->GetSpaceOMConfig());
    const std::string path = config.dataDir + "/SpaceOMConfig.json";
    const Json::Value file = ParseText(ReadFile(path));
    EXPECT_EQ(file, cloud.Account()["omConfig"]);

    CloudSpaceQuery query = Copy();
    query.Task();
    const auto colors = query.GetColorInfo();
    for (const Json::Value& item : file["cloud_space_usage"]["items"]) {
        const std::string hex = item["color"].asString().substr(1);
        EXPECT_EQ(colors.at(item["key"].asString()), 0xFF000000ULL | std::stoull(hex, nullptr, 16));
    }
    EXPECT_EQ(colors.at("full"), 0xFFFA2A2DULL);
}

TEST(GetSpaceOMConfig, FailedDownloadKeepsTheFileBefore)
{
    CloudEmulator cloud;
    const host::HostConfig config = space_test::ConfigFor(cloud);
    host::SetCurrentHostConfig(config);
    ASSERT_TRUE(COperationManageService::GetInstance()->GetSpaceOMConfig());
    const std::string path = config.dataDir + "/SpaceOMConfig.json";
    const std::string before = ReadFile(path);
    for (const char* kind : {"status", "cut"}) {
        Json::Value rule;
        rule["service"] = "omConfig";
        rule["kind"] = kind;
        if (std::string(kind) == "status") {
            rule["status"] = 503;
        }
        cloud.ClearFaults();
        cloud.AddFault(rule);
        EXPECT_FALSE(COperationManageService::GetInstance()->GetSpaceOMConfig()) << kind;
        EXPECT_EQ(ReadFile(path), before) << kind;
    }
}

TEST(CloudSpaceQuery, TaskWithoutConfigurationFileUsesDefaultColours)
{
    CloudEmulator cloud;
    host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
    CloudSpaceQuery query = Copy();
    query.Task();
    EXPECT_EQ(query.GetColorInfo().at("backup"), 0xFF00BFC9ULL);
    EXPECT_GT(query.GetSpaceInfo().total, 0u);
}
