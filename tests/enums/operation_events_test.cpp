#include "foundation/advanced_enum.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "expected_catalogue.h"
#include "gbk_text.h"
#include "trace_id_check.h"

namespace {

// Compares every event of enumeration E, in definition order, with the
// published table: id, text, command, page, linked event, target and sub page.
template <class E> void ExpectEventTable(const char* table, const std::vector<ExpectedEvent>& expected)
{
    const std::vector<const E*>& rows = EnumRows<E>();
    ASSERT_EQ(rows.size(), expected.size()) << table;
    for (size_t i = 0; i < rows.size(); ++i) {
        const E& row = *rows[i];
        const ExpectedEvent& want = expected[i];
        SCOPED_TRACE(std::string(table) + " " + std::to_string(want.id));

        EXPECT_EQ(row.id, want.id);
        if (want.text == nullptr) {
            EXPECT_TRUE(row.attributes.empty());
        } else {
            EXPECT_EQ(row.attributes.size(), 1u);
            const auto event = FindAttribute<OperateEventAttribute>(row, "OperateEventAttribute");
            ASSERT_NE(event, nullptr);
            EXPECT_EQ(event->description, Utf8ToGbk(want.text));
            ASSERT_NE(event->cmd, nullptr);
            EXPECT_EQ(event->cmd->id, want.command);
            EXPECT_EQ(event->cmd, FindEnumRow<AnyBaseCmd>(want.command)) << "points to the static command";
            EXPECT_EQ(event->page, want.page);
            if (want.linkedEvent == kNoRow) {
                EXPECT_EQ(event->linkedEvent, nullptr);
            } else {
                EXPECT_EQ(event->linkedEvent, FindEnumRow<OperateBasicEventType>(want.linkedEvent));
                ASSERT_NE(event->linkedEvent, nullptr);
                EXPECT_EQ(event->linkedEvent->id, want.linkedEvent);
            }
            EXPECT_EQ(event->targetPage, want.targetPage);
            EXPECT_EQ(event->subPage, want.subPage);
        }

        const int64_t before = NowSeconds();
        EXPECT_TRUE(IsTraceIdWithCode(MakeTraceId(row), want.traceCode, before, NowSeconds()));
    }
}

} // namespace

TEST(OperationEvents, BasicEventRowsMatch)
{
    ExpectEventTable<OperateBasicEventType>("OperateBasicEventType", kExpectedOperateBasicEventType);
}

TEST(OperationEvents, FileTranslateEventRowsMatch)
{
    ExpectEventTable<OperateFileTranslateEventType>("OperateFileTranslateEventType",
                                                    kExpectedOperateFileTranslateEventType);
}

TEST(OperationEvents, SwitchPageEventRowsMatch)
{
    ExpectEventTable<OperateSwitchPageEventType>("OperateSwitchPageEventType",
                                                 kExpectedOperateSwitchPageEventType);
}

TEST(OperationEvents, SwitchModuleEventRowsMatch)
{
    ExpectEventTable<OperateSwitchModuleEventType>("OperateSwitchModuleEventType",
                                                   kExpectedOperateSwitchModuleEventType);
}

TEST(OperationEvents, SpecialEventRowsMatch)
{
    ExpectEventTable<OperateSpecialEventType>("OperateSpecialEventType", kExpectedOperateSpecialEventType);
}

TEST(OperationEvents, FiveTablesHold206Rows)
{
    const size_t total =
        EnumRows<OperateBasicEventType>().size() + EnumRows<OperateFileTranslateEventType>().size() +
        EnumRows<OperateSwitchPageEventType>().size() + EnumRows<OperateSwitchModuleEventType>().size() +
        EnumRows<OperateSpecialEventType>().size();
    EXPECT_EQ(total, 206u);
    EXPECT_EQ(EnumRows<OperateBasicEventType>().size(), 124u);
}

TEST(OperationEvents, FirstValueIsMinusOneAndTheNextAutomaticIdIsZero)
{
    const OperateBasicEventType* first = EnumRows<OperateBasicEventType>().front();
    EXPECT_EQ(first, &kOperateBasicEventTypeMinus1);
    EXPECT_EQ(first->id, -1);
    EXPECT_TRUE(first->attributes.empty());
    EXPECT_EQ(EnumRows<OperateBasicEventType>()[1]->id, 0);

    // The same rule, replayed: an explicit -1 makes the next automatic id 0.
    const OperateBasicEventType start(-1);
    const OperateBasicEventType next(
        {{"OperateEventAttribute",
          std::make_shared<OperateEventAttribute>("x", &kAnyBaseCmd10203, "Login", nullptr, "", "")}});
    EXPECT_EQ(next.id, 0);
}

TEST(OperationEvents, ProgramStartIsTheFirstRowWithAttributesAndHasIdZero)
{
    const auto event = FindAttribute<OperateEventAttribute>(kOperateBasicEventType0, "OperateEventAttribute");
    ASSERT_NE(event, nullptr);
    EXPECT_EQ(kOperateBasicEventType0.id, 0);
    EXPECT_EQ(event->description, Utf8ToGbk("程序启动"));
}

TEST(OperationEvents, LastRowOfTheFiveTablesHasId204)
{
    const OperateSpecialEventType* last = EnumRows<OperateSpecialEventType>().back();
    EXPECT_EQ(last->id, 204);
    const auto event = FindAttribute<OperateEventAttribute>(*last, "OperateEventAttribute");
    ASSERT_NE(event, nullptr);
    EXPECT_EQ(event->description, Utf8ToGbk("关闭云盘文件夹弹框"));
}

TEST(OperationEvents, TwoConfirmSwitchAccountRowsAreDifferentEvents)
{
    const auto first =
        FindAttribute<OperateEventAttribute>(kOperateBasicEventType101, "OperateEventAttribute");
    const auto second =
        FindAttribute<OperateEventAttribute>(kOperateBasicEventType103, "OperateEventAttribute");
    ASSERT_NE(first, nullptr);
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(first->description, Utf8ToGbk("确认切换账号"));
    EXPECT_EQ(first->description, second->description);
    EXPECT_NE(kOperateBasicEventType101.id, kOperateBasicEventType103.id);
    EXPECT_FALSE(kOperateBasicEventType101 == kOperateBasicEventType103);
}

TEST(OperationEvents, TraceIdCarriesTheCommandOfTheEvent)
{
    const int64_t before = NowSeconds();
    EXPECT_TRUE(IsTraceIdWithCode(MakeTraceId(kOperateBasicEventType0), "10203", before, NowSeconds()));
    EXPECT_TRUE(
        IsTraceIdWithCode(MakeTraceId(kOperateSwitchModuleEventType189), "11401", before, NowSeconds()));
    EXPECT_TRUE(IsTraceIdWithCode(MakeTraceId(kOperateBasicEventType43), "02114", before, NowSeconds()));
}

TEST(OperationEvents, ClosingEventsPointToTheEventThatOpened)
{
    const auto leaveSpace =
        FindAttribute<OperateEventAttribute>(kOperateSwitchModuleEventType189, "OperateEventAttribute");
    ASSERT_NE(leaveSpace, nullptr);
    EXPECT_EQ(leaveSpace->linkedEvent, &kOperateBasicEventType69);
    const auto closeUpload =
        FindAttribute<OperateEventAttribute>(kOperateSwitchModuleEventType178, "OperateEventAttribute");
    ASSERT_NE(closeUpload, nullptr);
    EXPECT_EQ(closeUpload->linkedEvent, nullptr);
}
