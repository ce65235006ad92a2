// spacemgm-cloud takes a burst of connections without dropping any: a
// dropped SYN costs its client a second before the retransmission.
#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <vector>

#include "cloud_emulator.h"

namespace spacemgm_test {
namespace {

constexpr int kBurst = 24;
// Well under the one second after which Linux sends a dropped SYN again.
constexpr int kConnectWindowMs = 600;

class Socket
{
public:
    Socket() : fd_(::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)) {}
    ~Socket()
    {
        if (fd_ >= 0)
            ::close(fd_);
    }
    Socket(Socket&& other) noexcept : fd_(other.fd_) { other.fd_ = -1; }
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;
    Socket& operator=(Socket&&) = delete;
    int fd() const { return fd_; }

private:
    int fd_;
};

// Starts a connection to 127.0.0.1:port without waiting for it.
bool StartConnect(const Socket& socket, int port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const int rc = ::connect(socket.fd(), reinterpret_cast<const sockaddr*>(&address), sizeof address);
    return rc == 0 || errno == EINPROGRESS;
}

// Counts the sockets whose handshake has completed by the deadline.
int CountEstablished(const std::vector<Socket>& sockets, std::chrono::steady_clock::time_point deadline)
{
    std::vector<bool> done(sockets.size(), false);
    int established = 0;
    while (established < static_cast<int>(sockets.size())) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0)
            break;
        std::vector<pollfd> pending;
        std::vector<size_t> index;
        for (size_t i = 0; i < sockets.size(); ++i) {
            if (!done[i]) {
                pending.push_back(pollfd{sockets[i].fd(), POLLOUT, 0});
                index.push_back(i);
            }
        }
        if (::poll(pending.data(), pending.size(), static_cast<int>(left.count())) <= 0)
            continue;
        for (size_t k = 0; k < pending.size(); ++k) {
            if (pending[k].revents == 0)
                continue;
            int error = 0;
            socklen_t length = sizeof error;
            ::getsockopt(pending[k].fd, SOL_SOCKET, SO_ERROR, &error, &length);
            done[index[k]] = true;
            if (error == 0)
                ++established;
        }
    }
    return established;
}

// The start delay keeps the accept loop from running, so every connection
// of the burst has to wait in the listen queue.
void ExpectBurstQueued(bool tls)
{
    CloudEmulator::Options options;
    options.tls = tls;
    options.startDelayMs = 3000;
    CloudEmulator cloud(options);

    std::vector<Socket> sockets;
    sockets.reserve(kBurst);
    for (int i = 0; i < kBurst; ++i) {
        sockets.emplace_back();
        ASSERT_GE(sockets.back().fd(), 0);
        ASSERT_TRUE(StartConnect(sockets.back(), cloud.Port())) << "connection " << i;
    }
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(kConnectWindowMs);
    EXPECT_EQ(CountEstablished(sockets, deadline), kBurst);
}

TEST(ListenBacklog, BurstOfConnectionsWaitsInTheQueueOverHttp)
{
    ExpectBurstQueued(false);
}

TEST(ListenBacklog, BurstOfConnectionsWaitsInTheQueueOverTls)
{
    ExpectBurstQueued(true);
}

} // namespace
} // namespace spacemgm_test
