#pragma once
// Every request the emulator saw, with the check's verdict, for tests to
// read through /_admin/log. Bounded: the oldest entries go first.
#include <cstdint>
#include <deque>
#include <map>
#include <mutex>
#include <string>
#include <vector>

#include <json/json.h>

namespace cloud {

struct LogEntry
{
    uint64_t seq = 0;
    int64_t timeMs = 0;
    std::string method;
    std::string path;
    std::string query;
    std::string service;
    std::string endpoint;
    std::vector<std::pair<std::string, std::string>> headers;
    std::string body;
    std::string verdict; // "ok" or "refused: <why>"
    int status = 0;
    std::vector<std::string> faults;
};

class RequestLog
{
public:
    explicit RequestLog(size_t capacity = 5000) : capacity_(capacity) {}
    // Secrets to keep out of the log (the session's token, raw and encoded).
    void SetSecrets(std::vector<std::string> secrets);
    void Add(LogEntry entry);
    void Clear();
    Json::Value ToJson(uint64_t sinceSeq) const;
    std::map<std::string, uint64_t> EndpointCounts() const;

private:
    std::string Redact(std::string text) const;

    mutable std::mutex mutex_;
    size_t capacity_;
    uint64_t nextSeq_ = 1;
    std::deque<LogEntry> entries_;
    std::map<std::string, uint64_t> counts_;
    std::vector<std::string> secrets_;
};

} // namespace cloud
