// One libcurl share object for the whole process, so that every thread's
// requests reuse the same connections, TLS sessions and DNS answers, and one
// CA store per CA file that every TLS connection of the cache verifies with.
#pragma once

#include <curl/curl.h>
#include <openssl/x509.h>

#include <string>

namespace host {

// Initialises libcurl once and returns the process-wide share handle. The
// handle lives until the process ends or the cache is reset: detached load
// threads may still be sending when static destructors run.
CURLSH* SharedConnectionCache();

// The CA store of the current cache for `caFile` (empty: libcurl's default
// bundle and folder, the system's store), loaded on first use. libcurl
// builds a store for every new connection of a handle it has not cached one
// in, and parsing the system's bundle of some 140 roots costs tens of
// milliseconds each time; the twelve workers of a load each have a handle of
// their own. Null when the file cannot be loaded: libcurl then loads it
// itself and reports the error.
X509_STORE* SharedCaStore(const std::string& caFile);

// Starts a new, empty cache, as a fresh process has: the next exchanges open
// new connections, pay full TLS handshakes and load their CA store again.
// Benchmarks and tests use it to measure a first load; it must not run while
// an exchange is under way. The old cache's connections are closed once no
// handle refers to it.
void ResetConnectionCache();

} // namespace host
