#include <string>

#include <gtest/gtest.h>

#include "record_test_support.h"
#include "request/records/record_fields.h"

using record_fields::JsonFields;

namespace {

// An object larger than JsonFields lists itself, so that jsoncpp's own lookup
// answers.
Json::Value LargeObject()
{
    Json::Value value(Json::objectValue);
    for (int index = 0; index < 40; ++index) {
        value["k" + std::to_string(index)] = index;
    }
    value["empty"] = Json::Value();
    return value;
}

} // namespace

TEST(JsonFields, ReadsLikeAConstantValue)
{
    const Json::Value value = JsonOf(R"({"a":1,"b":null,"ab":"x"})");
    const JsonFields in(value);
    EXPECT_EQ(in["a"].asInt(), 1);
    EXPECT_TRUE(in["b"].isNull());
    EXPECT_EQ(in["ab"].asString(), "x");
    EXPECT_TRUE(in["missing"].isNull());
    EXPECT_TRUE(in[""].isNull());
}

TEST(JsonFields, CheckCountsANullMemberAsPresent)
{
    const Json::Value value = JsonOf(R"({"a":1,"b":null})");
    const JsonFields in(value);
    EXPECT_EQ(in.Check({"a", "b"}), 0);
    EXPECT_EQ(in.Check({"a", "missing", "b"}), -1);
}

TEST(JsonFields, KeysDifferingOnlyInLengthAreKeptApart)
{
    const Json::Value value = JsonOf(R"({"size":1,"sizes":2})");
    const JsonFields in(value);
    EXPECT_EQ(in["size"].asInt(), 1);
    EXPECT_EQ(in["sizes"].asInt(), 2);
    EXPECT_TRUE(in["siz"].isNull());
}

TEST(JsonFields, LargeObjectUsesTheSameAnswers)
{
    const Json::Value value = LargeObject();
    const JsonFields in(value);
    EXPECT_EQ(in["k0"].asInt(), 0);
    EXPECT_EQ(in["k39"].asInt(), 39);
    EXPECT_TRUE(in["k40"].isNull());
    EXPECT_EQ(in.Check({"k0", "empty", "k39"}), 0);
    EXPECT_EQ(in.Check({"k0", "k40"}), -1);
}

TEST(JsonFields, NullValueReadsEveryKeyAsNullAndChecksNone)
{
    const Json::Value value;
    const JsonFields in(value);
    EXPECT_TRUE(in["a"].isNull());
    EXPECT_EQ(in.Check({"a"}), -1);
    EXPECT_EQ(in.Check({}), 0);
}

TEST(JsonFields, ValueThatIsNoObjectThrowsOnTheFirstReadLikeJsoncpp)
{
    const Json::Value array = JsonOf("[1]");
    const JsonFields fromArray(array);
    EXPECT_ANY_THROW(fromArray["a"]);
    EXPECT_ANY_THROW(fromArray.Check({"a"}));
    const Json::Value text("text");
    const JsonFields fromText(text);
    EXPECT_ANY_THROW(fromText["a"]);
}
