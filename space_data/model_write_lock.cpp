#include "space_data/model_write_lock.h"

void ModelWriteLock::Enter()
{
    std::unique_lock<std::mutex> guard(mutex_);
    // Waits only while a writer is in AND readers are present; with no
    // readers a second writer passes straight through.
    writerMayEnter_.wait(guard, [this] { return !(writerEntered_ && readerCount_ != 0); });
    writerEntered_ = true;
}

void ModelWriteLock::Leave()
{
    std::lock_guard<std::mutex> guard(mutex_);
    writerEntered_ = false;
    readersMayEnter_.notify_all();
}

bool ModelWriteLock::WriterEntered() const
{
    std::lock_guard<std::mutex> guard(mutex_);
    return writerEntered_;
}
