#include <gtest/gtest.h>

#include <string>

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

TEST(ParseJson, ArraysNestedFiveThousandDeepFailWithoutThrowing)
{
    Json::Value value;
    bool parsed = true;
    EXPECT_NO_THROW(parsed = ParseJson(std::string(5000, '['), value));
    EXPECT_FALSE(parsed);
    EXPECT_TRUE(value.isNull());
}

TEST(ParseJson, ObjectsNestedTwoHundredThousandDeepFailWithoutThrowing)
{
    std::string text;
    for (int i = 0; i < 200000; ++i) {
        text += R"({"a":)";
    }
    Json::Value value;
    bool parsed = true;
    EXPECT_NO_THROW(parsed = ParseJson(text, value));
    EXPECT_FALSE(parsed);
}

TEST(ParseJson, TheReaderStillWorksAfterADeepText)
{
    Json::Value deep;
    ASSERT_FALSE(ParseJson(std::string(5000, '['), deep));
    Json::Value value;
    ASSERT_TRUE(ParseJson(R"({"result":3})", value));
    EXPECT_EQ(value["result"].asInt(), 3);
}

TEST(ParseJson, ANestingOfOneThousandLevelsStillParses)
{
    const std::string text = std::string(999, '[') + std::string(999, ']');
    Json::Value value;
    EXPECT_TRUE(ParseJson(text, value));
}

TEST(ParseJsonWithOptions, DeepNestingIsReportedInWords)
{
    Json::Value value;
    std::string error;
    EXPECT_FALSE(ParseJson(std::string(5000, '['), value, JsonParseOptions{}, &error));
    EXPECT_EQ(error, "nested more than 1000 levels deep");
}

TEST(ParseJsonWithOptions, DuplicateKeysAreRefusedOnlyWhenAsked)
{
    const std::string text = R"({"a":1,"a":2})";
    Json::Value lenient;
    EXPECT_TRUE(ParseJson(text, lenient, JsonParseOptions{}, nullptr));
    JsonParseOptions strict;
    strict.rejectDuplicateKeys = true;
    Json::Value value;
    std::string error;
    EXPECT_FALSE(ParseJson(text, value, strict, &error));
    EXPECT_NE(error.find("Duplicate key"), std::string::npos) << error;
}

TEST(ParseJsonWithOptions, AParseErrorNamesLineAndColumn)
{
    Json::Value value;
    std::string error;
    EXPECT_FALSE(ParseJson("{\n\"a\" 1}", value, JsonParseOptions{}, &error));
    EXPECT_NE(error.find("Line 2, Column"), std::string::npos) << error;
}
