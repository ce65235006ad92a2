#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "record_test_support.h"
#include "request/records/record_fields.h"

using record_fields::JsonFields;

TEST(JsonFields, ReadsLikeAConstantValue)
{
    const Json::Value value = JsonOf(R"({"a":1,"b":null})");
    JsonFields in(value);
    EXPECT_EQ(in["a"].asInt(), 1);
    EXPECT_TRUE(in["b"].isNull());
    EXPECT_TRUE(in["missing"].isNull());
}

TEST(JsonFields, CheckAnswersFromWhatWasReadEvenForANullMember)
{
    const Json::Value value = JsonOf(R"({"a":1,"b":null})");
    JsonFields in(value);
    in["a"];
    in["b"];
    in["missing"];
    EXPECT_EQ(in.Check({"a", "b"}), 0);
    EXPECT_EQ(in.Check({"a", "missing", "b"}), -1);
}

TEST(JsonFields, CheckMatchesKeysByTextAndLooksUpKeysNeverRead)
{
    const Json::Value value = JsonOf(R"({"read":1,"unread":2})");
    JsonFields in(value);
    const std::string readKey = "read";
    in[readKey.c_str()];
    EXPECT_EQ(in.Check({"read", "unread"}), 0);
    EXPECT_EQ(in.Check({"read", "absent"}), -1);
}

TEST(JsonFields, ThrowsLikeJsoncppOnAValueThatIsNoObject)
{
    const Json::Value value = JsonOf("[1]");
    JsonFields in(value);
    EXPECT_ANY_THROW(in["a"]);
}

TEST(JsonFields, KeepsAnsweringPastItsMemory)
{
    const Json::Value value = JsonOf(R"({"k0":0,"k19":19})");
    std::vector<std::string> keys;
    for (int index = 0; index < 20; ++index) {
        keys.push_back("k" + std::to_string(index));
    }
    JsonFields in(value);
    for (const std::string& key : keys) {
        in[key.c_str()];
    }
    EXPECT_EQ(in.Check({"k0", "k19"}), 0);
    EXPECT_EQ(in.Check({"k5"}), -1);
}
