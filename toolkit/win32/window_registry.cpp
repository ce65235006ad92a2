#include "toolkit/win32/window_registry.h"

#include "toolkit/win32/handle_values.h"

namespace toolkit_win32 {

WindowRegistry& WindowRegistry::Instance()
{
    // Never destroyed: threads still running while the process exits (load
    // threads are detached) may post to the end.
    static WindowRegistry* registry = new WindowRegistry;
    return *registry;
}

HWND WindowRegistry::AddWindow(const std::shared_ptr<WindowRecord>& window)
{
    window->handle = reinterpret_cast<HWND>(NextHandleValue());
    std::lock_guard<std::mutex> lock(mutex_);
    windows_.emplace(window->handle, window);
    return window->handle;
}

std::shared_ptr<WindowRecord> WindowRegistry::FindWindowRecord(HWND hwnd) const
{
    std::lock_guard<std::mutex> lock(mutex_);
    auto found = windows_.find(hwnd);
    return found == windows_.end() ? nullptr : found->second;
}

void WindowRegistry::RemoveWindow(HWND hwnd)
{
    std::lock_guard<std::mutex> lock(mutex_);
    windows_.erase(hwnd);
}

std::vector<std::shared_ptr<WindowRecord>> WindowRegistry::RemoveWindowsOf(const ThreadQueue& owner)
{
    std::vector<std::shared_ptr<WindowRecord>> removed;
    std::lock_guard<std::mutex> lock(mutex_);
    for (auto entry = windows_.begin(); entry != windows_.end();) {
        if (entry->second->owner.get() == &owner) {
            removed.push_back(std::move(entry->second));
            entry = windows_.erase(entry);
        } else {
            ++entry;
        }
    }
    return removed;
}

void WindowRegistry::AddThread(const std::shared_ptr<ThreadQueue>& queue)
{
    std::lock_guard<std::mutex> lock(mutex_);
    threads_[queue->ThreadId()] = queue;
}

std::shared_ptr<ThreadQueue> WindowRegistry::FindThread(DWORD threadId) const
{
    std::lock_guard<std::mutex> lock(mutex_);
    auto found = threads_.find(threadId);
    return found == threads_.end() ? nullptr : found->second;
}

void WindowRegistry::RemoveThread(DWORD threadId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    threads_.erase(threadId);
}

namespace {

// Owns the calling thread's queue and closes it when the thread ends, so
// that senders waiting on the thread's windows get their 0 instead of
// hanging, and a later thread with a recycled id starts afresh.
class CurrentQueueHolder
{
public:
    CurrentQueueHolder() : queue_(std::make_shared<ThreadQueue>(GetCurrentThreadId()))
    {
        WindowRegistry::Instance().AddThread(queue_);
    }
    CurrentQueueHolder(const CurrentQueueHolder&) = delete;
    CurrentQueueHolder& operator=(const CurrentQueueHolder&) = delete;

    ~CurrentQueueHolder()
    {
        auto& registry = WindowRegistry::Instance();
        registry.RemoveThread(queue_->ThreadId());
        queue_->Close(registry.RemoveWindowsOf(*queue_));
    }

    const std::shared_ptr<ThreadQueue>& Queue() const { return queue_; }

private:
    std::shared_ptr<ThreadQueue> queue_;
};

} // namespace

const std::shared_ptr<ThreadQueue>& CurrentThreadQueue()
{
    thread_local CurrentQueueHolder holder;
    return holder.Queue();
}

} // namespace toolkit_win32
