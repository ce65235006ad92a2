#pragma once
// The door through which other threads hand work to a window's thread and
// wait for it (CPaintManagerUI::RunOnWindowThread).
//
// Waiting is only safe while the window thread still reads its messages. A
// window that is being destroyed may be waiting for one of those very
// threads (it joins its watcher as it closes), so the gate shuts when the
// window goes: callers that come later get "not run" at once, and calls
// already under way are answered before the window thread goes on.

#include <condition_variable>
#include <mutex>

namespace DuiLib {

class WindowThreadGate
{
public:
    // Any thread: false when the gate is shut; otherwise the call is counted
    // in, and Leave must follow once it has its answer.
    bool Enter();
    void Leave();
    bool IsShut() const;
    // The window's thread: shuts the gate, then runs the messages sent to
    // this thread until every call counted in has left.
    void Shut();

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_left;
    bool m_shut = false;
    int m_calls = 0;
};

} // namespace DuiLib
