#include "host/service_of_url.h"

#include <utility>

namespace host {
namespace {

std::string WithoutQuery(const std::string& text)
{
    return text.substr(0, text.find_first_of("?#"));
}

// "http://h/nsp" starts "http://h/nsp/x" and "http://h/nsp?q", not "http://h/nspx".
bool EndsAtBoundary(const std::string& url, const std::string& base)
{
    const size_t at = base.size();
    return base.back() == '/' || at == url.size() || url[at] == '/' || url[at] == '?' || url[at] == '#';
}

// "http://host:port/a/b?q" gives "/a/b".
std::string PathOf(const std::string& url)
{
    const size_t scheme = url.find("://");
    const size_t start = scheme == std::string::npos ? 0 : url.find('/', scheme + 3);
    return start == std::string::npos ? std::string() : WithoutQuery(url.substr(start));
}

} // namespace

ServiceAndPath ServiceOfUrl(const ServiceUrls& services, const std::string& url)
{
    const std::pair<const char*, const std::string*> known[] = {
        {"nsp", &services.nsp},
        {"basic", &services.basic},
        {"portal", &services.portal},
        {"cloudPhoto", &services.cloudPhoto},
        {"cbs", &services.cbs},
        {"pimds", &services.pimds},
        {"familyShare", &services.familyShare},
        {"cloudSyncDrive", &services.cloudSyncDrive},
        {"accountQuota", &services.accountQuota},
        {"omConfig", &services.omConfig},
    };
    ServiceAndPath best;
    size_t bestLength = 0;
    for (const auto& [name, address] : known) {
        const std::string base = WithoutQuery(*address);
        if (base.empty() || base.size() <= bestLength || url.compare(0, base.size(), base) != 0 ||
            !EndsAtBoundary(url, base)) {
            continue;
        }
        best.service = name;
        best.path = WithoutQuery(url.substr(base.size()));
        bestLength = base.size();
    }
    if (best.service.empty()) {
        best.path = PathOf(url);
    }
    return best;
}

} // namespace host
