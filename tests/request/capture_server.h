// A loopback HTTP server for the request layer's unit tests: it records every
// request it receives and answers with whatever the test sets.
#pragma once

#include <httplib.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

struct CapturedRequest
{
    std::string method;
    std::string path;   // without the query
    std::string target; // path and query as sent
    std::multimap<std::string, std::string> headers;
    std::string body;

    bool Has(const std::string& name) const { return headers.find(name) != headers.end(); }
    std::string Header(const std::string& name) const
    {
        const auto found = headers.find(name);
        return found == headers.end() ? std::string("<absent>") : found->second;
    }
};

struct CannedReply
{
    int status = 200;
    std::string body = "{}";
    std::map<std::string, std::string> headers;
    std::chrono::milliseconds delay{0};
};

class CaptureServer
{
public:
    CaptureServer()
    {
        auto handler = [this](const httplib::Request& request, httplib::Response& response) {
            CapturedRequest captured;
            captured.method = request.method;
            captured.path = request.path;
            captured.target = request.target;
            for (const auto& [name, value] : request.headers) {
                // cpp-httplib adds these itself; they were not on the wire.
                if (name == "REMOTE_ADDR" || name == "REMOTE_PORT" || name == "LOCAL_ADDR" ||
                    name == "LOCAL_PORT") {
                    continue;
                }
                captured.headers.emplace(name, value);
            }
            captured.body = request.body;
            CannedReply reply;
            {
                std::lock_guard<std::mutex> lock(mutex_);
                requests_.push_back(captured);
                reply = replyFor_ ? replyFor_(captured) : reply_;
            }
            if (reply.delay.count() > 0) {
                std::this_thread::sleep_for(reply.delay);
            }
            response.status = reply.status;
            for (const auto& [name, value] : reply.headers) {
                response.set_header(name, value);
            }
            response.set_content(reply.body, "application/json");
        };
        // One request per connection, so that stopping never waits for an
        // idle keep-alive connection of the shared cache to time out.
        server_.set_keep_alive_max_count(1);
        server_.Get(".*", handler);
        server_.Post(".*", handler);
        port_ = server_.bind_to_any_port("127.0.0.1");
        thread_ = std::thread([this] { server_.listen_after_bind(); });
        while (!server_.is_running()) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    }

    ~CaptureServer()
    {
        server_.stop();
        thread_.join();
    }

    int Port() const { return port_; }
    std::string Url(const std::string& prefix = "") const
    {
        return "http://127.0.0.1:" + std::to_string(port_) + prefix;
    }

    void Reply(CannedReply reply)
    {
        std::lock_guard<std::mutex> lock(mutex_);
        reply_ = std::move(reply);
    }
    void ReplyWith(std::function<CannedReply(const CapturedRequest&)> replyFor)
    {
        std::lock_guard<std::mutex> lock(mutex_);
        replyFor_ = std::move(replyFor);
    }

    std::vector<CapturedRequest> Requests() const
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return requests_;
    }
    CapturedRequest Last() const
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return requests_.empty() ? CapturedRequest{} : requests_.back();
    }
    size_t Count() const
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return requests_.size();
    }

private:
    httplib::Server server_;
    int port_ = 0;
    std::thread thread_;
    mutable std::mutex mutex_;
    std::vector<CapturedRequest> requests_;
    CannedReply reply_;
    std::function<CannedReply(const CapturedRequest&)> replyFor_;
};

// Sees the request head byte for byte, which cpp-httplib does not show (it
// drops headers with an empty value). Answers each connection with "{}" and
// closes it.
class RawCaptureServer
{
public:
    RawCaptureServer()
    {
        listener_ = ::socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        address.sin_port = 0;
        ::bind(listener_, reinterpret_cast<sockaddr*>(&address), sizeof(address));
        ::listen(listener_, 8);
        socklen_t length = sizeof(address);
        ::getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &length);
        port_ = ntohs(address.sin_port);
        thread_ = std::thread([this] { Serve(); });
    }

    ~RawCaptureServer()
    {
        ::shutdown(listener_, SHUT_RDWR);
        ::close(listener_);
        thread_.join();
    }

    std::string Url(const std::string& prefix = "") const
    {
        return "http://127.0.0.1:" + std::to_string(port_) + prefix;
    }

    // The head of the last request, request line and headers, CRLF-separated.
    std::string LastHead() const
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return lastHead_;
    }

private:
    void Serve()
    {
        for (;;) {
            const int connection = ::accept(listener_, nullptr, nullptr);
            if (connection < 0) {
                return;
            }
            std::string received;
            char buffer[4096];
            while (received.find("\r\n\r\n") == std::string::npos) {
                const ssize_t count = ::recv(connection, buffer, sizeof(buffer), 0);
                if (count <= 0) {
                    break;
                }
                received.append(buffer, static_cast<size_t>(count));
            }
            {
                std::lock_guard<std::mutex> lock(mutex_);
                lastHead_ = received.substr(0, received.find("\r\n\r\n") + 2);
            }
            const std::string reply = "HTTP/1.1 200 OK\r\nContent-Length: 2\r\nConnection: close\r\n\r\n{}";
            ::send(connection, reply.data(), reply.size(), MSG_NOSIGNAL);
            ::close(connection);
        }
    }

    int listener_ = -1;
    int port_ = 0;
    std::thread thread_;
    mutable std::mutex mutex_;
    std::string lastHead_;
};
