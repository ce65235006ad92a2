#include "app/failure_lines.h"

#include <algorithm>

#include "app/display_text.h"

namespace app {

std::string ServiceDisplayName(const std::string& serviceKey)
{
    static const std::pair<const char*, const char*> kNames[] = {
        {"nsp", "file service"},
        {"basic", "basic service"},
        {"portal", "portal"},
        {"cloudPhoto", "cloud photo"},
        {"cbs", "cloud backup"},
        {"pimds", "data statistics"},
        {"familyShare", "family share"},
        {"cloudSyncDrive", "data versions"},
        {"accountQuota", "account quota"},
        {"omConfig", "operations configuration"},
    };
    for (const auto& [key, name] : kNames) {
        if (serviceKey == key) {
            return name;
        }
    }
    return serviceKey.empty() ? std::string("unknown service") : serviceKey;
}

std::string FailureLine(const FailedExchange& failure)
{
    if (failure.failure == host::TransportFailure::TlsUntrusted ||
        failure.failure == host::TransportFailure::TlsCaFile) {
        const std::string trust =
            failure.caFile.empty() ? std::string("the system's CA store") : "caFile " + failure.caFile;
        return "TLS: " + failure.problem + " (" + EscapeForTerminal(trust) + ")";
    }
    std::string line = ServiceDisplayName(failure.service) + ": ";
    if (!failure.path.empty()) {
        line += EscapeForTerminal(failure.path) + ": ";
    }
    return line + EscapeForTerminal(failure.problem);
}

std::vector<std::string> FailureLines(const std::vector<FailedExchange>& failures)
{
    std::vector<std::string> lines;
    for (const FailedExchange& failure : failures) {
        std::string line = FailureLine(failure);
        if (std::find(lines.begin(), lines.end(), line) == lines.end()) {
            lines.push_back(std::move(line));
        }
    }
    return lines;
}

} // namespace app
