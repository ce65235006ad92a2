#include <map>
#include <memory>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "record_test_support.h"
#include "request/postable_string.h"
#include "request/records/backup_records.h"
#include "request/records/quota_records.h"
#include "request/serializable_object.h"

namespace {

BaseRsp FilledBaseRsp()
{
    BaseRsp record;
    record.result = 7;
    record.info = "kept";
    return record;
}

} // namespace

TEST(ReadRecord, TopLevelArrayLeavesRecordAtItsDefaults)
{
    const auto fresh = ReadReply<BaseRsp>("[1]");
    EXPECT_EQ(fresh->result, 0);
    EXPECT_EQ(fresh->info, "");

    BaseRsp prefilled = FilledBaseRsp();
    ReadRecord(prefilled, "[1]");
    EXPECT_EQ(prefilled.result, 7);
    EXPECT_EQ(prefilled.info, "kept");
}

TEST(ReadRecord, TopLevelArrayMakesFromJsonThrowOnTheFirstKey)
{
    BaseRsp record = FilledBaseRsp();
    EXPECT_ANY_THROW(record.FromJson(JsonOf("[1]")));
    EXPECT_EQ(record.result, 7);
}

TEST(ReadRecord, StringResultInBaseRspLeavesResultAndInfoUnread)
{
    const auto fresh = ReadReply<BaseRsp>(R"({"result":"0","info":"server text"})");
    EXPECT_EQ(fresh->result, 0);
    EXPECT_EQ(fresh->info, "");

    BaseRsp prefilled = FilledBaseRsp();
    ReadRecord(prefilled, R"({"result":"0","info":"server text"})");
    EXPECT_EQ(prefilled.result, 7);
    EXPECT_EQ(prefilled.info, "kept");
}

TEST(ReadRecord, TextThatIsNoJsonLeavesRecordAsConstructed)
{
    BaseRsp record = FilledBaseRsp();
    ReadRecord(record, "<html>Bad Gateway</html>");
    EXPECT_EQ(record.result, 7);
    EXPECT_EQ(record.info, "kept");
}

TEST(ReadRecord, AReplyNestedFiveThousandDeepLeavesRecordAsConstructed)
{
    BaseRsp record = FilledBaseRsp();
    EXPECT_NO_THROW(ReadRecord(record, std::string(5000, '[')));
    EXPECT_EQ(record.result, 7);
    EXPECT_EQ(record.info, "kept");

    std::string deepObject = R"({"result":1,"info":)";
    for (int i = 0; i < 5000; ++i) {
        deepObject += R"({"a":)";
    }
    EXPECT_NO_THROW(ReadRecord(record, deepObject));
    EXPECT_EQ(record.result, 7);
}

TEST(ReadRecord, AbsentKeysOverwriteMembersWithJsonDefaults)
{
    BaseRsp record = FilledBaseRsp();
    ReadRecord(record, "{}");
    EXPECT_EQ(record.result, 0);
    EXPECT_EQ(record.info, "");
}

TEST(ReadRecord, FillsEveryFieldOfAWellFormedReply)
{
    const auto record = ReadReply<BaseRsp>(R"({"result":3,"info":"busy"})");
    EXPECT_EQ(record->result, 3);
    EXPECT_EQ(record->info, "busy");
}

TEST(FromJson, ReturnsZeroWhenEveryCheckedKeyIsPresent)
{
    BaseRsp record;
    EXPECT_EQ(record.FromJson(JsonOf(R"({"result":0,"info":""})")), 0);
}

TEST(FromJson, ReturnsMinusOneWhenACheckedKeyIsAbsent)
{
    BaseRsp record;
    EXPECT_EQ(record.FromJson(JsonOf(R"({"result":0})")), -1);
    EXPECT_EQ(record.FromJson(JsonOf(R"({"info":""})")), -1);
}

TEST(FromJson, ReadingTwiceDoublesAList)
{
    const Json::Value reply =
        JsonOf(R"({"result":0,"info":"","backupRecords":[{"backupId":"a"},{"backupId":"b"}]})");
    QueryAllBackUpResponse record;
    record.FromJson(reply);
    record.FromJson(reply);
    ASSERT_EQ(record.backupRecords.size(), 4u);
    EXPECT_EQ(record.backupRecords[2].backupId, "a");
    EXPECT_EQ(record.backupRecords[3].backupId, "b");
}

TEST(FromJson, ResultIsMinusOneEvenWhenTheRecordWasFullyRead)
{
    // The check list names keys of the reply, not whether reading went well:
    // a reply that lacks one is read to the end and still reports -1.
    DataObject record;
    EXPECT_EQ(record.FromJson(JsonOf(R"({"source":"calendar"})")), -1);
    EXPECT_EQ(record.source, "calendar");
    EXPECT_EQ(record.sumNum, 0);
}

