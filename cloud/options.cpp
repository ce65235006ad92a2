#include "options.h"

#include <cstdlib>

namespace cloud {

std::string Usage()
{
    return "usage: spacemgm-cloud --port N --fixture FILE [--state FILE] [--tls] [--faults FILE]\n"
           "                      [--write-config FILE] [--ca-file FILE] [--threads N] [--start-delay-ms N]\n"
           "       spacemgm-cloud --help\n";
}

std::string Help()
{
    return "spacemgm-cloud: a local emulator of the cloud services, on 127.0.0.1 only.\n\n" + Usage() +
           "\n"
           "  --port N              the port to listen on; 0 picks a free one\n"
           "  --fixture FILE        the account to serve (cloud/fixtures/*.json)\n"
           "  --state FILE          keep the account in FILE across runs, written after every change\n"
           "  --tls                 serve HTTPS with a certificate made at start\n"
           "  --faults FILE         fault rules active from the start (one rule or an array)\n"
           "  --write-config FILE   write a host configuration for spacemgm pointing here\n"
           "  --ca-file FILE        with --tls: where to write the CA certificate\n"
           "  --threads N           worker threads\n"
           "  --start-delay-ms N    wait N ms between printing \"ready\" and accepting connections\n"
           "  --help                print this help and exit\n"
           "\n"
           "Exit status: 0 after SIGINT or SIGTERM; 2 for a bad command line, fixture, state or faults "
           "file.\n"
           "cloud/README.md describes the services, fixtures, faults and the admin API.\n";
}

static bool ParseInt(const std::string& text, int low, int high, int& out)
{
    char* end = nullptr;
    long value = std::strtol(text.c_str(), &end, 10);
    if (text.empty() || *end != '\0' || value < low || value > high)
        return false;
    out = static_cast<int>(value);
    return true;
}

bool ParseOptions(int argc, char** argv, Options& options, std::string& error)
{
    for (int i = 1; i < argc; ++i) {
        std::string arg = argv[i];
        auto value = [&](std::string& out) {
            if (i + 1 >= argc) {
                error = arg + " needs a value";
                return false;
            }
            out = argv[++i];
            return true;
        };
        std::string text;
        if (arg == "--tls") {
            options.tls = true;
        } else if (arg == "--port") {
            if (!value(text) || !ParseInt(text, 0, 65535, options.port)) {
                error = error.empty() ? "--port must be 0 to 65535" : error;
                return false;
            }
        } else if (arg == "--threads") {
            if (!value(text) || !ParseInt(text, 2, 256, options.threads)) {
                error = error.empty() ? "--threads must be 2 to 256" : error;
                return false;
            }
        } else if (arg == "--start-delay-ms") {
            if (!value(text) || !ParseInt(text, 0, 60000, options.startDelayMs)) {
                error = error.empty() ? "--start-delay-ms must be 0 to 60000" : error;
                return false;
            }
        } else if (arg == "--fixture") {
            if (!value(options.fixture))
                return false;
        } else if (arg == "--state") {
            if (!value(options.state))
                return false;
        } else if (arg == "--faults") {
            if (!value(options.faults))
                return false;
        } else if (arg == "--write-config") {
            if (!value(options.writeConfig))
                return false;
        } else if (arg == "--ca-file") {
            if (!value(options.caFile))
                return false;
        } else {
            error = "unknown argument " + arg;
            return false;
        }
    }
    if (options.fixture.empty()) {
        error = "--fixture is required";
        return false;
    }
    return true;
}

} // namespace cloud
