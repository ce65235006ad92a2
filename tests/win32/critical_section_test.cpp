#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

#include "platform/win32.h"

namespace {

// Initialises on construction and deletes on destruction, as code written
// against Win32 brackets a section.
struct Section
{
    CRITICAL_SECTION section;
    Section() { InitializeCriticalSection(&section); }
    ~Section() { DeleteCriticalSection(&section); }
};

// Another thread that enters the section (and leaves it at once). The test
// must let the section go before the contender is destroyed, which joins it.
class Contender
{
public:
    explicit Contender(CRITICAL_SECTION& section)
        : thread_([this, &section] {
              EnterCriticalSection(&section);
              entered_ = true;
              LeaveCriticalSection(&section);
          })
    {
    }
    ~Contender() { thread_.join(); }

    // True once it got in, waiting up to `waitMs` for that.
    bool Entered(int waitMs) const
    {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(waitMs);
        while (!entered_ && std::chrono::steady_clock::now() < deadline) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        return entered_;
    }

private:
    std::atomic<bool> entered_{false};
    std::thread thread_;
};

} // namespace

TEST(CriticalSection, OwnerMayEnterAgainWithoutBlocking)
{
    Section s;
    EnterCriticalSection(&s.section);
    EnterCriticalSection(&s.section); // would deadlock if not recursive
    EnterCriticalSection(&s.section);
    EXPECT_EQ(s.section.recursionCount, 3);
    LeaveCriticalSection(&s.section);
    LeaveCriticalSection(&s.section);
    LeaveCriticalSection(&s.section);
}

TEST(CriticalSection, StaysTakenUntilEveryEnterIsLeft)
{
    Section s;
    EnterCriticalSection(&s.section);
    EnterCriticalSection(&s.section);
    LeaveCriticalSection(&s.section);
    Contender other(s.section);
    EXPECT_FALSE(other.Entered(50)) << "one enter is still open";
    LeaveCriticalSection(&s.section);
    EXPECT_TRUE(other.Entered(2000));
}

TEST(CriticalSection, ExcludesOtherThreads)
{
    Section s;
    int unguarded = 0;
    std::atomic<int> inside{0};
    std::atomic<int> maxInside{0};
    std::vector<std::thread> workers;
    for (int t = 0; t < 4; ++t) {
        workers.emplace_back([&] {
            for (int i = 0; i < 2000; ++i) {
                EnterCriticalSection(&s.section);
                const int now = ++inside;
                int seen = maxInside.load();
                while (now > seen && !maxInside.compare_exchange_weak(seen, now)) {
                }
                ++unguarded;
                --inside;
                LeaveCriticalSection(&s.section);
            }
        });
    }
    for (auto& worker : workers) {
        worker.join();
    }
    EXPECT_EQ(unguarded, 8000);
    EXPECT_EQ(maxInside.load(), 1);
}

TEST(CriticalSection, LeaveByAnotherThreadIsIgnored)
{
    Section s;
    EnterCriticalSection(&s.section);
    std::thread([&] { LeaveCriticalSection(&s.section); }).join();
    EXPECT_EQ(s.section.owningThread.load(), GetCurrentThreadId());
    Contender other(s.section);
    EXPECT_FALSE(other.Entered(50));
    LeaveCriticalSection(&s.section);
    EXPECT_TRUE(other.Entered(2000));
}

TEST(CriticalSection, SecondInitialisationWhileHeldKeepsTheLock)
{
    Section s;
    EnterCriticalSection(&s.section);
    InitializeCriticalSection(&s.section);
    Contender other(s.section);
    EXPECT_FALSE(other.Entered(50));
    LeaveCriticalSection(&s.section);
    EXPECT_TRUE(other.Entered(2000));
}
