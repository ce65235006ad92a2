#pragma once
#include <string>

namespace cloud {

// The command line: spacemgm-cloud --port N --fixture FILE [--state FILE]
// [--tls] [--faults FILE] [--write-config FILE] [--ca-file FILE] [--threads N]
// [--start-delay-ms N]
struct Options
{
    int port = 0; // 0: any free port
    std::string fixture;
    std::string state; // with it, the account lives in this file across runs
    bool tls = false;
    std::string faults;      // a JSON array of fault rules
    std::string writeConfig; // host configuration file pointing at this emulator
    std::string caFile;      // where --tls writes the CA certificate
    int threads = 64;        // worker threads; a hanging fault or an idle kept-alive connection holds one
    int startDelayMs = 0;    // pause between "ready" and the accept loop, to test early shutdown
};

// Parses argv; on a bad command line returns false with `error` set.
bool ParseOptions(int argc, char** argv, Options& options, std::string& error);
std::string Usage();
// Usage with a line on every option, for --help.
std::string Help();

} // namespace cloud
