// The bar's numbers wait for their window, and a window that went away
// without taking them does not lose them unreleased.
#include <gtest/gtest.h>

#include "toolkit/win32/message_queue.h"
#include "window/display_handover.h"

namespace {

HWND MakeWindow()
{
    return CreateWindowHandle([](HWND, UINT, WPARAM, LPARAM) -> LRESULT { return 0; });
}

std::unique_ptr<SpaceDisplayData> Record(const std::string& total)
{
    auto data = std::make_unique<SpaceDisplayData>();
    data->total = total;
    return data;
}

SpaceDisplayData* PostedRecord()
{
    MSG msg{};
    while (::PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
        if (msg.message == WM_SPACE_SHOW_CLOUD)
            return reinterpret_cast<SpaceDisplayData*>(msg.lParam);
    }
    return nullptr;
}

} // namespace

TEST(DisplayHandover, APostedRecordWaitsUntilTheWindowTakesIt)
{
    DisplayHandover& handover = DisplayHandover::Instance();
    const HWND window = MakeWindow();
    ASSERT_TRUE(handover.Post(window, Record("50 GB")));
    EXPECT_EQ(handover.Waiting(), 1u);
    handover.ReleaseUntaken(window); // the window is there: nothing goes
    EXPECT_EQ(handover.Waiting(), 1u);
    SpaceDisplayData* posted = PostedRecord();
    ASSERT_NE(posted, nullptr);
    const std::unique_ptr<SpaceDisplayData> taken = handover.Take(posted);
    ASSERT_EQ(taken.get(), posted);
    EXPECT_EQ(taken->total, "50 GB");
    EXPECT_EQ(handover.Waiting(), 0u);
    DestroyWindow(window);
}

TEST(DisplayHandover, AFailedPostReleasesTheRecordAtOnce)
{
    DisplayHandover& handover = DisplayHandover::Instance();
    const HWND window = MakeWindow();
    DestroyWindow(window);
    EXPECT_FALSE(handover.Post(window, Record("50 GB")));
    EXPECT_EQ(handover.Waiting(), 0u);
}

TEST(DisplayHandover, WhatAWindowThatWentAwayNeverTookIsReleased)
{
    DisplayHandover& handover = DisplayHandover::Instance();
    const HWND window = MakeWindow();
    ASSERT_TRUE(handover.Post(window, Record("50 GB")));
    DestroyWindow(window);
    EXPECT_EQ(handover.Waiting(), 1u);
    handover.ReleaseUntaken(window);
    EXPECT_EQ(handover.Waiting(), 0u);
}

TEST(DisplayHandover, ARecordPostedAnotherWayIsTakenOverAsItIs)
{
    auto* record = Record("1 TB").release();
    const std::unique_ptr<SpaceDisplayData> taken = DisplayHandover::Instance().Take(record);
    EXPECT_EQ(taken.get(), record);
    EXPECT_EQ(DisplayHandover::Instance().Take(nullptr), nullptr);
}
