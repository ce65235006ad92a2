#include "window/load_sequence.h"

#include <chrono>

LoadSequence& LoadSequence::Instance()
{
    static LoadSequence sequence;
    return sequence;
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
    {
        std::lock_guard<std::mutex> lock(mutex_);
        busy_ = false;
    }
    changed_.notify_all();
}

void LoadSequence::Consumed()
{
    {
        std::lock_guard<std::mutex> lock(mutex_);
        consumed_ = true;
    }
    changed_.notify_all();
}

bool LoadSequence::Busy() const
{
    std::lock_guard<std::mutex> lock(mutex_);
    return busy_;
}
