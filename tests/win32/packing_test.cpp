#include <gtest/gtest.h>

#include "platform/win32.h"

TEST(Packing, MakeLParamPutsXLowAndYHigh)
{
    const LPARAM point = MAKELPARAM(300, 20);
    EXPECT_EQ(LOWORD(point), 300);
    EXPECT_EQ(HIWORD(point), 20);
    EXPECT_EQ(point, 0x0014012C);
}

TEST(Packing, NegativeCoordinatesSurviveTheRoundTrip)
{
    const LPARAM point = MAKELPARAM(-5, -1);
    EXPECT_EQ(GET_X_LPARAM(point), -5);
    EXPECT_EQ(GET_Y_LPARAM(point), -1);
    EXPECT_EQ(LOWORD(point), 0xFFFB);
    EXPECT_GT(point, 0) << "packed through 32 bits, as on 64-bit Windows";
}

TEST(Packing, WheelDeltaIsSigned)
{
    EXPECT_EQ(GET_WHEEL_DELTA_WPARAM(MAKEWPARAM(0, -WHEEL_DELTA)), -WHEEL_DELTA);
    EXPECT_EQ(GET_WHEEL_DELTA_WPARAM(MAKEWPARAM(0, WHEEL_DELTA)), WHEEL_DELTA);
}

TEST(MessageValues, MatchWindows)
{
    struct Row
    {
        UINT value;
        UINT expected;
    };
    const Row rows[] = {
        {WM_CREATE, 0x0001},    {WM_DESTROY, 0x0002},    {WM_SIZE, 0x0005},      {WM_PAINT, 0x000F},
        {WM_CLOSE, 0x0010},     {WM_QUIT, 0x0012},       {WM_NCDESTROY, 0x0082}, {WM_KEYDOWN, 0x0100},
        {WM_CHAR, 0x0102},      {WM_TIMER, 0x0113},      {WM_MOUSEMOVE, 0x0200}, {WM_LBUTTONDOWN, 0x0201},
        {WM_LBUTTONUP, 0x0202}, {WM_MOUSEWHEEL, 0x020A}, {WM_USER, 0x0400},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(row.value, row.expected);
    }
    EXPECT_EQ(WAIT_TIMEOUT, 0x102u);
    EXPECT_EQ(INFINITE, 0xFFFFFFFFu);
    EXPECT_EQ(WAIT_FAILED, 0xFFFFFFFFu);
    EXPECT_EQ(WAIT_OBJECT_0, 0u);
}
