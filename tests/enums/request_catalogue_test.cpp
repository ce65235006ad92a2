#include "foundation/advanced_enum.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "expected_catalogue.h"
#include "gbk_text.h"
#include "trace_id_check.h"

namespace {

std::string RowName(const char* table, int32_t id)
{
    return std::string(table) + " " + std::to_string(id);
}

// Compares every row of request enumeration E, in definition order, with the
// published table: id, path or its absence, log row and trace code.
template <class E> void ExpectRequestTable(const char* table, const std::vector<ExpectedRequest>& expected)
{
    const std::vector<const E*>& rows = EnumRows<E>();
    ASSERT_EQ(rows.size(), expected.size()) << table;
    for (size_t i = 0; i < rows.size(); ++i) {
        const E& row = *rows[i];
        const ExpectedRequest& want = expected[i];
        SCOPED_TRACE(RowName(table, want.id));

        EXPECT_EQ(row.id, want.id);

        const auto path = FindAttribute<InterfaceDescriptionType>(row, "InterfaceDescriptionType;");
        if (want.path == nullptr) {
            EXPECT_EQ(row.attributes.count("InterfaceDescriptionType;"), 0u);
            EXPECT_EQ(GetInterfacePathOf(row), "");
        } else {
            ASSERT_NE(path, nullptr);
            EXPECT_EQ(path->path, want.path);
            EXPECT_EQ(GetInterfacePathOf(row), want.path);
        }

        const auto logRow = FindAttribute<BaseUplogType>(row, "BaseUplogType");
        if (want.logRow == kNoRow) {
            EXPECT_EQ(row.attributes.count("BaseUplogType"), 0u);
        } else {
            ASSERT_NE(logRow, nullptr);
            ASSERT_NE(logRow->upLog, nullptr);
            EXPECT_EQ(logRow->upLog->id, want.logRow);
            EXPECT_EQ(GetDescriptionOf(*logRow->upLog), Utf8ToGbk(want.logRowText));
        }

        size_t expectedAttributes = (want.path != nullptr ? 1 : 0) + (want.logRow != kNoRow ? 1 : 0);
        EXPECT_EQ(row.attributes.size(), expectedAttributes) << "a request row has no other columns";

        const int64_t before = NowSeconds();
        const std::string traceId = GetRequestTraceId(row);
        EXPECT_TRUE(IsTraceIdWithCode(traceId, want.traceCode, before, NowSeconds()));
    }
}

} // namespace

TEST(CommandTable, EveryRowHasItsIdTextAndCode)
{
    const std::vector<const AnyBaseCmd*>& rows = EnumRows<AnyBaseCmd>();
    ASSERT_EQ(rows.size(), 20u);
    ASSERT_EQ(kExpectedCommands.size(), 20u);
    for (size_t i = 0; i < rows.size(); ++i) {
        const AnyBaseCmd& row = *rows[i];
        const ExpectedCommand& want = kExpectedCommands[i];
        SCOPED_TRACE(RowName("AnyBaseCmd", want.id));
        EXPECT_EQ(row.id, want.id);
        EXPECT_EQ(row.attributes.size(), 1u);
        EXPECT_EQ(GetDescriptionOf(row), Utf8ToGbk(want.text));
        const int64_t before = NowSeconds();
        EXPECT_TRUE(IsTraceIdWithCode(MakeTraceId(row), want.traceCode, before, NowSeconds()));
    }
}

TEST(CommandTable, RepeatedTextsAreDifferentCommands)
{
    EXPECT_EQ(GetDescriptionOf(kAnyBaseCmd2114), GetDescriptionOf(kAnyBaseCmd2116));
    EXPECT_FALSE(kAnyBaseCmd2114 == kAnyBaseCmd2116);
    EXPECT_EQ(GetDescriptionOf(kAnyBaseCmd10401), GetDescriptionOf(kAnyBaseCmd10501));
    EXPECT_FALSE(kAnyBaseCmd10401 == kAnyBaseCmd10501);
}

