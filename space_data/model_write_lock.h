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
    mutable std::mutex mutex;
    std::condition_variable readersMayEnter;
    std::condition_variable writerMayEnter;
    bool writerEntered = false;
    uint64_t readerCount = 0;
};

// Holds a `ModelWriteLock` for one scope.
class ModelWriteGuard
{
public:
    explicit ModelWriteGuard(ModelWriteLock& lock) : writeLock(lock) { writeLock.Enter(); }
    ~ModelWriteGuard() { writeLock.Leave(); }
    ModelWriteGuard(const ModelWriteGuard&) = delete;
    ModelWriteGuard& operator=(const ModelWriteGuard&) = delete;

private:
    ModelWriteLock& writeLock;
};
