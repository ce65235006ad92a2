#pragma once
// The writer half of a reader/writer gate around the shared model. No reader
// exists in this module, so `Enter` never blocks; the gate is kept with its
// original condition so that a reader added later meets the same rules.
#include <condition_variable>
#include <cstdint>
#include <mutex>

class ModelWriteLock
{
public:
    void Enter();
    void Leave();

    bool WriterEntered() const;

private:
    mutable std::mutex mutex_;
    std::condition_variable readersMayEnter_;
    std::condition_variable writerMayEnter_;
    bool writerEntered_ = false;
    uint64_t readerCount_ = 0;
};

// Holds a `ModelWriteLock` for one scope.
class ModelWriteGuard
{
public:
    explicit ModelWriteGuard(ModelWriteLock& lock) : lock_(lock) { lock_.Enter(); }
    ~ModelWriteGuard() { lock_.Leave(); }
    ModelWriteGuard(const ModelWriteGuard&) = delete;
    ModelWriteGuard& operator=(const ModelWriteGuard&) = delete;

private:
    ModelWriteLock& lock_;
};
