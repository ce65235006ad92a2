// What the host accepts as the address of a service.
#pragma once

#include <string>

namespace host {

// True for an absolute URL of scheme http or https with a host name, as
// libcurl's URL parser reads it; a blank or a control character anywhere
// makes it false.
bool IsAbsoluteHttpUrl(const std::string& text);

} // namespace host
