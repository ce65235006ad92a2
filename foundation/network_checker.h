#pragma once

// Watches whether the machine is online and calls back when that changes.
//
// CheckNetwork is a loop run on a thread its caller owns (the space window's
// network watcher), with two process-wide flags and no object of its own:
//
//   stopChecking = false
//   loop: probe; if the result differs from networkAlive:
//             log, call onRestored (now alive) or onLost (now offline),
//             then store the result in networkAlive;
//         sleep 10 ms; end when stopChecking is set.
//
// The 10 ms period is fixed and there is no debounce: one differing probe is
// a change, and a drop that is over within one sleep is never seen. The
// callbacks run on the loop's thread. networkAlive is written only after the
// callback returns, so a callback still sees the old state there. The caller
// writes networkAlive before the loop starts, sets stopChecking to end it, and
// joins the thread.

#include <atomic>
#include <functional>

namespace NetworkChecker {

// The last state seen. Atomic so that the window thread's reads and the
// loop's writes are well defined; nothing else about them changes.
extern std::atomic<bool> networkAlive;
// Set to true to end the loop; read afresh on every pass.
extern std::atomic<bool> stopChecking;

// Both callbacks are taken by value and destroyed when the loop returns. An
// empty callback throws std::bad_function_call when a change calls it.
void CheckNetwork(std::function<void()> onRestored, std::function<void()> onLost);

// The probe: alive only if IsNetworkAlive succeeds and then
// InternetGetConnectedState does; the second is not asked when the first
// fails. Either failing reads as offline.
bool ProbeNetwork();

} // namespace NetworkChecker
