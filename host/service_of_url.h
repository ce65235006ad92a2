// Which configured service a URL belongs to.
#pragma once

#include <string>

#include "host/host_config.h"

namespace host {

struct ServiceAndPath
{
    // The key in `services` ("familyShare"); empty when no service's address
    // starts the URL.
    std::string service;
    // What follows the service's address, without the query and fragment;
    // the whole path when no service matched.
    std::string path;
};

// The service whose address is the longest that starts `url` and ends at a
// path boundary.
ServiceAndPath ServiceOfUrl(const ServiceUrls& services, const std::string& url);

} // namespace host
