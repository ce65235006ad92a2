#include "foundation/network_checker.h"

#include "platform/logger.h"
#include "platform/win32.h"

namespace NetworkChecker {

std::atomic<bool> networkAlive{false};
std::atomic<bool> stopChecking{false};

namespace {

constexpr DWORD kProbePeriodMs = 10;
constexpr const char* kFunctionName = "NetworkChecker::CheckNetwork";

} // namespace

bool ProbeNetwork()
{
    DWORD aliveFlags = 0;
    if (!IsNetworkAlive(&aliveFlags)) {
        return false;
    }
    DWORD connectedFlags = 0;
    return InternetGetConnectedState(&connectedFlags, 0) != FALSE;
}

void CheckNetwork(std::function<void()> onRestored, std::function<void()> onLost)
{
    stopChecking = false;
    do {
        const bool alive = ProbeNetwork();
        if (alive != networkAlive) {
            if (alive) {
                Logger::Output(Logger::subSpaceManage, Logger::_DEBUG, __LINE__, kFunctionName,
                               "Network status is restored.", false);
                onRestored();
            } else {
                Logger::Output(Logger::subSpaceManage, Logger::_ERROR, __LINE__, kFunctionName,
                               "Network status occurred an exception.", true);
                onLost();
            }
            networkAlive = alive;
        }
        Sleep(kProbePeriodMs);
    } while (!stopChecking);
    onRestored = nullptr;
    onLost = nullptr;
}

} // namespace NetworkChecker
