#pragma once

// Process-wide tables from window handles and thread ids to their records,
// and the calling thread's own queue.

#include <memory>
#include <mutex>
#include <unordered_map>
#include <vector>

#include "toolkit/win32/thread_queue.h"

namespace toolkit_win32 {

class WindowRegistry
{
public:
    static WindowRegistry& Instance();

    // Assigns the record its handle and makes it findable.
    HWND AddWindow(const std::shared_ptr<WindowRecord>& window);
    std::shared_ptr<WindowRecord> FindWindowRecord(HWND hwnd) const;
    void RemoveWindow(HWND hwnd);
    std::vector<std::shared_ptr<WindowRecord>> RemoveWindowsOf(const ThreadQueue& owner);

    void AddThread(const std::shared_ptr<ThreadQueue>& queue);
    std::shared_ptr<ThreadQueue> FindThread(DWORD threadId) const;
    void RemoveThread(DWORD threadId);

private:
    WindowRegistry() = default;

    mutable std::mutex mutex_;
    std::unordered_map<HWND, std::shared_ptr<WindowRecord>> windows_;
    std::unordered_map<DWORD, std::shared_ptr<ThreadQueue>> threads_;
};

// The calling thread's queue, made on first use. When the thread ends, its
// windows go and the queue is closed (see ThreadQueue::Close).
const std::shared_ptr<ThreadQueue>& CurrentThreadQueue();

} // namespace toolkit_win32
