#pragma once

#include <functional>
#include <future>
#include <thread>

#include "toolkit/win32/message_queue.h"

// A thread that owns one window and pumps its queue until stopped, the way a
// toolkit window thread does.
class WindowThread
{
public:
    static constexpr UINT kStopLoop = WM_APP + 0x100;

    explicit WindowThread(WindowProcedure procedure)
    {
        std::promise<void> ready;
        auto started = ready.get_future();
        thread_ = std::thread([this, &ready, procedure = std::move(procedure)]() mutable {
            threadId_ = GetCurrentThreadId();
            hwnd_ = CreateWindowHandle(std::move(procedure));
            ready.set_value();
            MSG msg{};
            while (GetMessageW(&msg, nullptr, 0, 0) > 0) {
                if (msg.hwnd == nullptr && msg.message == kStopLoop) {
                    PostQuitMessage(0);
                    continue;
                }
                DispatchMessageW(&msg);
            }
            if (IsWindow(hwnd_)) {
                DestroyWindow(hwnd_);
            }
        });
        started.wait();
    }

    WindowThread(const WindowThread&) = delete;
    WindowThread& operator=(const WindowThread&) = delete;

    ~WindowThread() { Stop(); }

    void Stop()
    {
        if (thread_.joinable()) {
            PostThreadMessageW(threadId_, kStopLoop, 0, 0);
            thread_.join();
        }
    }

    HWND Hwnd() const { return hwnd_; }
    DWORD ThreadId() const { return threadId_; }

private:
    std::thread thread_;
    HWND hwnd_ = nullptr;
    DWORD threadId_ = 0;
};
