#include "app/service_check.h"

namespace app {

namespace {

bool AnyServiceConfigured(const host::ServiceUrls& urls)
{
    for (const std::string* url :
         {&urls.nsp, &urls.basic, &urls.portal, &urls.cloudPhoto, &urls.cbs, &urls.pimds, &urls.familyShare,
          &urls.cloudSyncDrive, &urls.accountQuota, &urls.omConfig}) {
        if (!url->empty()) {
            return true;
        }
    }
    return false;
}

} // namespace

std::optional<std::string> NoServiceProblem(const host::HostConfig& config)
{
    if (AnyServiceConfigured(config.services)) {
        return std::nullopt;
    }
    const std::string where = config.sourcePath.empty() ? std::string("no host configuration was found")
                                                        : config.sourcePath + " names none";
    return "no service is configured (" + where +
           "). Give one with --config FILE, $SPACEMGM_CONFIG or ~/.config/spacemgm/spacemgm.json, or let "
           "scripts/run.sh start the local emulator.";
}

} // namespace app