TEST(LogCodeTable, EveryRowHasItsIdTextCommandAndCode)
{
    const std::vector<const UpLogType*>& rows = EnumRows<UpLogType>();
    ASSERT_EQ(rows.size(), 144u);
    ASSERT_EQ(kExpectedLogCodes.size(), 144u);
    for (size_t i = 0; i < rows.size(); ++i) {
        const UpLogType& row = *rows[i];
        const ExpectedLogCode& want = kExpectedLogCodes[i];
        SCOPED_TRACE(RowName("UpLogType", want.id));
        EXPECT_EQ(row.id, want.id);

        if (want.text == nullptr) {
            EXPECT_TRUE(row.attributes.empty());
        } else {
            const auto description = FindAttribute<Description>(row, "DescriptionAttribute");
            ASSERT_NE(description, nullptr);
            EXPECT_EQ(description->text, Utf8ToGbk(want.text));
        }

        const auto command = FindAttribute<AnyBaseCmdType>(row, "AnyBaseCmdTypeAttribute");
        if (want.command == kNoRow) {
            EXPECT_EQ(row.attributes.count("AnyBaseCmdTypeAttribute"), 0u);
        } else {
            ASSERT_NE(command, nullptr);
            EXPECT_EQ(command->cmd.id, want.command);
            const AnyBaseCmd* source = FindEnumRow<AnyBaseCmd>(want.command);
            ASSERT_NE(source, nullptr);
            EXPECT_EQ(GetDescriptionOf(command->cmd), GetDescriptionOf(*source));
        }

        const int64_t before = NowSeconds();
        EXPECT_TRUE(IsTraceIdWithCode(MakeTraceId(row), want.traceCode, before, NowSeconds()));
    }
}

TEST(LogCodeTable, CancelSubscriptionRowContinuesFromTheLastCommand)
{
    EXPECT_EQ(kUpLogType12009.id, 12009);
    EXPECT_EQ(GetDescriptionOf(kUpLogType12009), Utf8ToGbk("取消订阅"));
    const auto logRow = FindAttribute<BaseUplogType>(kSyncDriveType0, "BaseUplogType");
    ASSERT_NE(logRow, nullptr);
    EXPECT_EQ(logRow->upLog, &kUpLogType12009);
    EXPECT_EQ(GetRequestTraceId(kSyncDriveType0).substr(0, 5), "12003");
}

TEST(RequestCatalogue, NspRequestTypeRowsMatch)
{
    ExpectRequestTable<NspRequestType>("NspRequestType", kExpectedNspRequestType);
}

TEST(RequestCatalogue, CbsTypeRowsMatch)
{
    ExpectRequestTable<CbsType>("CbsType", kExpectedCbsType);
}

TEST(RequestCatalogue, PimdsTypeRowsMatch)
{
    ExpectRequestTable<PimdsType>("PimdsType", kExpectedPimdsType);
}

TEST(RequestCatalogue, PimDataVerionTypeRowsMatch)
{
    ExpectRequestTable<PimDataVerionType>("PimDataVerionType", kExpectedPimDataVerionType);
}

TEST(RequestCatalogue, FamilyShareTypeRowsMatch)
{
    ExpectRequestTable<FamilyShareType>("FamilyShareType", kExpectedFamilyShareType);
}

TEST(RequestCatalogue, CloudPhotoV2InterfaceTypeRowsMatch)
{
    ExpectRequestTable<CloudPhotoV2InterfaceType>("CloudPhotoV2InterfaceType",
                                                  kExpectedCloudPhotoV2InterfaceType);
}

TEST(RequestCatalogue, CloudPhotoInterfaceTypeRowsMatch)
{
    ExpectRequestTable<CloudPhotoInterfaceType>("CloudPhotoInterfaceType", kExpectedCloudPhotoInterfaceType);
}

TEST(RequestCatalogue, CloudPhotoRequestTypeRowsMatch)
{
    ExpectRequestTable<CloudPhotoRequestType>("CloudPhotoRequestType", kExpectedCloudPhotoRequestType);
}

TEST(RequestCatalogue, DriveRequestTypeRowsMatch)
{
    ExpectRequestTable<DriveRequestType>("DriveRequestType", kExpectedDriveRequestType);
}

TEST(RequestCatalogue, SyncDriveTypeRowsMatch)
{
    ExpectRequestTable<SyncDriveType>("SyncDriveType", kExpectedSyncDriveType);
}

