#include "host/http_url.h"

#include <curl/curl.h>

#include <memory>

namespace host {
namespace {

struct UrlDeleter
{
    void operator()(CURLU* url) const { curl_url_cleanup(url); }
};

} // namespace

// Blanks and control characters are refused before libcurl parses the text:
// it would otherwise take some of them as part of a path.
bool IsAbsoluteHttpUrl(const std::string& text)
{
    for (const char c : text) {
        if (static_cast<unsigned char>(c) <= 0x20 || c == 0x7F) {
            return false;
        }
    }
    const std::unique_ptr<CURLU, UrlDeleter> url(curl_url());
    if (!url || curl_url_set(url.get(), CURLUPART_URL, text.c_str(), 0) != CURLUE_OK) {
        return false;
    }
    char* scheme = nullptr;
    if (curl_url_get(url.get(), CURLUPART_SCHEME, &scheme, 0) != CURLUE_OK) {
        return false;
    }
    const std::string name = scheme;
    curl_free(scheme);
    char* hostName = nullptr;
    const bool hasHost = curl_url_get(url.get(), CURLUPART_HOST, &hostName, 0) == CURLUE_OK &&
                         hostName != nullptr && hostName[0] != '\0';
    curl_free(hostName);
    return hasHost && (name == "http" || name == "https");
}

} // namespace host
