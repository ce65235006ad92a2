#include "window/load_sequence.h"

#include <chrono>

LoadSequence& LoadSequence::Instance()
{
    static LoadSequence sequence;
    return sequence;
}

void LoadSequence::Announce()
{
    std::lock_guard<std::mutex> lock(mutex_);
    ++pending_;
}

void LoadSequence::Withdraw()
{
    std::lock_guard<std::mutex> lock(mutex_);
    --pending_;
}

void LoadSequence::Acquire()
{
    std::unique_lock<std::mutex> lock(mutex_);
    changed_.wait(lock, [this] { return !busy_; });
    busy_ = true;
    consumed_ = false;
}

void LoadSequence::WaitUntilConsumed(HWND window)
{
    std::unique_lock<std::mutex> lock(mutex_);
    while (!consumed_ && ::IsWindow(window)) {
        changed_.wait_for(lock, std::chrono::milliseconds(50));
    }
}

void LoadSequence::Release()
{
    // Notified under the lock: whoever sees the load ended through the lock
    // also sees this thread done with the condition variable.
    std::lock_guard<std::mutex> lock(mutex_);
    busy_ = false;
    --pending_;
    changed_.notify_all();
}

void LoadSequence::Consumed()
{
    std::lock_guard<std::mutex> lock(mutex_);
    consumed_ = true;
    changed_.notify_all();
}

bool LoadSequence::Busy() const
{
    std::lock_guard<std::mutex> lock(mutex_);
    return busy_;
}

bool LoadSequence::Idle() const
{
    std::lock_guard<std::mutex> lock(mutex_);
    return pending_ <= 0;
}
