#include "foundation/advanced_enum.h"

#include <atomic>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "gbk_text.h"
#include "trace_id_check.h"

namespace {

AdvancedIntEnumType::AttributeEntry DescriptionEntry(const std::string& text)
{
    return {"DescriptionAttribute", std::make_shared<Description>(text)};
}

// The five characters in front of "_11_", or the whole text if there are fewer.
std::string TraceCode(const std::string& traceId)
{
    return traceId.substr(0, 5);
}

} // namespace

TEST(AttributeKeys, HaveTheirFixedSpellings)
{
    EXPECT_STREQ(kDescriptionAttributeKey, "DescriptionAttribute");
    EXPECT_STREQ(kInterfaceDescriptionTypeKey, "InterfaceDescriptionType;");
    EXPECT_STREQ(kAnyBaseCmdTypeAttributeKey, "AnyBaseCmdTypeAttribute");
    EXPECT_STREQ(kBaseUplogTypeKey, "BaseUplogType");
    EXPECT_STREQ(kOperateEventAttributeKey, "OperateEventAttribute");
}

TEST(AttributeKeys, InterfaceKeyWithoutSemicolonFindsNothing)
{
    const size_t before = kCbsType0.attributes.size();
    EXPECT_EQ(kCbsType0.attributes.count("InterfaceDescriptionType"), 0u);
    EXPECT_EQ(FindAttribute<InterfaceDescriptionType>(kCbsType0, "InterfaceDescriptionType"), nullptr);
    EXPECT_EQ(kCbsType0.attributes.size(), before) << "a reader must never insert";

    const auto withSemicolon =
        FindAttribute<InterfaceDescriptionType>(kCbsType0, "InterfaceDescriptionType;");
    ASSERT_NE(withSemicolon, nullptr);
    EXPECT_EQ(withSemicolon->path, "/CloudBackup/ClientServlet");
}

TEST(Construction, DefaultTakesTheNextAutomaticId)
{
    const CbsType anchor(500);
    const CbsType next;
    EXPECT_EQ(next.id, 501);
    EXPECT_TRUE(next.attributes.empty());
    EXPECT_EQ(lastEnumId.load(), 501);
}

TEST(Construction, AttributeListTakesTheNextAutomaticId)
{
    const PimdsType anchor(40);
    const PimdsType next({DescriptionEntry("x"),
                          {"InterfaceDescriptionType;", std::make_shared<InterfaceDescriptionType>("/p")}});
    EXPECT_EQ(next.id, 41);
    EXPECT_EQ(next.attributes.size(), 2u);
    EXPECT_EQ(GetInterfacePathOf(next), "/p");
}

TEST(Construction, ExplicitIdMovesTheCounterEvenBackwards)
{
    const BasicType high(9000);
    const BasicType low(7, {DescriptionEntry("low")});
    EXPECT_EQ(low.id, 7);
    EXPECT_EQ(lastEnumId.load(), 7);
    const BasicType after;
    EXPECT_EQ(after.id, 8);
    const BasicType repeat(7);
    EXPECT_EQ(repeat.id, 7) << "repeated ids are not checked";
}

TEST(Construction, LogCodeWithCommandConsumesTwoIds)
{
    const UpLogType anchor(100);
    const UpLogType withCommand(
        {DescriptionEntry("d"),
         {"AnyBaseCmdTypeAttribute", std::make_shared<AnyBaseCmdType>(kAnyBaseCmd2116)}});
    EXPECT_EQ(withCommand.id, 102);
    const UpLogType plain({DescriptionEntry("e")});
    EXPECT_EQ(plain.id, 103);
}

TEST(LastEnumId, CopyLeavesTheCounterAlone)
{
    const UpLogType anchor(300);
    const UpLogType copy(kUpLogType74);
    EXPECT_EQ(lastEnumId.load(), 300);
    EXPECT_EQ(copy.id, 74);

    UpLogType assigned(301);
    assigned = kUpLogType10004;
    EXPECT_EQ(lastEnumId.load(), 301);
    EXPECT_EQ(assigned.id, 10004);
}

TEST(LastEnumId, ConstructingAnyBaseCmdTypeAdvancesItByOne)
{
    const AnyBaseCmd anchor(600);
    const AnyBaseCmdType attribute(kAnyBaseCmd10203);
    EXPECT_EQ(lastEnumId.load(), 601);
    EXPECT_EQ(attribute.cmd.id, 10203) << "the attribute keeps the source's id";
    EXPECT_EQ(GetDescriptionOf(attribute.cmd), Utf8ToGbk("pc客户端操作"));
}

TEST(LastEnumId, RequestObjectsOnWorkerThreadsLoseNoIncrement)
{
    constexpr int kThreads = 4;
    constexpr int kValuesPerThread = 1000000;
    const CbsType anchor(0);
    std::atomic<int> ready{0};
    std::vector<std::thread> workers;
    for (int t = 0; t < kThreads; ++t) {
        workers.emplace_back([&ready] {
            // Start together so that the increments really overlap.
            ready.fetch_add(1);
            while (ready.load() < kThreads) {
                std::this_thread::yield();
            }
            for (int i = 0; i < kValuesPerThread; ++i) {
                const AdvancedIntEnumType defaultMade;
                (void)defaultMade;
            }
        });
    }
    for (std::thread& worker : workers) {
        worker.join();
    }
    EXPECT_EQ(lastEnumId.load(), kThreads * kValuesPerThread);
}

