// One libcurl share object for the whole process, so that every thread's
// requests reuse the same connections, TLS sessions and DNS answers.
#pragma once

#include <curl/curl.h>

namespace host {

// Initialises libcurl once and returns the process-wide share handle. The
// handle lives until the process ends: detached load threads may still be
// sending when static destructors run.
CURLSH* SharedConnectionCache();

} // namespace host
