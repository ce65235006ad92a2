#include "host/curl_exchange.h"

#include <chrono>
#include <exception>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include <openssl/ssl.h>

#include "host/curl_connection_cache.h"
#include "host/exchange_observer.h"

namespace host {
namespace {

struct EasyDeleter
{
    void operator()(CURL* curl) const { curl_easy_cleanup(curl); }
};
struct SlistDeleter
{
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
};
using EasyHandle = std::unique_ptr<CURL, EasyDeleter>;

// Twice the widest fan-out of the module (twelve categories at once).
constexpr long kIdleConnectionsKept = 24;
using HeaderList = std::unique_ptr<curl_slist, SlistDeleter>;

void Append(HeaderList& list, const std::string& line)
{
    curl_slist* grown = curl_slist_append(list.get(), line.c_str());
    if (grown == nullptr) {
        throw std::runtime_error("out of memory while building request headers");
    }
    list.release();
    list.reset(grown);
}

// libcurl drops a header given as "Name:" and adds some of its own; "Name;"
// is its way of sending a header with an empty value, and "Name:" with no
// value switches one of its defaults off. Host and Content-Length are the
// protocol's and stay.
HeaderList BuildHeaderList(const AnyHttpHeaderMap& headers, bool carriesBody)
{
    HeaderList list;
    for (const auto& [name, value] : headers) {
        Append(list, value.empty() ? name + ";" : name + ": " + value);
    }
    auto has = [&headers](const char* name) {
        for (const auto& entry : headers) {
            if (curl_strequal(entry.first.c_str(), name)) {
                return true;
            }
        }
        return false;
    };
    if (!has("Accept")) {
        Append(list, "Accept:");
    }
    if (!has("Expect")) {
        Append(list, "Expect:");
    }
    if (carriesBody && !has("Content-Type")) {
        Append(list, "Content-Type:");
    }
    return list;
}

size_t CollectBody(char* data, size_t size, size_t count, void* target)
{
    static_cast<std::string*>(target)->append(data, size * count);
    return size * count;
}

std::string_view Trim(std::string_view text)
{
    const char* blanks = " \t\r\n";
    const size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return std::string_view();
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

// Keeps the headers of the last response only: an interim 100 response or a
// proxy's answer starts the map again.
size_t CollectHeader(char* data, size_t size, size_t count, void* target)
{
    auto* headers = static_cast<AnyHttpHeaderMap*>(target);
    const std::string_view line(data, size * count);
    if (line.compare(0, 5, "HTTP/") == 0) {
        headers->clear();
        return size * count;
    }
    const size_t colon = line.find(':');
    if (colon != std::string_view::npos && colon > 0) {
        (*headers)[std::string(Trim(line.substr(0, colon)))] = std::string(Trim(line.substr(colon + 1)));
    }
    return size * count;
}

// Only a TLS connection needs a CA store; loading one for plain HTTP would
// cost as much as it does for the first TLS connection.
bool IsHttps(const std::string& url)
{
    return url.size() > 8 && curl_strnequal(url.c_str(), "https://", 8);
}

// The context takes a reference of its own: the store outlives it even when
// the cache is reset meanwhile.
CURLcode UseSharedCaStore(CURL*, void* sslContext, void* store)
{
    SSL_CTX_set1_cert_store(static_cast<SSL_CTX*>(sslContext), static_cast<X509_STORE*>(store));
    return CURLE_OK;
}

// What every exchange sets apart from its headers and body.
void SetTransferOptions(CURL* handle, const CurlExchangeSpec& ex)
{
    // libcurl keeps 5 idle connections by default and closes the oldest when
    // a sixth comes back. The space load runs a dozen requests at once, so 7
    // of its connections were closed after every fan-out and opened again,
    // TLS handshake and all, by the next one.
    curl_easy_setopt(handle, CURLOPT_MAXCONNECTS, kIdleConnectionsKept);
    curl_easy_setopt(handle, CURLOPT_URL, ex.url.c_str());
    // The services speak HTTP(S) only. libcurl would otherwise read a file://
    // URL from the disk or open any of its other protocols for a mistyped
    // address, and follow a redirect into them.
    curl_easy_setopt(handle, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(handle, CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(handle, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(handle, CURLOPT_HTTP_VERSION,
                     ex.httpVersion == 2 ? CURL_HTTP_VERSION_2TLS : CURL_HTTP_VERSION_1_1);
    curl_easy_setopt(handle, CURLOPT_SSL_VERIFYPEER, 1L);
    curl_easy_setopt(handle, CURLOPT_SSL_VERIFYHOST, 2L);
    X509_STORE* store = IsHttps(ex.url) ? SharedCaStore(ex.caFile) : nullptr;
    if (store != nullptr) {
        // libcurl loads nothing itself; every TLS context it makes gets the
        // cache's store instead.
        curl_easy_setopt(handle, CURLOPT_CAINFO, nullptr);
        curl_easy_setopt(handle, CURLOPT_CAPATH, nullptr);
        curl_easy_setopt(handle, CURLOPT_SSL_CTX_FUNCTION, UseSharedCaStore);
        curl_easy_setopt(handle, CURLOPT_SSL_CTX_DATA, store);
    } else if (!ex.caFile.empty()) {
        curl_easy_setopt(handle, CURLOPT_CAINFO, ex.caFile.c_str());
    }
    const long timeout = ex.timeoutSeconds;
    if (timeout > 0) {
        curl_easy_setopt(handle, CURLOPT_TIMEOUT, timeout);
    }
}

TransportFailure FailureOf(CURLcode result)
{
    switch (result) {
    case CURLE_OPERATION_TIMEDOUT:
        return TransportFailure::Timeout;
    case CURLE_COULDNT_CONNECT:
        return TransportFailure::Connect;
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_COULDNT_RESOLVE_PROXY:
        return TransportFailure::Resolve;
    case CURLE_PEER_FAILED_VERIFICATION:
        return TransportFailure::TlsUntrusted;
    case CURLE_SSL_CACERT_BADFILE:
        return TransportFailure::TlsCaFile;
    case CURLE_SSL_CONNECT_ERROR:
        return TransportFailure::TlsHandshake;
    case CURLE_GOT_NOTHING:
    case CURLE_PARTIAL_FILE:
    case CURLE_RECV_ERROR:
    case CURLE_SEND_ERROR:
        return TransportFailure::Closed;
    case CURLE_UNSUPPORTED_PROTOCOL:
    case CURLE_URL_MALFORMAT:
        return TransportFailure::Protocol;
    default:
        return TransportFailure::Other;
    }
}

// One transfer on this thread's handle. Returns libcurl's result; on a
// failure `message` says what failed, naming the host and the step, never
// a header, so that no token can reach it.
CURLcode Transfer(const CurlExchangeSpec& ex, CResponseInfo& response, AnyHttpHeaderMap& responseHeaders,
                  std::string& message)
{
    CURLSH* share = SharedConnectionCache();

    // Each thread keeps one easy handle: a fresh handle builds its own
    // internal state (a wake-up socket pair among it) on every exchange,
    // which costs more than a loopback round trip. The options are reset
    // after each use, so every exchange starts from a clean handle;
    // connections stay in the shared cache either way. A handle made for an
    // earlier cache is made anew: it holds state of its own (a cached CA
    // store) that a reset cache should not keep.
    thread_local EasyHandle curl;
    thread_local CURLSH* handleCache = nullptr;
    if (!curl || handleCache != share) {
        curl.reset(curl_easy_init());
        if (!curl) {
            throw std::runtime_error("libcurl easy handle could not be created");
        }
        handleCache = share;
    }
    CURL* handle = curl.get();
    // The options point into this call's locals; none may outlive it.
    struct ResetOnExit
    {
        CURL* handle;
        ~ResetOnExit() { curl_easy_reset(handle); }
    } resetOnExit{handle};
    const bool carriesBody = ex.post || !ex.body.empty();
    HeaderList headerList = BuildHeaderList(ex.headers, carriesBody);
    char errorText[CURL_ERROR_SIZE] = {0};

    curl_easy_setopt(handle, CURLOPT_SHARE, share);
    curl_easy_setopt(handle, CURLOPT_ERRORBUFFER, errorText);
    curl_easy_setopt(handle, CURLOPT_HTTPHEADER, headerList.get());
    SetTransferOptions(handle, ex);
    if (carriesBody) {
        curl_easy_setopt(handle, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(ex.body.size()));
        curl_easy_setopt(handle, CURLOPT_POSTFIELDS, ex.body.data());
        if (!ex.post) {
            curl_easy_setopt(handle, CURLOPT_CUSTOMREQUEST, "GET");
        }
    } else {
        curl_easy_setopt(handle, CURLOPT_HTTPGET, 1L);
    }
    curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, CollectBody);
    curl_easy_setopt(handle, CURLOPT_WRITEDATA, &response.body);
    AnyHttpHeaderMap received;
    curl_easy_setopt(handle, CURLOPT_HEADERFUNCTION, CollectHeader);
    curl_easy_setopt(handle, CURLOPT_HEADERDATA, &received);

    const CURLcode result = curl_easy_perform(handle);
    if (result != CURLE_OK) {
        message = std::string("HTTP transfer failed: ") + curl_easy_strerror(result);
        if (errorText[0] != '\0') {
            message += std::string(" (") + errorText + ")";
        }
        return result;
    }
    long status = 0;
    curl_easy_getinfo(handle, CURLINFO_RESPONSE_CODE, &status);
    response.status = static_cast<int32_t>(status);
    responseHeaders = std::move(received);
    return CURLE_OK;
}

} // namespace

CResponseInfo PerformCurlExchange(const CurlExchangeSpec& ex, AnyHttpHeaderMap& responseHeaders)
{
    const ExchangeStart start = exchange_events::Started(ex.url);
    ExchangeRecord record;
    record.id = start.id;
    record.service = start.service;
    record.path = start.path;
    record.timeoutSeconds = ex.timeoutSeconds;
    record.caFile = ex.caFile;
    CResponseInfo response;
    CURLcode result = CURLE_OK;
    std::string message;
    try {
        result = Transfer(ex, response, responseHeaders, message);
    } catch (const std::exception& error) {
        result = CURLE_FAILED_INIT;
        message = error.what();
    }
    record.seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start.startedAt).count();
    if (result != CURLE_OK) {
        record.failure = FailureOf(result);
        record.transportError = message;
        exchange_events::Ended(std::move(record), std::string());
        throw std::runtime_error(message);
    }
    record.status = response.status;
    exchange_events::Ended(std::move(record), response.body);
    return response;
}

} // namespace host
