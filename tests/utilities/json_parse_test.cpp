#include <gtest/gtest.h>

#include <json/value.h>

#include "foundation/utilities.h"

TEST(ParseJson, ParsesAWholeDocument)
{
    Json::Value value;
    ASSERT_TRUE(ParseJson(R"({"result":0,"list":[1,2]})", value));
    EXPECT_EQ(value["result"].asInt(), 0);
    EXPECT_EQ(value["list"].size(), 2u);
}

TEST(ParseJson, RejectsTextThatIsNotJson)
{
    Json::Value value;
    EXPECT_FALSE(ParseJson("<html>busy</html>", value));
    EXPECT_FALSE(ParseJson(R"({"a":1)", value));
}

TEST(ParseJson, EmptyTextIsNotJson)
{
    Json::Value value;
    EXPECT_FALSE(ParseJson("", value));
}
