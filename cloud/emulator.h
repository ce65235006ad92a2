#pragma once
// The emulator: the listening socket, plain or TLS, in front of the
// dispatcher that serves the route table.
#include <atomic>
#include <memory>
#include <string>

#include <httplib.h>

#include "account_store.h"
#include "dispatcher.h"
#include "faults.h"
#include "options.h"

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
    // The CA certificate's file with --tls, as an absolute path.
    std::string CaFile() const { return caFile_; }
    // Serves until Stop(); returns false if the server failed.
    bool Run();
    void Stop();

private:
    bool MakeServer(std::string& error);
    std::string CaFileFor() const;

    Options options_;
    Dispatcher dispatcher_;
    std::unique_ptr<httplib::Server> server_;
    // Made before "ready", so that the accept loop starts at once (64 threads
    // take a while under ThreadSanitizer); httplib takes them when it listens.
    std::unique_ptr<httplib::ThreadPool> workers_;
    std::string caFile_;
    int port_ = 0;
    std::atomic<bool> stopRequested_{false};
    std::atomic<bool> runReturned_{false};
};

} // namespace cloud
