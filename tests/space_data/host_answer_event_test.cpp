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

} // namespace

TEST(HostAnswerEvent, AskHandsTheHostTheEventAndTheDataAndReturnsWithItsAnswer)
{
    RecordingHost host;
    WindowThread window(
        [&host](HWND, UINT msg, WPARAM wParam, LPARAM lParam) { return host.Answer(msg, wParam, lParam); });
    std::string version;
    HostAnswerEvent event;
    event.Ask(window.Hwnd(), kVersion, &version);
    EXPECT_EQ(version, "v3");
    ASSERT_EQ(host.events.size(), 1u);
    EXPECT_NE(host.events.front(), nullptr);
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

TEST(HostAnswerEvent, MessagesOfOneQueryShareTheEvent)
{
    RecordingHost host;
    WindowThread window(
        [&host](HWND, UINT msg, WPARAM wParam, LPARAM lParam) { return host.Answer(msg, wParam, lParam); });
    std::string version;
    std::vector<int> devices;
    HostAnswerEvent event;
    event.Ask(window.Hwnd(), kVersion, &version);
    event.Ask(window.Hwnd(), kDeviceList, &devices);
    ASSERT_EQ(host.events.size(), 2u);
    EXPECT_EQ(host.events[0], host.events[1]);
}

TEST(HostAnswerEvent, TheEventIsClosedWhenTheHolderGoes)
{
    RecordingHost host;
    WindowThread window(
        [&host](HWND, UINT msg, WPARAM wParam, LPARAM lParam) { return host.Answer(msg, wParam, lParam); });
    std::string version;
    {
        HostAnswerEvent event;
        event.Ask(window.Hwnd(), kVersion, &version);
    }
    ASSERT_EQ(host.events.size(), 1u);
    EXPECT_FALSE(CloseHandle(host.events.front())) << "the holder left its event open";
}
