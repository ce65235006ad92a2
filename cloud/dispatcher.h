#pragma once
// Routes every request through the one route table. Admin requests are
// answered directly; a request to a service passes the fault rules, then the
// route and header checks, then the route's handler, and is logged with its
// verdict.
#include <atomic>
#include <memory>

#include <httplib.h>

#include "account_store.h"
#include "faults.h"
#include "request_log.h"
#include "routes.h"

namespace cloud {

class Dispatcher
{
public:
    Dispatcher(std::unique_ptr<MemoryAccountStore> store, FaultTable& faults);

    void Serve(const httplib::Request& req, httplib::Response& res);
    // Cuts short the waits of latency and hang faults, so that stopping the
    // server does not wait for them.
    void BeginStop() { stopping_ = true; }

private:
    Reply ServeAdmin(const httplib::Request& req);
    void ServeService(const httplib::Request& req, httplib::Response& res, const ServiceProfile& profile,
                      LogEntry& entry);
    // The service's answer, or a refusal, with the verdict in `entry`.
    Reply Answer(const Call& call, const std::optional<FaultRule>& fault, LogEntry& entry);
    Call MakeCall(const httplib::Request& req, const ServiceProfile& profile, const AccountData& account);
    void Log(LogEntry entry, const Reply& reply);
    bool SleepUnlessStopping(int milliseconds) const;

    std::unique_ptr<MemoryAccountStore> store_;
    FaultTable& faults_;
    RequestLog log_;
    std::atomic<bool> stopping_{false};
};

} // namespace cloud
