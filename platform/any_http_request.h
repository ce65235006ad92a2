// The host's HTTP transport as the module sees it: one object performs one
// exchange. The request layer fills it (URL, method, headers, body) and reads
// the status, the body and the response headers it returns.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>

// Header names and values as UTF-8 byte strings, ordered bytewise, one value
// per name. The same type carries request and response headers.
using AnyHttpHeaderMap = std::map<std::string, std::string>;

// 1 carries a body (POST); 0 is a plain GET.
enum AnyHttpRequestMethod : int32_t
{
    AnyHttpGet = 0,
    AnyHttpPost = 1,
};

struct CResponseInfo
{
    int32_t status = 0;
    std::string body;
};

class AnyHttpRequest
{
public:
    AnyHttpRequest(const std::string& url, AnyHttpRequestMethod method);
    virtual ~AnyHttpRequest();

    AnyHttpRequest(const AnyHttpRequest&) = delete;
    AnyHttpRequest& operator=(const AnyHttpRequest&) = delete;

    // Replaces the URL that SendWebRequest will ask for.
    void SetBaseUrl(const std::string& url);

    // 2 asks for HTTP/2 (negotiated over TLS; plain http stays on 1.1).
    // Anything else means HTTP/1.1.
    void SetHttpVersion(int version);

    // Prepares the exchange. `timeoutSeconds` bounds the whole transfer;
    // `retries`, `flags` and `reserved` are accepted for compatibility with the
    // host's interface and do not change the exchange: the transport sends once.
    void Initialize(AnyHttpRequestMethod method, const AnyHttpHeaderMap& headers, const std::string& body,
                    int timeoutSeconds, int retries, int flags, int reserved);

    // Performs the exchange and fills `responseHeaders` with the headers of the
    // final response. Throws std::runtime_error when no response was received
    // (refused connection, TLS failure, timeout, cut connection).
    CResponseInfo SendWebRequest(AnyHttpHeaderMap& responseHeaders);

private:
    struct Exchange;
    std::unique_ptr<Exchange> exchange_;
};
