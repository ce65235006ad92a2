// Who watches the transport. Every exchange of the process, whether the
// module's request layer or one of the host's own services sends it, is
// reported here when it starts and when it ends, so that the main job can
// tell a failed load from an empty account and show what is under way.
// Observers are called on the thread that performs the exchange, and must
// return quickly.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace host {

// How a transfer ended when no complete response arrived.
enum class TransportFailure
{
    None,
    Timeout,
    Connect,
    Resolve,
    TlsUntrusted,
    TlsCaFile,
    TlsHandshake,
    Closed,
    Protocol,
    Other,
};

struct ExchangeStart
{
    std::uint64_t id = 0;
    // The host configuration's key of the service the URL belongs to
    // ("familyShare"); empty when it belongs to none.
    std::string service;
    // The URL after the service's address, without the query.
    std::string path;
    std::chrono::steady_clock::time_point startedAt;
};

struct ExchangeRecord
{
    std::uint64_t id = 0;
    std::string service;
    std::string path;
    // 0 when no response arrived.
    int status = 0;
    TransportFailure failure = TransportFailure::None;
    // libcurl's own description of the failure; never a header value.
    std::string transportError;
    // The limit the transfer ran under (0: none) and the CA file it trusted
    // (empty: the system's store), so that a failure can name them.
    long timeoutSeconds = 0;
    std::string caFile;
    double seconds = 0;
};

class ExchangeObserver
{
public:
    virtual ~ExchangeObserver() = default;
    virtual void OnExchangeStarted(const ExchangeStart&) {}
    // `body` is the response body as received (empty without a response).
    virtual void OnExchangeEnded(const ExchangeRecord& record, const std::string& body) = 0;
    // A reader of the host's own services refused the body of exchange `id`
    // although the transfer succeeded ("not a quota").
    virtual void OnReplyRefused(std::uint64_t /*id*/, const std::string& /*why*/) {}
    // A thread that performed at least one exchange is ending.
    virtual void OnExchangeThreadEnded() {}
};

// Attaches an observer for the life of this object.
class ScopedExchangeObserver
{
public:
    explicit ScopedExchangeObserver(ExchangeObserver& observer);
    ~ScopedExchangeObserver();
    ScopedExchangeObserver(const ScopedExchangeObserver&) = delete;
    ScopedExchangeObserver& operator=(const ScopedExchangeObserver&) = delete;

private:
    ExchangeObserver& observer_;
};

// Called by the host's readers: the last exchange this thread performed
// brought a body they cannot use.
void ReportRefusedReply(const std::string& why);

namespace exchange_events {

// Called by the transport only.
ExchangeStart Started(const std::string& url);
void Ended(ExchangeRecord record, const std::string& body);

} // namespace exchange_events

} // namespace host
