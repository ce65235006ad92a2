#include "request_log.h"

#include <algorithm>
#include <chrono>

#include "wire_text.h"

namespace cloud {

void RequestLog::SetSecrets(std::vector<std::string> secrets)
{
    secrets.erase(
        std::remove_if(secrets.begin(), secrets.end(), [](const std::string& s) { return s.size() < 4; }),
        secrets.end());
    // Longest first, so an encoded token is not half replaced by its raw form.
    std::sort(secrets.begin(), secrets.end(),
              [](const std::string& a, const std::string& b) { return a.size() > b.size(); });
    std::lock_guard<std::mutex> lock(mutex_);
    secrets_ = std::move(secrets);
}

std::string RequestLog::Redact(std::string text) const
{
    for (const auto& secret : secrets_) {
        for (size_t at = text.find(secret); at != std::string::npos; at = text.find(secret, at + 7))
            text.replace(at, secret.size(), "<token>");
    }
    return text;
}

void RequestLog::Add(LogEntry entry)
{
    std::lock_guard<std::mutex> lock(mutex_);
    entry.seq = nextSeq_++;
    entry.timeMs = std::chrono::duration_cast<std::chrono::milliseconds>(
                       std::chrono::system_clock::now().time_since_epoch())
                       .count();
    // The Base64 authorization value carries the token too: log it decoded
    // and redacted, so tests can still see its fields.
    for (auto& [name, value] : entry.headers) {
        if (ToLower(name) == "authorization" && !StartsWith(value, "Bearer ")) {
            if (auto decoded = Base64Decode(value); decoded && decoded->find(':') != std::string::npos)
                value = "base64(" + *decoded + ")";
        }
        value = Redact(value);
    }
    entry.body = Redact(entry.body);
    entry.query = Redact(entry.query);
    entry.verdict = Redact(entry.verdict);
    ++counts_[entry.endpoint.empty() ? entry.path : entry.endpoint];
    entries_.push_back(std::move(entry));
    while (entries_.size() > capacity_)
        entries_.pop_front();
}

void RequestLog::Clear()
{
    std::lock_guard<std::mutex> lock(mutex_);
    entries_.clear();
    counts_.clear();
}

Json::Value RequestLog::ToJson(uint64_t sinceSeq) const
{
    std::lock_guard<std::mutex> lock(mutex_);
    Json::Value list(Json::arrayValue);
    for (const auto& e : entries_) {
        if (e.seq <= sinceSeq)
            continue;
        Json::Value v;
        v["seq"] = Json::UInt64(e.seq);
        v["timeMs"] = Json::Int64(e.timeMs);
        v["method"] = e.method;
        v["path"] = e.path;
        v["query"] = e.query;
        v["service"] = e.service;
        v["endpoint"] = e.endpoint;
        Json::Value headers(Json::objectValue);
        for (const auto& [name, value] : e.headers) {
            // Names as sent; a repeated header keeps every value, joined by ", ".
            if (headers.isMember(name))
                headers[name] = headers[name].asString() + ", " + value;
            else
                headers[name] = value;
        }
        v["headers"] = headers;
        v["body"] = e.body;
        v["verdict"] = e.verdict;
        v["status"] = e.status;
        v["faults"] = Json::Value(Json::arrayValue);
        for (const auto& id : e.faults)
            v["faults"].append(id);
        list.append(v);
    }
    return list;
}

std::map<std::string, uint64_t> RequestLog::EndpointCounts() const
{
    std::lock_guard<std::mutex> lock(mutex_);
    return counts_;
}

} // namespace cloud
