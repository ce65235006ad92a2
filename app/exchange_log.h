// What the main job learns from the transport while it runs: every exchange
// that failed, the exchanges under way, and how many worker threads have
// finished. A failed exchange is one without a usable reply: no response,
// a status other than 2xx, an empty body, "[]", a body that is not JSON, or
// a body one of the host's readers refused.
#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "host/exchange_observer.h"

namespace app {

struct FailedExchange
{
    std::uint64_t id = 0;
    std::string service; // the host configuration's key; empty if none
    std::string path;
    int status = 0; // 0 without a response
    host::TransportFailure failure = host::TransportFailure::None;
    std::string transportError;
    long timeoutSeconds = 0;
    std::string caFile;
    double seconds = 0;
    // What was wrong, in words: "HTTP 401", "timed out after 100 s".
    std::string problem;
};

struct ExchangeUnderWay
{
    std::string service;
    std::string path;
    std::chrono::steady_clock::duration running{};
};

class ExchangeLog : public host::ExchangeObserver
{
public:
    void OnExchangeStarted(const host::ExchangeStart& start) override;
    void OnExchangeEnded(const host::ExchangeRecord& record, const std::string& body) override;
    void OnReplyRefused(std::uint64_t id, const std::string& why) override;
    void OnExchangeThreadEnded() override;

    // In the order the exchanges ended.
    std::vector<FailedExchange> Failures() const;
    // The exchange that has been running longest, if any is.
    std::optional<ExchangeUnderWay> Longest() const;
    int ThreadsEnded() const;
    int ExchangesEnded() const;

private:
    struct Running
    {
        std::string service;
        std::string path;
        std::chrono::steady_clock::time_point startedAt;
    };

    mutable std::mutex mutex_;
    std::vector<FailedExchange> failures_;
    std::map<std::uint64_t, Running> running_;
    // Exchanges that ended well, kept so that a later refusal by a host
    // reader can still turn one into a failure.
    std::map<std::uint64_t, host::ExchangeRecord> succeeded_;
    int threadsEnded_ = 0;
    int exchangesEnded_ = 0;
};

// The problem of an exchange in words, or nothing when its reply is usable.
std::optional<std::string> ProblemOf(const host::ExchangeRecord& record, const std::string& body);

} // namespace app
