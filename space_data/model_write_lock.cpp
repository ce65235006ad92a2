#include "space_data/model_write_lock.h"

void ModelWriteLock::Enter()
{
    std::unique_lock<std::mutex> guard(mutex);
    // Waits only while a writer is in AND readers are present; with no
    // readers a second writer passes straight through.
    writerMayEnter.wait(guard, [this] { return !(writerEntered && readerCount != 0); });
    writerEntered = true;
}

void ModelWriteLock::Leave()
{
    std::lock_guard<std::mutex> guard(mutex);
    writerEntered = false;
    readersMayEnter.notify_all();
}

bool ModelWriteLock::WriterEntered() const
{
    std::lock_guard<std::mutex> guard(mutex);
    return writerEntered;
}