TEST(Copy, SharesTheAttributeObjects)
{
    const BasicType copy(kBasicType10207);
    ASSERT_EQ(copy.attributes.size(), kBasicType10207.attributes.size());
    for (const auto& [key, attribute] : kBasicType10207.attributes) {
        EXPECT_EQ(copy.attributes.at(key).get(), attribute.get()) << key;
    }
}

TEST(Equality, BasicType10207EqualsItsCopy)
{
    const BasicType copy(kBasicType10207);
    EXPECT_NE(&copy, &kBasicType10207);
    EXPECT_TRUE(copy == kBasicType10207);
    EXPECT_FALSE(copy != kBasicType10207);
}

TEST(Equality, SameIdInAnotherEnumerationCompareEqual)
{
    EXPECT_TRUE(kCbsType0 == kPimdsType0);
    EXPECT_FALSE(kCbsType0 == kCbsType1);
    EXPECT_TRUE(kNspRequestType3 == kNspRequestType3);
}

TEST(Readers, MissingKeyAndWrongClassReadTheSame)
{
    EXPECT_EQ(GetInterfacePathOf(kNspRequestType0), "");

    const CbsType wrongClass(1,
                             {{"InterfaceDescriptionType;", std::make_shared<Description>("/not/a/path")}});
    EXPECT_EQ(GetInterfacePathOf(wrongClass), "");
    EXPECT_EQ(FindAttribute<InterfaceDescriptionType>(wrongClass, "InterfaceDescriptionType;"), nullptr);
    EXPECT_EQ(wrongClass.attributes.size(), 1u);
}

TEST(TraceId, HasCodeFixedVersionSecondsAndEightDigits)
{
    const int64_t before = NowSeconds();
    const std::string traceId = MakeTraceId(kUpLogType10004);
    const int64_t after = NowSeconds();
    EXPECT_TRUE(IsTraceIdWithCode(traceId, "10004", before, after));
}

TEST(TraceId, LogCodeWithCommandTakesTheCommandsCode)
{
    EXPECT_EQ(kUpLogType74.id, 74);
    EXPECT_EQ(GetDescriptionOf(kUpLogType74), Utf8ToGbk("图库上传"));
    EXPECT_EQ(TraceCode(MakeTraceId(kUpLogType74)), "02116");
}

TEST(TraceId, LogCodeWithoutCommandTakesItsOwnId)
{
    EXPECT_EQ(GetDescriptionOf(kUpLogType10004), Utf8ToGbk("客户端空间查询"));
    EXPECT_EQ(TraceCode(MakeTraceId(kUpLogType10004)), "10004");
}

TEST(TraceId, ShortCodeIsPaddedWithZerosToFive)
{
    EXPECT_EQ(TraceCode(MakeTraceId(kUpLogType4100)), "04100");
}

TEST(TraceId, NegativeCodeKeepsItsSignAfterTheZeros)
{
    EXPECT_EQ(TraceCode(MakeTraceId(kUpLogTypeMinus1)), "000-1");
    const CbsType negative(-12345);
    EXPECT_EQ(MakeTraceId(negative).substr(0, 10), "-12345_11_") << "long codes are not cut";
}

TEST(TraceId, CodeZeroGivesNoTraceId)
{
    EXPECT_EQ(MakeTraceId(kUpLogType0), "");
}

TEST(TraceId, CommandAttributeCountsOnlyOnLogCodes)
{
    const CbsType notALogCode(
        7, {{"AnyBaseCmdTypeAttribute", std::make_shared<AnyBaseCmdType>(kAnyBaseCmd2116)}});
    EXPECT_EQ(TraceCode(MakeTraceId(notALogCode)), "00007");
}

TEST(TraceId, EventWithoutCommandTakesItsOwnId)
{
    const OperateSpecialEventType noCommand(
        42, {{"OperateEventAttribute",
              std::make_shared<OperateEventAttribute>("t", nullptr, "", nullptr, "", "")}});
    EXPECT_EQ(TraceCode(MakeTraceId(noCommand)), "00042");
}

TEST(RequestTraceId, RequestWithoutLogRowFallsBackToMinusOne)
{
    const int64_t before = NowSeconds();
    const CbsType defaultMade;
    const std::string traceId = GetRequestTraceId(defaultMade);
    EXPECT_TRUE(IsTraceIdWithCode(traceId, "000-1", before, NowSeconds()));
}

TEST(RequestTraceId, WrongClassUnderLogKeyFallsBackToMinusOne)
{
    const CbsType wrongClass(3, {{"BaseUplogType", std::make_shared<Description>("x")}});
    EXPECT_EQ(TraceCode(GetRequestTraceId(wrongClass)), "000-1");
}

TEST(RequestTraceId, LogRowTaskCompleteSendsNoTraceId)
{
    const CbsType mappedToZero(3, {{"BaseUplogType", std::make_shared<BaseUplogType>(&kUpLogType0)}});
    EXPECT_EQ(GetRequestTraceId(mappedToZero), "");
}

TEST(GbkText, ConverterProducesGbkBytes)
{
    EXPECT_EQ(Utf8ToGbk("设置"), "\xc9\xe8\xd6\xc3");
    EXPECT_EQ(Utf8ToGbk("PC"), "PC");
}
