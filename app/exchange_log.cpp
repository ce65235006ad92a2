#include "app/exchange_log.h"

#include <algorithm>
#include <utility>

#include <json/value.h>

#include "foundation/utilities.h"

namespace app {
namespace {

constexpr const char* kTransferFailedPrefix = "HTTP transfer failed: ";

std::string TransportProblem(const host::ExchangeRecord& record)
{
    using host::TransportFailure;
    switch (record.failure) {
    case TransportFailure::Timeout:
        return record.timeoutSeconds > 0 ? "timed out after " + std::to_string(record.timeoutSeconds) + " s"
                                         : std::string("timed out");
    case TransportFailure::Connect:
        return "could not connect";
    case TransportFailure::Resolve:
        return "host name not found";
    case TransportFailure::TlsUntrusted:
        return "certificate not trusted";
    case TransportFailure::TlsCaFile:
        return "the CA file cannot be used";
    case TransportFailure::TlsHandshake:
        return "TLS handshake failed";
    case TransportFailure::Closed:
        return "the connection closed before the reply was complete";
    case TransportFailure::Protocol:
        return "not an http:// or https:// address";
    case TransportFailure::None:
    case TransportFailure::Other:
        break;
    }
    std::string text = record.transportError;
    if (text.rfind(kTransferFailedPrefix, 0) == 0) {
        text.erase(0, std::char_traits<char>::length(kTransferFailedPrefix));
    }
    return "transfer failed: " + text;
}

FailedExchange FailureOf(const host::ExchangeRecord& record, std::string problem)
{
    FailedExchange failed;
    failed.id = record.id;
    failed.service = record.service;
    failed.path = record.path;
    failed.status = record.status;
    failed.failure = record.failure;
    failed.transportError = record.transportError;
    failed.timeoutSeconds = record.timeoutSeconds;
    failed.caFile = record.caFile;
    failed.seconds = record.seconds;
    failed.problem = std::move(problem);
    return failed;
}

} // namespace

std::optional<std::string> ProblemOf(const host::ExchangeRecord& record, const std::string& body)
{
    if (record.failure != host::TransportFailure::None) {
        return TransportProblem(record);
    }
    if (record.status < 200 || record.status > 299) {
        // The operations configuration is optional: a service that publishes
        // none answers 404, and the default colours apply.
        if (record.service == "omConfig" && record.status == 404) {
            return std::nullopt;
        }
        return "HTTP " + std::to_string(record.status);
    }
    if (body.empty()) {
        return std::string("empty reply");
    }
    if (body == "[]") {
        return std::string("empty reply ([])");
    }
    Json::Value parsed;
    if (!ParseJson(body, parsed)) {
        return std::string("the reply is not JSON");
    }
    return std::nullopt;
}

void ExchangeLog::OnExchangeStarted(const host::ExchangeStart& start)
{
    std::lock_guard<std::mutex> lock(mutex_);
    running_[start.id] = Running{start.service, start.path, start.startedAt};
}

void ExchangeLog::OnExchangeEnded(const host::ExchangeRecord& record, const std::string& body)
{
    // The body is judged outside the lock: a large reply takes a while.
    std::optional<std::string> problem = ProblemOf(record, body);
    std::lock_guard<std::mutex> lock(mutex_);
    running_.erase(record.id);
    ++exchangesEnded_;
    if (problem) {
        failures_.push_back(FailureOf(record, std::move(*problem)));
    } else {
        succeeded_[record.id] = record;
    }
}

void ExchangeLog::OnReplyRefused(std::uint64_t id, const std::string& why)
{
    std::lock_guard<std::mutex> lock(mutex_);
    const auto found = succeeded_.find(id);
    if (found != succeeded_.end()) {
        failures_.push_back(FailureOf(found->second, why));
        succeeded_.erase(found);
    }
}

void ExchangeLog::OnExchangeThreadEnded()
{
    std::lock_guard<std::mutex> lock(mutex_);
    ++threadsEnded_;
}

std::vector<FailedExchange> ExchangeLog::Failures() const
{
    std::lock_guard<std::mutex> lock(mutex_);
    return failures_;
}

std::optional<ExchangeUnderWay> ExchangeLog::Longest() const
{
    std::lock_guard<std::mutex> lock(mutex_);
    if (running_.empty()) {
        return std::nullopt;
    }
    const auto oldest = std::min_element(running_.begin(), running_.end(), [](const auto& a, const auto& b) {
        return a.second.startedAt < b.second.startedAt;
    });
    return ExchangeUnderWay{oldest->second.service, oldest->second.path,
                            std::chrono::steady_clock::now() - oldest->second.startedAt};
}

int ExchangeLog::ThreadsEnded() const
{
    std::lock_guard<std::mutex> lock(mutex_);
    return threadsEnded_;
}

int ExchangeLog::ExchangesEnded() const
{
    std::lock_guard<std::mutex> lock(mutex_);
    return exchangesEnded_;
}

} // namespace app
