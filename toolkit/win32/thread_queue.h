#pragma once

// The message queue of one thread. Any thread may post, send, set timers and
// ask to quit; only the owning thread takes messages, runs what was sent to
// it and waits for work.
//
// Locking: each queue has one mutex. No code holds two queue mutexes at once,
// and no window procedure or external hook runs under a mutex, so procedures
// may post, send, destroy windows and run nested loops freely.

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "toolkit/win32/message_queue.h"

namespace toolkit_win32 {

class ThreadQueue;

struct WindowRecord
{
    HWND handle = nullptr;
    std::shared_ptr<ThreadQueue> owner;
    WindowProcedure procedure;
    bool alive = true;       // guarded by the owner's mutex
    bool destroying = false; // touched only on the owning thread
};

// One SendMessageW across threads, from the sender's wait to its answer.
struct SentCall
{
    std::shared_ptr<WindowRecord> window;
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    std::shared_ptr<ThreadQueue> sender;
    LRESULT result = 0; // guarded by the sender's mutex
    bool done = false;  // guarded by the sender's mutex
};

struct MessageFilter
{
    HWND window = nullptr; // null: every window and the thread's own messages
    UINT first = 0;
    UINT last = 0; // first = last = 0: every message

    bool TakesMessage(UINT message) const
    {
        return (first == 0 && last == 0) || (message >= first && message <= last);
    }
    bool Takes(HWND hwnd, UINT message) const
    {
        return (window == nullptr || window == hwnd) && TakesMessage(message);
    }
};

class ThreadQueue
{
public:
    using Clock = std::chrono::steady_clock;

    explicit ThreadQueue(DWORD threadId) : threadId_(threadId) {}
    ThreadQueue(const ThreadQueue&) = delete;
    ThreadQueue& operator=(const ThreadQueue&) = delete;

    DWORD ThreadId() const { return threadId_; }

    // --- Any thread ---

    // False when the queue's thread has ended or `target` (a window of this
    // queue, or null for a thread message) is gone.
    bool Post(const MSG& message, const WindowRecord* target);
    bool QueueSend(const std::shared_ptr<SentCall>& call);
    void PostQuit(int exitCode);

    // Window timers: false when the window is gone.
    bool SetWindowTimer(const WindowRecord& window, UINT_PTR id, std::chrono::milliseconds interval);
    // Thread timers (null window): replaces `id` if it is one, else makes a
    // fresh id. Returns the id, 0 when the thread has ended.
    UINT_PTR SetThreadTimer(UINT_PTR id, std::chrono::milliseconds interval);
    bool KillTimer(HWND hwnd, UINT_PTR id);

    // Called on the sender's queue by whoever answers one of its sends.
    void Complete(SentCall& call, LRESULT result);

    // --- Owning thread only ---

    void RunIncomingSends();
    // One message for the filter, sent messages run first; false when none.
    bool Take(MSG* message, const MessageFilter& filter, bool remove);
    // Returns when something may have arrived for the filter or a timer fell
    // due (one idle wait; callers loop).
    void WaitForWork(const MessageFilter& filter);
    // Blocks until `call` (sent by this thread) is answered, running the
    // messages other threads send here meanwhile.
    LRESULT WaitForReply(SentCall& call);
    // Milliseconds this thread may sleep; arms the wake when not 0.
    DWORD IdleTimeout();
    void SetEventSource(ExternalEventSource source);

    // After WM_NCDESTROY: drops what is queued for the window, stops its
    // timers and answers 0 to its pending senders.
    void ForgetWindow(WindowRecord& window);
    // The thread ends: its windows are gone and everything pending dropped.
    void Close(const std::vector<std::shared_ptr<WindowRecord>>& windows);

private:
    struct Timer
    {
        HWND window;
        UINT_PTR id;
        std::chrono::milliseconds interval;
        Clock::time_point due;
    };

    // Records a change and wakes the owner; unlocks `lock`.
    void NotifyOwner(std::unique_lock<std::mutex>& lock);
    bool HasWorkLocked(const MessageFilter& filter, Clock::time_point now) const;
    std::optional<Clock::time_point> NextTimerLocked(const MessageFilter& filter) const;
    void AnswerOrphans(std::vector<std::shared_ptr<SentCall>>& orphans);

    const DWORD threadId_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::uint64_t generation_ = 0;
    bool open_ = true;
    std::deque<MSG> posted_;
    std::deque<std::shared_ptr<SentCall>> incoming_;
    std::vector<Timer> timers_;
    UINT_PTR nextThreadTimerId_ = 1;
    bool quitPosted_ = false;
    int quitCode_ = 0;
    // Set while the owner sleeps in the external source; the next change
    // clears it and calls the wake hook, so each idle wait costs one wake.
    bool wakeArmed_ = false;
    std::shared_ptr<const std::function<void()>> wakeHook_;
    std::function<void(DWORD)> waitHook_; // owning thread only
};

} // namespace toolkit_win32
