#include "options.h"

#include <cstdlib>

namespace cloud {

namespace {

struct NumberOption
{
    const char* name;
    int low;
    int high;
    int Options::*field;
};

struct TextOption
{
    const char* name;
    std::string Options::*field;
};

const NumberOption kNumberOptions[] = {
    {"--port", 0, 65535, &Options::port},
    {"--threads", 2, 256, &Options::threads},
    {"--start-delay-ms", 0, 60000, &Options::startDelayMs},
};

const TextOption kTextOptions[] = {
    {"--fixture", &Options::fixture}, {"--state", &Options::state},
    {"--faults", &Options::faults},   {"--write-config", &Options::writeConfig},
    {"--ca-file", &Options::caFile},
};

bool ParseInt(const std::string& text, int low, int high, int& out)
{
    char* end = nullptr;
    long value = std::strtol(text.c_str(), &end, 10);
    if (text.empty() || *end != '\0' || value < low || value > high)
        return false;
    out = static_cast<int>(value);
    return true;
}

// Reads the option at argv[i] and its value, if it takes one; advances i past them.
bool ParseOne(int argc, char** argv, int& i, Options& options, std::string& error)
{
    const std::string arg = argv[i];
    if (arg == "--tls") {
        options.tls = true;
        return true;
    }
    auto value = [&]() -> const char* {
        if (i + 1 < argc)
            return argv[++i];
        error = arg + " needs a value";
        return nullptr;
    };
    for (const auto& option : kNumberOptions) {
        if (arg != option.name)
            continue;
        const char* text = value();
        if (text && !ParseInt(text, option.low, option.high, options.*option.field))
            error = arg + " must be " + std::to_string(option.low) + " to " + std::to_string(option.high);
        return error.empty();
    }
    for (const auto& option : kTextOptions) {
        if (arg != option.name)
            continue;
        if (const char* text = value())
            options.*option.field = text;
        return error.empty();
    }
    error = "unknown argument " + arg;
    return false;
}

} // namespace

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

bool ParseOptions(int argc, char** argv, Options& options, std::string& error)
{
    for (int i = 1; i < argc; ++i)
        if (!ParseOne(argc, argv, i, options, error))
            return false;
    if (options.fixture.empty()) {
        error = "--fixture is required";
        return false;
    }
    return true;
}

} // namespace cloud
