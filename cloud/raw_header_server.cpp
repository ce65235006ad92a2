#include "raw_header_server.h"

#include <algorithm>
#include <arpa/inet.h>
#include <cctype>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <openssl/ssl.h>

namespace cloud {

namespace {

// The request head never grows past what httplib itself accepts; a client
// that sends more is refused by the library before the head matters.
constexpr size_t kMaxRecordedHead = 64 * 1024;
constexpr int kIdlePollMs = 50;

std::string Trimmed(const std::string& text)
{
    const size_t first = text.find_first_not_of(" \t");
    if (first == std::string::npos)
        return "";
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

void AddressOf(int sock, bool peer, std::string& ip, int& port)
{
    sockaddr_storage address{};
    socklen_t length = sizeof address;
    const int rc = peer ? ::getpeername(sock, reinterpret_cast<sockaddr*>(&address), &length)
                        : ::getsockname(sock, reinterpret_cast<sockaddr*>(&address), &length);
    ip.clear();
    port = 0;
    if (rc != 0)
        return;
    char text[INET6_ADDRSTRLEN] = {0};
    if (address.ss_family == AF_INET) {
        const auto* v4 = reinterpret_cast<const sockaddr_in*>(&address);
        ::inet_ntop(AF_INET, &v4->sin_addr, text, sizeof text);
        port = ntohs(v4->sin_port);
    } else if (address.ss_family == AF_INET6) {
        const auto* v6 = reinterpret_cast<const sockaddr_in6*>(&address);
        ::inet_ntop(AF_INET6, &v6->sin6_addr, text, sizeof text);
        port = ntohs(v6->sin6_port);
    }
    ip = text;
}

// A buffered socket stream, plain or TLS, that can keep a copy of the bytes
// it hands to the request parser. httplib reads the request head one byte at
// a time, so the copy taken until the head is parsed is exactly the head.
class RecordingStream : public httplib::Stream
{
public:
    RecordingStream(int sock, SSL* ssl, int readTimeoutMs, int writeTimeoutMs)
        : sock_(sock), ssl_(ssl), readTimeoutMs_(readTimeoutMs), writeTimeoutMs_(writeTimeoutMs)
    {
    }

    void StartRecording()
    {
        head_.clear();
        recording_ = true;
    }

    std::string TakeRecording()
    {
        recording_ = false;
        return std::move(head_);
    }

    // 1: a byte can be read without waiting, 0: not within `timeoutMs`, -1: error.
    int WaitReadable(int timeoutMs) const
    {
        if (begin_ < buffer_.size() || (ssl_ && SSL_pending(ssl_) > 0))
            return 1;
        pollfd fd{sock_, POLLIN, 0};
        const int rc = ::poll(&fd, 1, timeoutMs);
        return rc < 0 ? -1 : (rc > 0 ? 1 : 0);
    }

    bool is_readable() const override { return WaitReadable(readTimeoutMs_) > 0; }

    bool is_writable() const override
    {
        pollfd fd{sock_, POLLOUT, 0};
        return ::poll(&fd, 1, writeTimeoutMs_) > 0;
    }

    ssize_t read(char* ptr, size_t size) override
    {
        if (begin_ == buffer_.size()) {
            if (!is_readable())
                return -1;
            const ssize_t received = Fill();
            if (received <= 0)
                return received;
        }
        const size_t count = std::min(size, buffer_.size() - begin_);
        std::copy_n(buffer_.data() + begin_, count, ptr);
        if (recording_ && head_.size() < kMaxRecordedHead)
            head_.append(buffer_.data() + begin_, count);
        begin_ += count;
        return static_cast<ssize_t>(count);
    }

    ssize_t write(const char* ptr, size_t size) override
    {
        if (!is_writable())
            return -1;
        if (ssl_) {
            const int sent = SSL_write(ssl_, ptr, static_cast<int>(std::min<size_t>(size, 1 << 30)));
            return sent > 0 ? sent : -1;
        }
        return ::send(sock_, ptr, size, MSG_NOSIGNAL);
    }

    void get_remote_ip_and_port(std::string& ip, int& port) const override
    {
        AddressOf(sock_, true, ip, port);
    }
    void get_local_ip_and_port(std::string& ip, int& port) const override
    {
        AddressOf(sock_, false, ip, port);
    }
    socket_t socket() const override { return sock_; }

private:
    ssize_t Fill()
    {
        buffer_.resize(16 * 1024);
        begin_ = 0;
        ssize_t received;
        if (ssl_) {
            const int n = SSL_read(ssl_, buffer_.data(), static_cast<int>(buffer_.size()));
            received = n > 0 ? n : (SSL_get_error(ssl_, n) == SSL_ERROR_ZERO_RETURN ? 0 : -1);
        } else {
            received = ::recv(sock_, buffer_.data(), buffer_.size(), 0);
        }
        buffer_.resize(received > 0 ? static_cast<size_t>(received) : 0);
        return received;
    }

    int sock_;
    SSL* ssl_;
    int readTimeoutMs_;
    int writeTimeoutMs_;
    std::string buffer_;
    size_t begin_ = 0;
    bool recording_ = false;
    std::string head_;
};

void SetSocketTimeouts(int sock, time_t seconds)
{
    timeval tv{};
    tv.tv_sec = seconds;
    ::setsockopt(sock, SOL_SOCKET, SO_RCVTIMEO, &tv, sizeof tv);
    ::setsockopt(sock, SOL_SOCKET, SO_SNDTIMEO, &tv, sizeof tv);
}

class LoopbackBinding
{
public:
    virtual ~LoopbackBinding() = default;
    virtual int Bind(int port, std::string& error) = 0;
};

// Headers and body go out in two writes; without this, Nagle and delayed
// acknowledgements hold every reply for tens of milliseconds.
void SetNoDelay(int sock)
{
    int on = 1;
    ::setsockopt(sock, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
}

std::string SystemError(const std::string& what)
{
    std::string reason = std::strerror(errno);
    if (!reason.empty())
        reason[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(reason[0])));
    return what + ": " + reason;
}

int ListeningSocket(int port, std::string& error)
{
    const std::string where = "127.0.0.1:" + std::to_string(port);
    const int sock = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (sock < 0) {
        error = SystemError("cannot open a socket");
        return -1;
    }
    int on = 1;
    ::setsockopt(sock, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::bind(sock, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        ::listen(sock, SOMAXCONN) != 0) {
        error = SystemError("cannot listen on " + where);
        ::close(sock);
        return -1;
    }
    return sock;
}

// httplib's keep-alive loop, over a recording stream. It also ends an idle
// connection as soon as the server stops, where the library would wait out
// the whole keep-alive time first.
template <class Base> class RawHeaderServer : public Base, public LoopbackBinding
{
public:
    using Base::Base;

    int Bind(int port, std::string& error) override
    {
        const int sock = ListeningSocket(port, error);
        if (sock < 0)
            return -1;
        std::string ip;
        int bound = 0;
        AddressOf(sock, false, ip, bound);
        this->svr_sock_ = sock;
        return bound;
    }

protected:
    bool ServeConnection(RecordingStream& stream, SSL* ssl)
    {
        bool served = false;
        for (size_t left = this->keep_alive_max_count_; left > 0 && WaitForRequest(stream); --left) {
            bool connectionClosed = false;
            stream.StartRecording();
            served = this->process_request(stream, left == 1, connectionClosed, [&](httplib::Request& req) {
                AddEmptyHeaders(stream.TakeRecording(), req.headers);
                req.ssl = ssl;
            });
            if (!served || connectionClosed)
                break;
        }
        return served;
    }

    int ReadTimeoutMs() const
    {
        return static_cast<int>(this->read_timeout_sec_ * 1000 + this->read_timeout_usec_ / 1000);
    }
    int WriteTimeoutMs() const
    {
        return static_cast<int>(this->write_timeout_sec_ * 1000 + this->write_timeout_usec_ / 1000);
    }

private:
    bool WaitForRequest(const RecordingStream& stream) const
    {
        const auto deadline =
            std::chrono::steady_clock::now() + std::chrono::seconds(this->keep_alive_timeout_sec_);
        while (this->svr_sock_ != INVALID_SOCKET) {
            const int ready = stream.WaitReadable(kIdlePollMs);
            if (ready != 0)
                return ready > 0;
            if (std::chrono::steady_clock::now() >= deadline)
                return false;
        }
        return false;
    }
};

class PlainServer : public RawHeaderServer<httplib::Server>
{
private:
    bool process_and_close_socket(socket_t sock) override
    {
        SetNoDelay(sock);
        RecordingStream stream(sock, nullptr, ReadTimeoutMs(), WriteTimeoutMs());
        const bool served = ServeConnection(stream, nullptr);
        ::shutdown(sock, SHUT_RDWR);
        ::close(sock);
        return served;
    }
};

class TlsServer : public RawHeaderServer<httplib::SSLServer>
{
public:
    using RawHeaderServer<httplib::SSLServer>::RawHeaderServer;

private:
    bool process_and_close_socket(socket_t sock) override
    {
        bool served = false;
        SetNoDelay(sock);
        SetSocketTimeouts(sock, read_timeout_sec_ > 0 ? read_timeout_sec_ : 1);
        if (SSL* ssl = SSL_new(ssl_context())) {
            // A client that refuses the certificate ends here, in the handshake.
            if (SSL_set_fd(ssl, sock) == 1 && SSL_accept(ssl) == 1) {
                RecordingStream stream(sock, ssl, ReadTimeoutMs(), WriteTimeoutMs());
                served = ServeConnection(stream, ssl);
                if (served)
                    SSL_shutdown(ssl);
            }
            SSL_free(ssl);
        }
        ::shutdown(sock, SHUT_RDWR);
        ::close(sock);
        return served;
    }
};

} // namespace

std::unique_ptr<httplib::Server> MakeRawHeaderServer()
{
    return std::make_unique<PlainServer>();
}

std::unique_ptr<httplib::Server> MakeRawHeaderTlsServer(X509* certificate, EVP_PKEY* privateKey)
{
    return std::make_unique<TlsServer>(certificate, privateKey);
}

int BindLoopback(httplib::Server& server, int port, std::string& error)
{
    auto* binding = dynamic_cast<LoopbackBinding*>(&server);
    if (!binding) {
        error = "the server cannot be bound here";
        return -1;
    }
    return binding->Bind(port, error);
}

void AddEmptyHeaders(const std::string& head, httplib::Headers& headers)
{
    size_t start = head.find('\n');
    while (start != std::string::npos && start + 1 < head.size()) {
        ++start;
        size_t end = head.find('\n', start);
        std::string line = head.substr(start, end == std::string::npos ? std::string::npos : end - start);
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (line.empty())
            break;
        const size_t colon = line.find(':');
        if (colon != std::string::npos && colon > 0 && Trimmed(line.substr(colon + 1)).empty())
            headers.emplace(line.substr(0, colon), "");
        start = end;
    }
}

} // namespace cloud
