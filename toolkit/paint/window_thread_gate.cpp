#include "toolkit/paint/window_thread_gate.h"

#include <chrono>

#include "toolkit/win32/message_queue.h"

namespace DuiLib {

bool WindowThreadGate::Enter()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_shut)
        return false;
    ++m_calls;
    return true;
}

void WindowThreadGate::Leave()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    --m_calls;
    // Notified under the lock: once Shut sees no call left, the gate (and
    // the paint manager around it) may be destroyed.
    m_left.notify_all();
}

bool WindowThreadGate::IsShut() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_shut;
}

void WindowThreadGate::Shut()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_shut = true;
    while (m_calls > 0) {
        // A caller counted in may be about to send, or waiting on its send:
        // peeking runs every message sent to this thread.
        lock.unlock();
        MSG msg{};
        ::PeekMessageW(&msg, nullptr, 0, 0, PM_NOREMOVE);
        lock.lock();
        m_left.wait_for(lock, std::chrono::milliseconds(1), [this] { return m_calls == 0; });
    }
}

} // namespace DuiLib
