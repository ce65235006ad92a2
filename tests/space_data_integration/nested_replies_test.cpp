// Replies that no reader should take: a body nested thousands of levels deep,
// and configuration downloads that are not a JSON object. spacemgm-cloud
// sends them with status 200 in place of the service.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "platform/operation_manage_service.h"
#include "platform/user_space.h"
#include "space_data/cloud_space_query.h"
#include "space_fixture.h"

namespace {

using spacemgm_test::CloudEmulator;

const std::string kDeepArrays(5000, '[');

std::string ReadFile(const std::string& path)
{
    std::ifstream in(path);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

void AnswerWith(CloudEmulator& cloud, const std::string& service, const std::string& body)
{
    Json::Value rule;
    rule["service"] = service;
    rule["kind"] = "status";
    rule["status"] = 200;
    rule["body"] = body;
    cloud.AddFault(rule);
}

class NestedReplies : public ::testing::Test
{
protected:
    void SetUp() override
    {
        config_ = space_test::ConfigFor(cloud_);
        host::SetCurrentHostConfig(config_);
    }

    std::string ConfigFile() const { return config_.dataDir + "/SpaceOMConfig.json"; }

    CloudEmulator cloud_;
    host::HostConfig config_;
};

} // namespace

TEST_F(NestedReplies, AQuotaReplyNestedFiveThousandDeepIsAFailedQuery)
{
    AnswerWith(cloud_, "accountQuota", kDeepArrays);
    NS::Drive::UserSpaceInfo info;
    info.total = 5;
    EXPECT_FALSE(NS::Drive::UserSpace::QueryUserSpace(info, true));
    EXPECT_EQ(info.total, 5u);
}

TEST_F(NestedReplies, TheQuotaTaskSurvivesANestedQuotaReply)
{
    AnswerWith(cloud_, "accountQuota", kDeepArrays);
    CloudSpaceQuery query = *CloudSpaceQuery::GetInstance();
    query.Task();
    EXPECT_EQ(query.GetSpaceInfo().total, 0u);
}

TEST_F(NestedReplies, ANestedConfigurationDownloadKeepsTheFileBefore)
{
    ASSERT_TRUE(COperationManageService::GetInstance()->GetSpaceOMConfig());
    const std::string before = ReadFile(ConfigFile());
    ASSERT_FALSE(before.empty());
    AnswerWith(cloud_, "omConfig", kDeepArrays);
    EXPECT_FALSE(COperationManageService::GetInstance()->GetSpaceOMConfig());
    EXPECT_EQ(ReadFile(ConfigFile()), before);
}

TEST_F(NestedReplies, AConfigurationDownloadThatIsNoJsonObjectKeepsTheFileBefore)
{
    ASSERT_TRUE(COperationManageService::GetInstance()->GetSpaceOMConfig());
    const std::string before = ReadFile(ConfigFile());
    const std::vector<std::string> bodies = {
        "", "[]", "[1,2]", "\"text\"", "12", "<html>busy</html>", R"({"cloud_space_usage":)"};
    for (const std::string& body : bodies) {
        cloud_.ClearFaults();
        AnswerWith(cloud_, "omConfig", body);
        EXPECT_FALSE(COperationManageService::GetInstance()->GetSpaceOMConfig()) << body;
        EXPECT_EQ(ReadFile(ConfigFile()), before) << body;
    }
    for (const char* kind : {"notJson", "truncated", "emptyArray"}) {
        cloud_.ClearFaults();
        Json::Value rule;
        rule["service"] = "omConfig";
        rule["kind"] = kind;
        cloud_.AddFault(rule);
        EXPECT_FALSE(COperationManageService::GetInstance()->GetSpaceOMConfig()) << kind;
        EXPECT_EQ(ReadFile(ConfigFile()), before) << kind;
    }
}

TEST_F(NestedReplies, WithoutAFileBeforeANestedDownloadLeavesNone)
{
    AnswerWith(cloud_, "omConfig", kDeepArrays);
    EXPECT_FALSE(COperationManageService::GetInstance()->GetSpaceOMConfig());
    EXPECT_FALSE(std::ifstream(ConfigFile()).good());
}

TEST_F(NestedReplies, ANestedCategoryReplyGivesTheDefaultRecordAndNoRow)
{
    AnswerWith(cloud_, "familyShare", kDeepArrays);
    space_test::WiredViewModel wired;
    std::vector<std::shared_ptr<CloudSpaceItem>> items;
    EXPECT_EQ(wired.viewModel.GetItemSpace(Gallery, items), nullptr);
    EXPECT_EQ(wired.viewModel.GetItemSpace(CloudDisk, items), nullptr);
}
