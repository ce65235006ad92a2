#include "toolkit/win32/thread_queue.h"

#include <algorithm>

namespace toolkit_win32 {
namespace {

// Windows does not fire timers more often than this; the space bar asks for
// exactly this period.
constexpr std::chrono::milliseconds kMinimumTimerInterval{10};

std::chrono::milliseconds ClampInterval(std::chrono::milliseconds interval)
{
    return std::max(interval, kMinimumTimerInterval);
}

// Rounded up, so that a loop woken at the deadline finds the timer due
// instead of waking again a fraction of a millisecond early.
DWORD MillisecondsUntil(ThreadQueue::Clock::time_point deadline, ThreadQueue::Clock::time_point now)
{
    if (deadline <= now) {
        return 0;
    }
    const auto remaining = std::chrono::ceil<std::chrono::milliseconds>(deadline - now).count();
    return static_cast<DWORD>(std::min<long long>(remaining, INFINITE - 1));
}

} // namespace

void ThreadQueue::NotifyOwner(std::unique_lock<std::mutex>& lock)
{
    ++generation_;
    std::shared_ptr<const std::function<void()>> wake;
    // A change made by the owner itself (say, the wait hook posting input it
    // translated) needs no wake: the owner is not asleep.
    if (wakeArmed_ && GetCurrentThreadId() != threadId_) {
        wakeArmed_ = false;
        wake = wakeHook_;
    }
    lock.unlock();
    changed_.notify_all();
    if (wake && *wake) {
        (*wake)();
    }
}

bool ThreadQueue::Post(const MSG& message, const WindowRecord* target)
{
    std::unique_lock<std::mutex> lock(mutex_);
    if (!open_ || (target != nullptr && !target->alive)) {
        return false;
    }
    posted_.push_back(message);
    NotifyOwner(lock);
    return true;
}

bool ThreadQueue::QueueSend(const std::shared_ptr<SentCall>& call)
{
    std::unique_lock<std::mutex> lock(mutex_);
    if (!open_ || !call->window->alive) {
        return false;
    }
    incoming_.push_back(call);
    NotifyOwner(lock);
    return true;
}

void ThreadQueue::PostQuit(int exitCode)
{
    std::unique_lock<std::mutex> lock(mutex_);
    quitPosted_ = true;
    quitCode_ = exitCode;
    NotifyOwner(lock);
}

bool ThreadQueue::SetWindowTimer(const WindowRecord& window, UINT_PTR id, std::chrono::milliseconds interval)
{
    interval = ClampInterval(interval);
    std::unique_lock<std::mutex> lock(mutex_);
    if (!open_ || !window.alive) {
        return false;
    }
    const auto due = Clock::now() + interval;
    auto existing = std::find_if(timers_.begin(), timers_.end(), [&](const Timer& timer) {
        return timer.window == window.handle && timer.id == id;
    });
    if (existing != timers_.end()) {
        existing->interval = interval;
        existing->due = due;
    } else {
        timers_.push_back(Timer{window.handle, id, interval, due});
    }
    NotifyOwner(lock);
    return true;
}

UINT_PTR ThreadQueue::SetThreadTimer(UINT_PTR id, std::chrono::milliseconds interval)
{
    interval = ClampInterval(interval);
    std::unique_lock<std::mutex> lock(mutex_);
    if (!open_) {
        return 0;
    }
    const auto due = Clock::now() + interval;
    auto existing = std::find_if(timers_.begin(), timers_.end(), [&](const Timer& timer) {
        return timer.window == nullptr && timer.id == id && id != 0;
    });
    if (existing != timers_.end()) {
        existing->interval = interval;
        existing->due = due;
    } else {
        id = nextThreadTimerId_++;
        timers_.push_back(Timer{nullptr, id, interval, due});
    }
    NotifyOwner(lock);
    return id;
}

bool ThreadQueue::KillTimer(HWND hwnd, UINT_PTR id)
{
    std::unique_lock<std::mutex> lock(mutex_);
    auto existing = std::find_if(timers_.begin(), timers_.end(),
                                 [&](const Timer& timer) { return timer.window == hwnd && timer.id == id; });
    if (existing == timers_.end()) {
        return false;
    }
    timers_.erase(existing);
    // The owner may be sleeping until this timer; let it recompute.
    NotifyOwner(lock);
    return true;
}

void ThreadQueue::Complete(SentCall& call, LRESULT result)
{
    {
        std::lock_guard<std::mutex> lock(mutex_);
        call.result = result;
        call.done = true;
    }
    // The sender waits on its own queue in WaitForReply, never in the
    // external source, so the condition variable alone reaches it.
    changed_.notify_all();
}

void ThreadQueue::RunIncomingSends()
{
    for (;;) {
        std::shared_ptr<SentCall> call;
        bool windowAlive = false;
        {
            std::lock_guard<std::mutex> lock(mutex_);
            if (incoming_.empty()) {
                return;
            }
            call = std::move(incoming_.front());
            incoming_.pop_front();
            windowAlive = call->window->alive;
        }
        LRESULT result = 0;
        if (windowAlive) {
            try {
                result =
                    call->window->procedure(call->window->handle, call->message, call->wParam, call->lParam);
            } catch (...) {
                // The sender must not wait forever for a procedure that threw.
                call->sender->Complete(*call, 0);
                throw;
            }
        }
        call->sender->Complete(*call, result);
    }
}

bool ThreadQueue::Take(MSG* message, const MessageFilter& filter, bool remove)
{
    RunIncomingSends();
    std::lock_guard<std::mutex> lock(mutex_);
    auto post = std::find_if(posted_.begin(), posted_.end(),
                             [&](const MSG& queued) { return filter.Takes(queued.hwnd, queued.message); });
    if (post != posted_.end()) {
        *message = *post;
        if (remove) {
            posted_.erase(post);
        }
        return true;
    }
    if (quitPosted_ && filter.TakesMessage(WM_QUIT)) {
        *message = MSG{nullptr, WM_QUIT, static_cast<WPARAM>(quitCode_), 0, GetTickCount(), POINT{0, 0}};
        if (remove) {
            quitPosted_ = false;
        }
        return true;
    }
    if (!filter.TakesMessage(WM_TIMER)) {
        return false;
    }
    const auto now = Clock::now();
    Timer* earliest = nullptr;
    for (Timer& timer : timers_) {
        if (timer.due <= now && (filter.window == nullptr || filter.window == timer.window) &&
            (earliest == nullptr || timer.due < earliest->due)) {
            earliest = &timer;
        }
    }
    if (earliest == nullptr) {
        return false;
    }
    *message =
        MSG{earliest->window, WM_TIMER, static_cast<WPARAM>(earliest->id), 0, GetTickCount(), POINT{0, 0}};
    if (remove) {
        // Counted from now, not from when it was due: a late timer gives one
        // message and then keeps its period, it does not catch up.
        earliest->due = now + earliest->interval;
    }
    return true;
}

bool ThreadQueue::HasWorkLocked(const MessageFilter& filter, Clock::time_point now) const
{
    if (!incoming_.empty()) {
        return true;
    }
    if (std::any_of(posted_.begin(), posted_.end(),
                    [&](const MSG& queued) { return filter.Takes(queued.hwnd, queued.message); })) {
        return true;
    }
    if (quitPosted_ && filter.TakesMessage(WM_QUIT)) {
        return true;
    }
    const auto next = NextTimerLocked(filter);
    return next && *next <= now;
}

std::optional<ThreadQueue::Clock::time_point> ThreadQueue::NextTimerLocked(const MessageFilter& filter) const
{
    std::optional<Clock::time_point> next;
    if (!filter.TakesMessage(WM_TIMER)) {
        return next;
    }
    for (const Timer& timer : timers_) {
        if ((filter.window == nullptr || filter.window == timer.window) && (!next || timer.due < *next)) {
            next = timer.due;
        }
    }
    return next;
}

void ThreadQueue::WaitForWork(const MessageFilter& filter)
{
    std::unique_lock<std::mutex> lock(mutex_);
    const auto now = Clock::now();
    if (HasWorkLocked(filter, now)) {
        return;
    }
    const auto nextTimer = NextTimerLocked(filter);
    if (waitHook_) {
        const DWORD timeout = nextTimer ? MillisecondsUntil(*nextTimer, now) : INFINITE;
        wakeArmed_ = true;
        lock.unlock();
        waitHook_(timeout);
        lock.lock();
        wakeArmed_ = false;
        return;
    }
    const auto seen = generation_;
    auto somethingChanged = [&] { return generation_ != seen; };
    if (nextTimer) {
        changed_.wait_until(lock, *nextTimer, somethingChanged);
    } else {
        changed_.wait(lock, somethingChanged);
    }
}

LRESULT ThreadQueue::WaitForReply(SentCall& call)
{
    for (;;) {
        {
            std::unique_lock<std::mutex> lock(mutex_);
            changed_.wait(lock, [&] { return call.done || !incoming_.empty(); });
            if (call.done) {
                return call.result;
            }
        }
        RunIncomingSends();
    }
}

DWORD ThreadQueue::IdleTimeout()
{
    std::lock_guard<std::mutex> lock(mutex_);
    const auto now = Clock::now();
    const MessageFilter everything;
    if (HasWorkLocked(everything, now)) {
        return 0;
    }
    wakeArmed_ = true;
    const auto nextTimer = NextTimerLocked(everything);
    return nextTimer ? MillisecondsUntil(*nextTimer, now) : INFINITE;
}

void ThreadQueue::SetEventSource(ExternalEventSource source)
{
    waitHook_ = std::move(source.wait);
    std::lock_guard<std::mutex> lock(mutex_);
    wakeHook_ = source.wake ? std::make_shared<const std::function<void()>>(std::move(source.wake)) : nullptr;
    wakeArmed_ = false;
}

void ThreadQueue::AnswerOrphans(std::vector<std::shared_ptr<SentCall>>& orphans)
{
    for (auto& call : orphans) {
        call->sender->Complete(*call, 0);
    }
    orphans.clear();
}

void ThreadQueue::ForgetWindow(WindowRecord& window)
{
    std::vector<std::shared_ptr<SentCall>> orphans;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        window.alive = false;
        const HWND handle = window.handle;
        posted_.erase(std::remove_if(posted_.begin(), posted_.end(),
                                     [handle](const MSG& queued) { return queued.hwnd == handle; }),
                      posted_.end());
        timers_.erase(std::remove_if(timers_.begin(), timers_.end(),
                                     [handle](const Timer& timer) { return timer.window == handle; }),
                      timers_.end());
        for (auto call = incoming_.begin(); call != incoming_.end();) {
            if ((*call)->window.get() == &window) {
                orphans.push_back(std::move(*call));
                call = incoming_.erase(call);
            } else {
                ++call;
            }
        }
    }
    AnswerOrphans(orphans);
}

void ThreadQueue::Close(const std::vector<std::shared_ptr<WindowRecord>>& windows)
{
    std::vector<std::shared_ptr<SentCall>> orphans;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        open_ = false;
        for (const auto& window : windows) {
            window->alive = false;
        }
        orphans.assign(std::make_move_iterator(incoming_.begin()), std::make_move_iterator(incoming_.end()));
        incoming_.clear();
        posted_.clear();
        timers_.clear();
        wakeHook_.reset();
        wakeArmed_ = false;
    }
    waitHook_ = nullptr;
    AnswerOrphans(orphans);
}

} // namespace toolkit_win32