TEST(ToJsonString, IsOneLineWithoutIndentationOrTrailingNewline)
{
    BackUpDeleteRequest request;
    request.cmd = 27;
    request.info = "DeleteDeviceBackupRecordReq";
    request.deviceId = "dev-1";
    request.deviceType = 3;
    EXPECT_EQ(request.ToJsonString(),
              R"({"cmd":27,"deviceId":"dev-1","deviceType":3,"info":"DeleteDeviceBackupRecordReq"})");
}

TEST(ToJsonString, OrdersKeysByNameNotByField)
{
    // Field order is result, info, countRet, deviceList; the text is sorted.
    QueryBackUpSmsAndCallLogResponse reply;
    reply.result = 1;
    reply.info = "i";
    EXPECT_EQ(reply.ToJsonString(), R"({"countRet":[],"deviceList":[],"info":"i","result":1})");
}

TEST(ToJsonString, NestedRecordsStayOnOneLine)
{
    QueryBackUpSmsAndCallLogRequest request;
    request.cmd = 5;
    BackUpDevice device;
    device.deviceId = "d";
    request.deviceList.push_back(device);
    const std::string text = request.ToJsonString();
    EXPECT_EQ(text.find('\n'), std::string::npos);
    EXPECT_EQ(text,
              R"({"cmd":5,"deviceList":[{"aliasName":"","devDisplayName":"","deviceId":"d","deviceType":0,)"
              R"("terminalType":""}],"info":"","type":""})");
}

TEST(PostableData, BaseFormStringIsEmptyForJsonRecords)
{
    BaseRsp record = FilledBaseRsp();
    EXPECT_EQ(record.ToFormString(), "");
    PostableString body("already text");
    EXPECT_EQ(body.ToFormString(), "");
    EXPECT_EQ(body.text, "already text");
}

TEST(ObjectToStringMap, KeepsNumbersAndArraysAndDropsBooleans)
{
    std::map<std::string, std::string> map;
    ObjectToStringMap(JsonOf(R"({"a":1,"b":[1,2],"c":true})"), map);
    const std::map<std::string, std::string> expected{{"a", "1"}, {"b", "1,2"}};
    EXPECT_EQ(map, expected);
}

struct StringMapRow
{
    const char* name;
    const char* json;
    std::map<std::string, std::string> expected;
};

void PrintTo(const StringMapRow& row, std::ostream* out)
{
    *out << row.name;
}

class ObjectToStringMapTable : public ::testing::TestWithParam<StringMapRow>
{
};

TEST_P(ObjectToStringMapTable, StoresEachMemberByItsType)
{
    std::map<std::string, std::string> map;
    ObjectToStringMap(JsonOf(GetParam().json), map);
    EXPECT_EQ(map, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    MemberTypes, ObjectToStringMapTable,
    ::testing::Values(
        StringMapRow{"NegativeInteger", R"({"n":-42})", {{"n", "-42"}}},
        StringMapRow{"UnsignedBeyondInt64", R"({"u":18446744073709551615})", {{"u", "18446744073709551615"}}},
        StringMapRow{"RealWithPercentF", R"({"r":1.5})", {{"r", "1.500000"}}},
        StringMapRow{"RealRoundedToSixDecimals", R"({"r":0.1234567})", {{"r", "0.123457"}}},
        StringMapRow{"StringAsItStands", R"({"s":"a b,c"})", {{"s", "a b,c"}}},
        StringMapRow{"ArrayOfStringsJoined", R"({"l":["x","y","z"]})", {{"l", "x,y,z"}}},
        StringMapRow{"ArrayOfMixedScalarsJoined", R"({"l":[1,"two",true]})", {{"l", "1,two,true"}}},
        StringMapRow{"EmptyArrayIsEmptyText", R"({"l":[]})", {{"l", ""}}},
        StringMapRow{"NullLeftOut", R"({"z":null,"k":"v"})", {{"k", "v"}}},
        StringMapRow{"FalseLeftOut", R"({"f":false})", {}},
        StringMapRow{"ObjectLeftOut", R"({"o":{"x":1},"k":"v"})", {{"k", "v"}}},
        StringMapRow{"EmptyObjectAddsNothing", R"({})", {}}, StringMapRow{"NullAddsNothing", R"(null)", {}}),
    [](const ::testing::TestParamInfo<StringMapRow>& info) { return info.param.name; });

TEST(ObjectToStringMap, KeepsEntriesThatNoMemberReplaces)
{
    std::map<std::string, std::string> map{{"old", "1"}, {"a", "stale"}};
    ObjectToStringMap(JsonOf(R"({"a":"fresh"})"), map);
    const std::map<std::string, std::string> expected{{"a", "fresh"}, {"old", "1"}};
    EXPECT_EQ(map, expected);
}
