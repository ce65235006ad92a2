// Critical sections: recursive locks owned by one thread at a time.

#include "platform/win32.h"

void InitializeCriticalSection(CRITICAL_SECTION* /*section*/)
{
    // The lock was made with the structure and lives as long as it does:
    // nothing to set up, and nothing that a second initialisation of a
    // section in use could break.
}

void EnterCriticalSection(CRITICAL_SECTION* section)
{
    const DWORD self = GetCurrentThreadId();
    // Only this thread ever stores its own id there, so reading it without
    // the lock can tell "mine" from "not mine" reliably.
    if (section->owningThread.load(std::memory_order_relaxed) == self) {
        ++section->recursionCount;
        return;
    }
    section->lock.lock();
    section->owningThread.store(self, std::memory_order_relaxed);
    section->recursionCount = 1;
}

void LeaveCriticalSection(CRITICAL_SECTION* section)
{
    if (section->owningThread.load(std::memory_order_relaxed) != GetCurrentThreadId()) {
        return;
    }
    if (--section->recursionCount == 0) {
        section->owningThread.store(0, std::memory_order_relaxed);
        section->lock.unlock();
    }
}

void DeleteCriticalSection(CRITICAL_SECTION* /*section*/)
{
    // The lock goes with the structure; see InitializeCriticalSection.
}
