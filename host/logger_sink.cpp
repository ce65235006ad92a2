#include "host/logger_sink.h"

#include <algorithm>

#include "host/log_sinks.h"

namespace Logger {

namespace {

std::mutex sinksMutex;
std::vector<ScopedMemorySink*> sinks;

} // namespace

namespace detail {

void AttachSink(ScopedMemorySink* sink)
{
    std::lock_guard<std::mutex> lock(sinksMutex);
    sinks.push_back(sink);
}

void DetachSink(ScopedMemorySink* sink)
{
    std::lock_guard<std::mutex> lock(sinksMutex);
    sinks.erase(std::remove(sinks.begin(), sinks.end(), sink), sinks.end());
}

// Delivery holds the list's lock, so a sink cannot be detached and
// destroyed while a record is on its way to it.
void DeliverToSinks(const Record& record)
{
    std::lock_guard<std::mutex> lock(sinksMutex);
    for (ScopedMemorySink* sink : sinks) {
        sink->Add(record);
    }
}

void DeliverToSinks(const OperationRecord& record)
{
    std::lock_guard<std::mutex> lock(sinksMutex);
    for (ScopedMemorySink* sink : sinks) {
        sink->Add(record);
    }
}

} // namespace detail

ScopedMemorySink::ScopedMemorySink()
{
    detail::AttachSink(this);
}

ScopedMemorySink::~ScopedMemorySink()
{
    detail::DetachSink(this);
}

std::vector<Record> ScopedMemorySink::Records() const
{
    std::lock_guard<std::mutex> lock(mutex_);
    return records_;
}

std::vector<OperationRecord> ScopedMemorySink::OperationRecords() const
{
    std::lock_guard<std::mutex> lock(mutex_);
    return operations_;
}

void ScopedMemorySink::Clear()
{
    std::lock_guard<std::mutex> lock(mutex_);
    records_.clear();
    operations_.clear();
}

void ScopedMemorySink::Add(Record record)
{
    std::lock_guard<std::mutex> lock(mutex_);
    records_.push_back(std::move(record));
}

void ScopedMemorySink::Add(OperationRecord record)
{
    std::lock_guard<std::mutex> lock(mutex_);
    operations_.push_back(std::move(record));
}

} // namespace Logger
