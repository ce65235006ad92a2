// Loads take turns, and a turn ends when the window has read its result.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>

#include "toolkit/win32/message_queue.h"
#include "window/load_sequence.h"

namespace {

HWND MakeWindow()
{
    return CreateWindowHandle([](HWND, UINT, WPARAM, LPARAM) -> LRESULT { return 0; });
}

} // namespace

TEST(LoadSequence, ASecondLoadWaitsForTheFirstTurnToEnd)
{
    LoadSequence& sequence = LoadSequence::Instance();
    sequence.Announce();
    sequence.Acquire();
    std::atomic<bool> secondRan{false};
    sequence.Announce();
    std::thread second([&] {
        LoadTurn turn;
        secondRan = true;
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_FALSE(secondRan.load());
    sequence.Release();
    second.join();
    EXPECT_TRUE(secondRan.load());
    EXPECT_FALSE(sequence.Busy());
    EXPECT_TRUE(sequence.Idle());
}

TEST(LoadSequence, IsIdleOnlyWhenEveryAnnouncedLoadHasEnded)
{
    LoadSequence& sequence = LoadSequence::Instance();
    EXPECT_TRUE(sequence.Idle());
    sequence.Announce();
    EXPECT_FALSE(sequence.Idle());
    sequence.Announce();
    sequence.Withdraw();
    sequence.Acquire();
    EXPECT_FALSE(sequence.Idle());
    sequence.Release();
    EXPECT_TRUE(sequence.Idle());
}

TEST(LoadSequence, ATurnEndsWhenTheWindowHasHandledTheEndMessage)
{
    LoadSequence& sequence = LoadSequence::Instance();
    const HWND window = MakeWindow();
    sequence.Announce();
    sequence.Acquire();
    std::atomic<bool> returned{false};
    std::thread load([&] {
        sequence.WaitUntilConsumed(window);
        returned = true;
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(80));
    EXPECT_FALSE(returned.load());
    sequence.Consumed();
    load.join();
    EXPECT_TRUE(returned.load());
    sequence.Release();
    DestroyWindow(window);
}

TEST(LoadSequence, ATurnEndsWhenTheWindowIsGone)
{
    LoadSequence& sequence = LoadSequence::Instance();
    const HWND window = MakeWindow();
    sequence.Announce();
    sequence.Acquire();
    std::thread load([&] { sequence.WaitUntilConsumed(window); });
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    DestroyWindow(window);
    load.join();
    sequence.Release();
    EXPECT_FALSE(sequence.Busy());
}

TEST(LoadSequence, AConsumptionBeforeTheNextTurnDoesNotCarryOver)
{
    LoadSequence& sequence = LoadSequence::Instance();
    sequence.Consumed();
    sequence.Announce();
    sequence.Acquire();
    const HWND window = MakeWindow();
    std::atomic<bool> returned{false};
    std::thread load([&] {
        sequence.WaitUntilConsumed(window);
        returned = true;
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(80));
    EXPECT_FALSE(returned.load());
    DestroyWindow(window);
    load.join();
    sequence.Release();
}
