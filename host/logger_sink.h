// An in-memory sink for the host logger, so that tests can assert the lines
// and operation records the module writes. While a sink is attached every
// record also reaches it; the log files are written as usual.
#pragma once

#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace Logger {

struct Record
{
    int module;
    int severity;
    int line;
    std::string function;
    std::string message;
    bool flush;
    std::thread::id thread;
};

struct OperationRecord
{
    int event;
    int operationType;
    int actionType;
    std::map<std::wstring, std::wstring> values;
};

// Attaches on construction, detaches on destruction. Sinks may nest; each
// sees what is written while it is attached.
class ScopedMemorySink
{
public:
    ScopedMemorySink();
    ~ScopedMemorySink();
    ScopedMemorySink(const ScopedMemorySink&) = delete;
    ScopedMemorySink& operator=(const ScopedMemorySink&) = delete;

    std::vector<Record> Records() const;
    std::vector<OperationRecord> OperationRecords() const;
    void Clear();

    // Called by the logger.
    void Add(Record record);
    void Add(OperationRecord record);

private:
    mutable std::mutex mutex_;
    std::vector<Record> records_;
    std::vector<OperationRecord> operations_;
};

} // namespace Logger
