#pragma once

// What the surface's two network calls answer right now, as two letters
// ("11": on a network with a way to the internet, "10", "01", "00"), and a
// wait for a given answer.

#include <chrono>
#include <string>
#include <thread>

#include "platform/win32.h"

inline std::string ProbeState()
{
    DWORD flags = 0;
    std::string state;
    state += IsNetworkAlive(&flags) ? '1' : '0';
    state += InternetGetConnectedState(&flags, 0) ? '1' : '0';
    return state;
}

// How long it took the probe to answer `expected`, or nothing within `limit`.
inline std::chrono::microseconds WaitForProbeState(const std::string& expected,
                                                   std::chrono::milliseconds limit, bool* reached)
{
    const auto start = std::chrono::steady_clock::now();
    for (;;) {
        const auto now = std::chrono::steady_clock::now();
        if (ProbeState() == expected) {
            *reached = true;
            return std::chrono::duration_cast<std::chrono::microseconds>(now - start);
        }
        if (now - start > limit) {
            *reached = false;
            return std::chrono::duration_cast<std::chrono::microseconds>(now - start);
        }
        std::this_thread::sleep_for(std::chrono::microseconds(100));
    }
}
