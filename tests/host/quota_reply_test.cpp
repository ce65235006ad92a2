// The host's reader of the account quota reply.
#include <gtest/gtest.h>

#include <string>

#include "host/quota_reply.h"

namespace {

NS::Drive::UserSpaceInfo Marked()
{
    NS::Drive::UserSpaceInfo info;
    info.used = 7;
    info.total = 9;
    return info;
}

} // namespace

TEST(QuotaReply, ReadsEveryGroup)
{
    NS::Drive::UserSpaceInfo info;
    ASSERT_TRUE(host::ParseQuotaReply(
        R"({"retCode":0,"used":60,"total":100,"backup":10,"drive":20,"photos":15,"other":5,"family":10})",
        info));
    EXPECT_EQ(info.used, 60u);
    EXPECT_EQ(info.total, 100u);
    EXPECT_EQ(info.backup, 10u);
    EXPECT_EQ(info.drive, 20u);
    EXPECT_EQ(info.photos, 15u);
    EXPECT_EQ(info.other, 5u);
    EXPECT_EQ(info.family, 10u);
}

TEST(QuotaReply, AReplyNestedFiveThousandDeepIsRefusedWithoutThrowing)
{
    NS::Drive::UserSpaceInfo info = Marked();
    bool parsed = true;
    EXPECT_NO_THROW(parsed = host::ParseQuotaReply(std::string(5000, '['), info));
    EXPECT_FALSE(parsed);
    EXPECT_EQ(info.used, 7u);
    EXPECT_EQ(info.total, 9u);
}

TEST(QuotaReply, AnObjectNestedDeepInsideAKeyIsRefused)
{
    std::string text = R"({"used":1,"total":2,"backup":)";
    for (int i = 0; i < 5000; ++i) {
        text += R"({"a":)";
    }
    NS::Drive::UserSpaceInfo info = Marked();
    EXPECT_FALSE(host::ParseQuotaReply(text, info));
    EXPECT_EQ(info.used, 7u);
}

TEST(QuotaReply, RepliesThatAreNoQuotaAreRefused)
{
    const char* const refused[] = {
        "",
        "[]",
        "not json",
        R"({"used":1)",
        R"([{"used":1,"total":2}])",
        R"({"retCode":401,"retMsg":"token","used":1,"total":2})",
        R"({"retCode":"0","used":1,"total":2})",
        R"({"used":"1","total":2})",
        R"({"used":-1,"total":2})",
        R"({"total":2})",
    };
    for (const char* reply : refused) {
        NS::Drive::UserSpaceInfo info = Marked();
        EXPECT_FALSE(host::ParseQuotaReply(reply, info)) << reply;
        EXPECT_EQ(info.used, 7u) << reply;
    }
}

TEST(QuotaReply, AGroupLeftOutIsZero)
{
    NS::Drive::UserSpaceInfo info;
    info.family = 5;
    ASSERT_TRUE(host::ParseQuotaReply(R"({"used":1,"total":2,"backup":1})", info));
    EXPECT_EQ(info.family, 0u);
    EXPECT_EQ(info.backup, 1u);
}
