// The event the backup worker and the backup deletion wait on while the host
// answers one of its messages.
#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "space_data/host_answer_event.h"
#include "win32/window_thread.h"

namespace {

constexpr UINT kVersion = WM_USER + 21;
constexpr UINT kDeviceList = WM_USER + 22;

// A host window that writes "v3" into the string it is handed and records
// the event handle of every message.
struct RecordingHost
{
    std::vector<HANDLE> events;

    LRESULT Answer(UINT msg, WPARAM wParam, LPARAM lParam)
    {
        if (msg != kVersion && msg != kDeviceList) {
            return 0;
        }
        const auto event = reinterpret_cast<HANDLE>(wParam);
        events.push_back(event);
        if (msg == kVersion) {
            *reinterpret_cast<std::string*>(lParam) = "v3";
        }
        SetEvent(event);
        return 0;
    }
};

// A host window on its own thread that answers at once.
class AnsweringHost : public ::testing::Test
{
protected:
    RecordingHost host_;
    WindowThread window_{
        [this](HWND, UINT msg, WPARAM wParam, LPARAM lParam) { return host_.Answer(msg, wParam, lParam); }};
};

} // namespace

TEST_F(AnsweringHost, AskHandsTheHostTheEventAndTheDataAndReturnsWithItsAnswer)
{
    std::string version;
    HostAnswerEvent event;
    event.Ask(window_.Hwnd(), kVersion, &version);
    EXPECT_EQ(version, "v3");
    ASSERT_EQ(host_.events.size(), 1u);
    EXPECT_NE(host_.events.front(), nullptr);
}

TEST(HostAnswerEvent, AskWaitsForAHostThatSetsTheEventLater)
{
    std::atomic<bool> answered{false};
    std::thread lateAnswer;
    WindowThread window([&](HWND, UINT msg, WPARAM wParam, LPARAM) -> LRESULT {
        if (msg == kVersion) {
            const auto event = reinterpret_cast<HANDLE>(wParam);
            lateAnswer = std::thread([event, &answered] {
                Sleep(50);
                answered = true;
                SetEvent(event);
            });
        }
        return 0;
    });
    std::string version;
    {
        HostAnswerEvent event;
        event.Ask(window.Hwnd(), kVersion, &version);
        EXPECT_TRUE(answered.load()) << "Ask returned before the host set the event";
    }
    lateAnswer.join();
}

TEST_F(AnsweringHost, MessagesOfOneQueryShareTheEvent)
{
    std::string version;
    std::vector<int> devices;
    HostAnswerEvent event;
    event.Ask(window_.Hwnd(), kVersion, &version);
    event.Ask(window_.Hwnd(), kDeviceList, &devices);
    ASSERT_EQ(host_.events.size(), 2u);
    EXPECT_EQ(host_.events[0], host_.events[1]);
}

TEST_F(AnsweringHost, TheEventIsClosedWhenTheHolderGoes)
{
    std::string version;
    {
        HostAnswerEvent event;
        event.Ask(window_.Hwnd(), kVersion, &version);
    }
    ASSERT_EQ(host_.events.size(), 1u);
    EXPECT_FALSE(CloseHandle(host_.events.front())) << "the holder left its event open";
}
