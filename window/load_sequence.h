#pragma once
// Loads take turns. A window may start a second load while one runs (a
// refresh click before the loading page shows, or the network coming back);
// both must still post their messages and the window rebuilds its list once
// per end message. But two loads at once would write the view model, its
// model and the quota singleton from two threads, and a load would rewrite
// the model while the window thread reads it. So a load's requests wait for
// its turn, and a turn ends once the window has handled the load's end
// message (or the window is gone):
//
//   starter:        Announce -> thread started (Withdraw if it cannot be)
//   load thread:    BEGIN posted -> Acquire -> requests -> END posted
//                   -> WaitUntilConsumed -> Release
//   window thread:  handles END -> Consumed
//
// One turn at a time in the whole process, as the quota singleton is shared
// by every window. Idle() tells automation that every announced load has
// ended and its messages were handled.
#include <condition_variable>
#include <mutex>

#include "platform/win32.h"

class LoadSequence
{
public:
    static LoadSequence& Instance();

    // A load is about to start, or could not be started after all.
    void Announce();
    void Withdraw();
    // Blocks until no other load has the turn, then takes it.
    void Acquire();
    // After the end message was posted to `window`: blocks until the window
    // has handled it, or the window is gone (checked every 50 ms).
    void WaitUntilConsumed(HWND window);
    // Gives the turn to the next load; the announced load has ended.
    void Release();
    // Window thread, once it has read the model after an end message.
    void Consumed();
    // Whether a load has the turn.
    bool Busy() const;
    // No announced load is waiting for its turn or running.
    bool Idle() const;

private:
    LoadSequence() = default;

    mutable std::mutex mutex_;
    std::condition_variable changed_;
    bool busy_ = false;
    bool consumed_ = false;
    int pending_ = 0;
};

// Holds a turn for one scope, for a load that was announced.
class LoadTurn
{
public:
    LoadTurn() { LoadSequence::Instance().Acquire(); }
    ~LoadTurn() { LoadSequence::Instance().Release(); }
    LoadTurn(const LoadTurn&) = delete;
    LoadTurn& operator=(const LoadTurn&) = delete;
};
