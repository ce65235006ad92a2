// The host's direct HTTP query, used where a caller bypasses the request
// classes: a strategy object describes one request, and
// AnyCurlHttpLibContext performs it.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>

class AnyBasicHttpLibStrategy
{
public:
    using LogFunction = std::function<void(const std::string&)>;

    // An empty path keeps the system's CA store (or the host's configured one).
    void SetCertPath(const std::string& path) { certPath_ = path; }
    void SetUrl(const std::string& url) { url_ = url; }
    void SetLogFunction(LogFunction log) { log_ = std::move(log); }
    // 0 is GET, 1 is POST.
    void SetHttpRequestMethod(int method) { method_ = method; }
    void SetHeaders(const std::map<std::string, std::string>& headers) { headers_ = headers; }
    void SetBody(const std::string& body) { body_ = body; }

    const std::string& GetCertPath() const { return certPath_; }
    const std::string& GetUrl() const { return url_; }
    const LogFunction& GetLogFunction() const { return log_; }
    int GetHttpRequestMethod() const { return method_; }
    const std::map<std::string, std::string>& GetHeaders() const { return headers_; }
    const std::string& GetBody() const { return body_; }

private:
    std::string certPath_;
    std::string url_;
    LogFunction log_;
    int method_ = 0;
    std::map<std::string, std::string> headers_;
    std::string body_;
};
