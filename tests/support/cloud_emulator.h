#pragma once
// Test support: runs spacemgm-cloud as a child process for integration tests
// and benchmarks, and talks to its admin endpoints.
//
//   CloudEmulator cloud;                              // sample account, plain HTTP
//   host config for the module: cloud.ConfigPath()
//   cloud.AddFault({{"service","familyShare"},{"kind","empty"}});
//   Json::Value requests = cloud.RequestLog();        // what the module sent, with verdicts
//
// The constructor starts the emulator on a free loopback port, waits until it
// has printed "ready" (90 s at most) and throws std::runtime_error with the
// emulator's own message if it cannot start. The destructor stops it with
// SIGTERM (SIGKILL after 5 s) and removes its working folder.
//
// The emulator's health is part of every test that uses it: when it stops
// (Stop, Kill9 or the destructor), a sanitizer report on its stderr, a
// crash, an exit status other than 0 after SIGTERM, or a stop that needed
// SIGKILL fails the running test (a GoogleTest failure, with the emulator's
// stderr); outside GoogleTest, as in a benchmark, it ends the program.
//
// Service names are those of the host configuration: "nsp", "basic",
// "portal", "cloudPhoto", "cbs", "pimds", "familyShare", "cloudSyncDrive",
// "accountQuota", "omConfig". Fixtures: "sample", "empty", "full", "v2",
// "many", "cn" (cloud/fixtures/<name>.json) or a path to a JSON file.
//
// Uses only libcurl, jsoncpp, GoogleTest and POSIX: it does not depend on the
// module.
#include <map>
#include <string>
#include <sys/types.h>
#include <utility>
#include <vector>

#include <json/json.h>

namespace spacemgm_test {

class CloudEmulator
{
public:
    struct Options
    {
        std::string fixture = "sample";
        bool tls = false;
        std::string stateFile;  // --state; empty: the account lives in memory only
        std::string faultsFile; // --faults
        int startDelayMs = 0;   // --start-delay-ms: serve only this long after "ready"

        // The options of an emulator serving one of the fixtures.
        static Options ForFixture(std::string name)
        {
            Options options;
            options.fixture = std::move(name);
            return options;
        }
    };

    CloudEmulator();
    explicit CloudEmulator(Options options);
    ~CloudEmulator();
    CloudEmulator(const CloudEmulator&) = delete;
    CloudEmulator& operator=(const CloudEmulator&) = delete;

    // The URL the host configuration gives the service.
    std::string BaseUrl(const std::string& service) const;
    // "http://127.0.0.1:PORT" (https with tls).
    std::string Root() const { return root_; }
    int Port() const { return port_; }
    std::string ConfigPath() const { return configPath_; }
    std::string CaFile() const { return caFile_; }
    // A private folder that lives as long as this object.
    std::string WorkDir() const { return workDir_; }
    pid_t Pid() const { return pid_; }

    // GET /_admin/log: the array of logged requests (method, path, query,
    // service, endpoint, headers, body, verdict, status, faults).
    Json::Value RequestLog() const;
    void ClearLog();
    // POST /_admin/faults with one rule; returns the rule's id.
    std::string AddFault(const Json::Value& rule);
    void ClearFaults();
    // POST /_admin/reset: the account as the fixture has it.
    void Reset();
    // GET /_admin/hits: {"rules": [{id, matched, hits}], "endpoints": {path: count}}.
    Json::Value Hits() const;
    // GET /_admin/account: the current account in the fixture schema, plus "groups".
    Json::Value Account() const;

    // Stops the emulator with SIGTERM and returns its exit status (-1 if killed).
    int Stop();
    // SIGKILL, for crash tests; waits for the process to end.
    void Kill9();
    // What the emulator has written to stderr so far.
    std::string Stderr() const;

    static std::string FixturePath(const std::string& nameOrPath);
    static std::string ExecutablePath();

private:
    // Reaps the process after `signal` (SIGTERM or SIGKILL) and checks its health.
    int EndWith(int signal);
    Json::Value Admin(const std::string& method, const std::string& what, const std::string& body = "") const;

    Options options_;
    pid_t pid_ = -1;
    int stdoutFd_ = -1;
    int port_ = 0;
    std::string root_;
    std::string workDir_;
    std::string stderrPath_;
    std::string configPath_;
    std::string caFile_;
    std::map<std::string, std::string> services_;
};

// One plain HTTP exchange with libcurl, for tests that speak the wire
// themselves. A transport failure leaves status 0 and sets curlCode/error.
struct HttpResult
{
    long status = 0;
    std::string body;
    int curlCode = 0;
    std::string error;
};

HttpResult HttpExchange(const std::string& method, const std::string& url,
                        const std::vector<std::pair<std::string, std::string>>& headers,
                        const std::string& body, const std::string& caFile = "", long timeoutMs = 10000);

} // namespace spacemgm_test