TEST(RequestCatalogue, BusinessTypeRowsMatch)
{
    ExpectRequestTable<BusinessType>("BusinessType", kExpectedBusinessType);
}

TEST(RequestCatalogue, BasicRequestTypeRowsMatch)
{
    ExpectRequestTable<BasicRequestType>("BasicRequestType", kExpectedBasicRequestType);
}

TEST(RequestCatalogue, PortalRequestTypeRowsMatch)
{
    ExpectRequestTable<PortalRequestType>("PortalRequestType", kExpectedPortalRequestType);
}

TEST(RequestCatalogue, PortalInferfaceTypeRowsMatch)
{
    ExpectRequestTable<PortalInferfaceType>("PortalInferfaceType", kExpectedPortalInferfaceType);
}

TEST(RequestCatalogue, BasicTypeRowsMatch)
{
    ExpectRequestTable<BasicType>("BasicType", kExpectedBasicType);
}

TEST(RequestCatalogue, BasicTypeLogRowsAreOffByOneFrom10210)
{
    const auto codeOf = [](const BasicType& row) { return GetRequestTraceId(row).substr(0, 5); };
    EXPECT_EQ(codeOf(kBasicType10209), "10209");
    EXPECT_EQ(codeOf(kBasicType10210), "10209");
    EXPECT_EQ(codeOf(kBasicType10211), "10210");
    EXPECT_EQ(codeOf(kBasicType10212), "10211");
    EXPECT_EQ(FindAttribute<BaseUplogType>(kBasicType10210, "BaseUplogType")->upLog,
              FindAttribute<BaseUplogType>(kBasicType10209, "BaseUplogType")->upLog);
}

TEST(RequestCatalogue, CloudPhotoInterface3TracesUnderTheGalleryCommand)
{
    const auto logRow = FindAttribute<BaseUplogType>(kCloudPhotoInterfaceType3, "BaseUplogType");
    ASSERT_NE(logRow, nullptr);
    EXPECT_EQ(logRow->upLog->id, 74);
    EXPECT_EQ(GetRequestTraceId(kCloudPhotoInterfaceType3).substr(0, 5), "02116");
}

TEST(RequestCatalogue, PortalInterface0SendsTheSameCodeAsNoLogRow)
{
    const auto logRow = FindAttribute<BaseUplogType>(kPortalInferfaceType0, "BaseUplogType");
    ASSERT_NE(logRow, nullptr);
    EXPECT_EQ(logRow->upLog->id, -1);
    EXPECT_EQ(GetDescriptionOf(*logRow->upLog), Utf8ToGbk("无操作"));
    EXPECT_EQ(GetRequestTraceId(kPortalInferfaceType0).substr(0, 5), "000-1");
    EXPECT_EQ(GetRequestTraceId(kNspRequestType4).substr(0, 5), "000-1");
}

TEST(RequestCatalogue, NspRequest3HasNeitherAttribute)
{
    EXPECT_EQ(kNspRequestType3.id, 3);
    EXPECT_TRUE(kNspRequestType3.attributes.empty());
    EXPECT_EQ(GetInterfacePathOf(kNspRequestType3), "");
    const int64_t before = NowSeconds();
    EXPECT_TRUE(IsTraceIdWithCode(GetRequestTraceId(kNspRequestType3), "000-1", before, NowSeconds()));
}

TEST(RequestCatalogue, PortalRowIsFoundAfterCastingToItsEnumeration)
{
    const AdvancedIntEnumType& held = kPortalInferfaceType6;
    const auto* portal = dynamic_cast<const PortalInferfaceType*>(&held);
    ASSERT_NE(portal, nullptr);
    EXPECT_TRUE(*portal == kPortalInferfaceType6);
    EXPECT_EQ(dynamic_cast<const BasicType*>(&held), nullptr);
}

TEST(EnumRowLookup, FindsByIdAndReportsMissing)
{
    EXPECT_EQ(FindEnumRow<BasicType>(10207), &kBasicType10207);
    EXPECT_EQ(FindEnumRow<BasicType>(0), nullptr);
    EXPECT_EQ(FindEnumRow<UpLogType>(-2), &kUpLogTypeMinus2);
}
