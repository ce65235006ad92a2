// Values that several service classes put into their headers.
#pragma once

#include <string>

namespace service_headers {

// The access token of the session as UTF-8. Goes into headers only.
std::string CurrentToken();

// "Bearer " followed by the token, not encoded; with no session the blank stays.
std::string BearerToken();

// Base64 of the client's application id: the "AuthType" header.
std::string AuthTypeValue();

} // namespace service_headers
