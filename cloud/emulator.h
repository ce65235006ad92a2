#pragma once
// The emulator: the route table behind the header checks and the fault
// rules, the admin endpoints under /_admin, and the listening socket.
#include <atomic>
#include <memory>
#include <string>

#include <httplib.h>

#include "account_store.h"
#include "faults.h"
#include "options.h"
#include "request_log.h"
#include "routes.h"

namespace cloud {

class Emulator
{
public:
    Emulator(Options options, std::unique_ptr<MemoryAccountStore> store, FaultTable& faults);
    ~Emulator();

    // Binds 127.0.0.1; returns false with `error` set when it cannot.
    bool Bind(std::string& error);
    int Port() const { return port_; }
    std::string BaseUrl() const;
    // The URL the host configuration gives each service.
    std::string ServiceUrl(const std::string& service) const;
    std::string CaFile() const { return caFile_; }
    // Serves until Stop(); returns false if the server failed.
    bool Run();
    void Stop();

private:
    void Dispatch(const httplib::Request& req, httplib::Response& res);
    void Admin(const httplib::Request& req, httplib::Response& res);
    void Send(const Reply& reply, httplib::Response& res);
    bool SleepUnlessStopping(int milliseconds) const;

    Options options_;
    std::unique_ptr<MemoryAccountStore> store_;
    FaultTable& faults_;
    RequestLog log_;
    std::unique_ptr<httplib::Server> server_;
    std::string caFile_;
    int port_ = 0;
    std::atomic<bool> stopping_{false};
    std::atomic<bool> runReturned_{false};
};

} // namespace cloud
