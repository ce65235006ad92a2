// One GET on behalf of the signed-in user, as the host's own services send
// it: "Authorization: Bearer <token>" and "uid", through the basic HTTP
// library. Nothing is logged, so the token cannot reach a log line.
#pragma once

#include <string>

namespace host {

// Returns the HTTP status, or -1 when no reply arrived; `body` receives the
// reply.
int GetAsSignedInUser(const std::string& url, std::string& body);

} // namespace host
