// How the records take a value of the wrong type: a convertible value is
// converted, any other makes the read throw, and the record keeps what it
// read before the fault. jsoncpp decides, except for booleans: a string, an
// array or an object reads as true when it is not empty, as jsoncpp's own
// table of conversions says, where the release we build against throws.
// Every row reads a real record from a reply through ReadRecord, the way the
// exchange does.

#include <functional>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "record_test_support.h"
#include "request/records/backup_records.h"
#include "request/records/nsp_records.h"
#include "request/records/quota_records.h"

namespace {

struct MismatchRow
{
    const char* name;
    std::function<void()> check;
};

void PrintTo(const MismatchRow& row, std::ostream* out)
{
    *out << row.name;
}

class TypeMismatch : public ::testing::TestWithParam<MismatchRow>
{
};

TEST_P(TypeMismatch, PartlyFillsTheRecordAndNeverThrows)
{
    EXPECT_NO_THROW(GetParam().check());
}

// BaseRsp reads "result" (asInt) then "info" (asString).
void ExpectBaseRsp(const char* reply, int result, const char* info)
{
    const auto record = ReadReply<BaseRsp>(reply);
    EXPECT_EQ(record->result, result) << reply;
    EXPECT_EQ(record->info, info) << reply;
}

// QuotaDetail reads ... "collection", "trashed" (asBool), "parentId".
void ExpectQuotaDetailTrashed(const char* trashedJson, bool trashed, const char* parentId)
{
    const std::string reply =
        std::string(R"({"collection":"photo","trashed":)") + trashedJson + R"(,"parentId":"p1"})";
    const auto record = ReadReply<QuotaDetail>(reply);
    EXPECT_EQ(record->collection, "photo") << reply;
    EXPECT_EQ(record->trashed, trashed) << reply;
    EXPECT_EQ(record->parentId, parentId) << reply;
}

// BackUpDevice reads "deviceId" (asString) first, then "deviceType" (asInt).
void ExpectDeviceIdStops(const char* deviceIdJson)
{
    const std::string reply = std::string(R"({"deviceId":)") + deviceIdJson + R"(,"deviceType":4})";
    const auto record = ReadReply<BackUpDevice>(reply);
    EXPECT_EQ(record->deviceId, "") << reply;
    EXPECT_EQ(record->deviceType, 0) << reply;
}

INSTANTIATE_TEST_SUITE_P(
    JsoncppConversions, TypeMismatch,
    ::testing::Values(
        // number into a 32-bit field
        MismatchRow{"RealIntoIntIsTruncated", [] { ExpectBaseRsp(R"({"result":2.9,"info":"x"})", 2, "x"); }},
        MismatchRow{"NegativeRealIntoIntIsTruncatedTowardZero",
                    [] { ExpectBaseRsp(R"({"result":-2.9,"info":"x"})", -2, "x"); }},
        MismatchRow{"RealOutOfIntRangeStopsTheRead",
                    [] { ExpectBaseRsp(R"({"result":1e20,"info":"x"})", 0, ""); }},
        MismatchRow{"IntegerOutOfIntRangeStopsTheRead",
                    [] { ExpectBaseRsp(R"({"result":3000000000,"info":"x"})", 0, ""); }},
        // string, boolean, array, object into a 32-bit field
        MismatchRow{"StringIntoIntStopsTheRead",
                    [] { ExpectBaseRsp(R"({"result":"12","info":"x"})", 0, ""); }},
        MismatchRow{"TrueIntoIntIsOne", [] { ExpectBaseRsp(R"({"result":true,"info":"x"})", 1, "x"); }},
        MismatchRow{"FalseIntoIntIsZero", [] { ExpectBaseRsp(R"({"result":false,"info":"x"})", 0, "x"); }},
        MismatchRow{"ArrayIntoIntStopsTheRead", [] { ExpectBaseRsp(R"({"result":[1],"info":"x"})", 0, ""); }},
        MismatchRow{"ObjectIntoIntStopsTheRead",
                    [] { ExpectBaseRsp(R"({"result":{"a":1},"info":"x"})", 0, ""); }},
        MismatchRow{"NullIntoIntIsZero", [] { ExpectBaseRsp(R"({"result":null,"info":"x"})", 0, "x"); }},
        // 64-bit fields take what a 32-bit field refuses
        MismatchRow{"LargeIntegerIntoInt64IsKept",
                    [] {
                        const auto record = ReadReply<GetSpaceFromUrl>(R"({"retCode":0,"used":5000000000})");
                        EXPECT_EQ(record->used, 5000000000LL);
                    }},
        MismatchRow{"StringIntoInt64StopsTheRead",
                    [] {
                        const auto record = ReadReply<GetSpaceFromUrl>(R"({"retCode":4,"used":"5000"})");
                        EXPECT_EQ(record->retCode, 4);
                        EXPECT_EQ(record->used, 0);
                    }},
        // anything into a boolean field
        MismatchRow{"NonZeroNumberIntoBoolIsTrue", [] { ExpectQuotaDetailTrashed("2", true, "p1"); }},
        MismatchRow{"ZeroIntoBoolIsFalse", [] { ExpectQuotaDetailTrashed("0", false, "p1"); }},
        MismatchRow{"BooleanIntoBoolIsItself", [] { ExpectQuotaDetailTrashed("true", true, "p1"); }},
        // text and containers are true when not empty, and the read goes on
        MismatchRow{"StringIntoBoolIsTrueWhenNotEmpty",
                    [] { ExpectQuotaDetailTrashed(R"("false")", true, "p1"); }},
        MismatchRow{"EmptyStringIntoBoolIsFalse", [] { ExpectQuotaDetailTrashed(R"("")", false, "p1"); }},
        MismatchRow{"ArrayIntoBoolIsTrueWhenNotEmpty", [] { ExpectQuotaDetailTrashed("[1]", true, "p1"); }},
        MismatchRow{"EmptyArrayIntoBoolIsFalse", [] { ExpectQuotaDetailTrashed("[]", false, "p1"); }},
        MismatchRow{"ObjectIntoBoolIsTrueWhenNotEmpty",
                    [] { ExpectQuotaDetailTrashed(R"({"a":1})", true, "p1"); }},
        MismatchRow{"EmptyObjectIntoBoolIsFalse", [] { ExpectQuotaDetailTrashed("{}", false, "p1"); }},
        MismatchRow{"NullIntoBoolIsFalse", [] { ExpectQuotaDetailTrashed("null", false, "p1"); }},
        MismatchRow{"StringIntoEveryBooleanFieldIsTrue",
                    [] {
                        const auto file = ReadReply<MkFile>(R"({"needRun":"no","name":"n"})");
                        EXPECT_TRUE(file->needRun);
                        const auto removal = ReadReply<NspDelFiles>(
                            R"({"nsp_svc":"s","files":"[]","reserve":"False","access_token":"t"})");
                        EXPECT_TRUE(removal->reserve);
                        EXPECT_EQ(removal->access_token, "t");
                    }},
        // anything into a string field
        MismatchRow{"IntegerIntoStringIsItsText",
                    [] {
                        const auto record = ReadReply<FolderOrFilesInfo>(R"({"size":1024,"name":"a.jpg"})");
                        EXPECT_EQ(record->size, "1024");
                        EXPECT_EQ(record->name, "a.jpg");
                    }},
        MismatchRow{"RealIntoStringIsItsText",
                    [] {
                        const auto record = ReadReply<FolderOrFilesInfo>(R"({"size":1.5})");
                        EXPECT_EQ(record->size, "1.5");
                    }},
        MismatchRow{"BooleanIntoStringIsTrueOrFalse",
                    [] {
                        const auto record = ReadReply<QuotaDetailBk>(R"({"trashed":true,"kind":"k"})");
                        EXPECT_EQ(record->trashed, "true");
                        EXPECT_EQ(record->kind, "k");
                        const auto other = ReadReply<QuotaDetailBk>(R"({"trashed":false})");
                        EXPECT_EQ(other->trashed, "false");
                    }},
        MismatchRow{"ArrayIntoStringStopsTheRead", [] { ExpectDeviceIdStops(R"(["a"])"); }},
        MismatchRow{"ObjectIntoStringStopsTheRead", [] { ExpectDeviceIdStops(R"({"a":"b"})"); }},
        // a wrong type inside a list keeps the elements before it, and the
        // element being read is already in place only if it was appended
        MismatchRow{
            "FaultInsideAListKeepsEarlierElements",
            [] {
                const auto record = ReadReply<QueryAllBackUpResponse>(
                    R"({"result":0,"info":"ok","backupRecords":[{"backupId":"a"},{"status":"bad"}]})");
                EXPECT_EQ(record->result, 0);
                EXPECT_EQ(record->info, "ok");
                ASSERT_EQ(record->backupRecords.size(), 1u);
                EXPECT_EQ(record->backupRecords[0].backupId, "a");
            }},
        // a nested record of the wrong type stops the outer read too
        MismatchRow{"NestedRecordAsStringStopsTheRead",
                    [] {
                        const auto record =
                            ReadReply<BackupRecord>(R"({"device":"phone","status":2,"backupId":"b"})");
                        EXPECT_EQ(record->status, 0);
                        EXPECT_EQ(record->backupId, "");
                    }}),
    [](const ::testing::TestParamInfo<MismatchRow>& info) { return info.param.name; });

} // namespace
