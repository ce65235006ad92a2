#include "host/curl_exchange.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "host/curl_connection_cache.h"

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

} // namespace

CResponseInfo PerformCurlExchange(const CurlExchangeSpec& ex, AnyHttpHeaderMap& responseHeaders)
{
    CURLSH* share = SharedConnectionCache();

    // Each thread keeps one easy handle: a fresh handle builds its own
    // internal state (a wake-up socket pair among it) on every exchange,
    // which costs more than a loopback round trip. The options are reset
    // after each use, so every exchange starts from a clean handle;
    // connections stay in the shared cache either way.
    thread_local EasyHandle curl;
    if (!curl) {
        curl.reset(curl_easy_init());
        if (!curl) {
            throw std::runtime_error("libcurl easy handle could not be created");
        }
    }
    CURL* handle = curl.get();
    // The options point into this call's locals; none may outlive it.
    struct ResetOnExit
    {
        CURL* handle;
        ~ResetOnExit() { curl_easy_reset(handle); }
    } resetOnExit{handle};
    const bool post = ex.post;
    const bool carriesBody = post || !ex.body.empty();
    HeaderList headerList = BuildHeaderList(ex.headers, carriesBody);

    CResponseInfo response;
    char errorText[CURL_ERROR_SIZE] = {0};

    curl_easy_setopt(handle, CURLOPT_SHARE, share);
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
    curl_easy_setopt(handle, CURLOPT_ERRORBUFFER, errorText);
    curl_easy_setopt(handle, CURLOPT_HTTPHEADER, headerList.get());
    curl_easy_setopt(handle, CURLOPT_HTTP_VERSION,
                     ex.httpVersion == 2 ? CURL_HTTP_VERSION_2TLS : CURL_HTTP_VERSION_1_1);
    curl_easy_setopt(handle, CURLOPT_SSL_VERIFYPEER, 1L);
    curl_easy_setopt(handle, CURLOPT_SSL_VERIFYHOST, 2L);
    if (!ex.caFile.empty()) {
        curl_easy_setopt(handle, CURLOPT_CAINFO, ex.caFile.c_str());
    }
    const long timeout = ex.timeoutSeconds;
    if (timeout > 0) {
        curl_easy_setopt(handle, CURLOPT_TIMEOUT, timeout);
    }
    if (carriesBody) {
        curl_easy_setopt(handle, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(ex.body.size()));
        curl_easy_setopt(handle, CURLOPT_POSTFIELDS, ex.body.data());
        if (!post) {
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
        // The error buffer names the host and the failing step, never a header,
        // so no token can reach this text.
        std::string message = std::string("HTTP transfer failed: ") + curl_easy_strerror(result);
        if (errorText[0] != '\0') {
            message += std::string(" (") + errorText + ")";
        }
        throw std::runtime_error(message);
    }
    long status = 0;
    curl_easy_getinfo(handle, CURLINFO_RESPONSE_CODE, &status);
    response.status = static_cast<int32_t>(status);
    responseHeaders = std::move(received);
    return response;
}

} // namespace host
