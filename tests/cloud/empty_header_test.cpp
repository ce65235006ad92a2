// A header sent with an empty value is on the wire: the emulator sees it as
// present and empty, over plain HTTP and TLS, while a header left out is
// still refused. And an idle keep-alive connection does not hold up a stop.
#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <chrono>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include "cloud_test_client.h"

namespace spacemgm_test {
namespace {

const char* const kPhotoFilter = "collection=photo and (trashed=true or trashed=false)";

CloudReply PhotoQuotaWithDeviceName(const CloudEmulator& cloud, const std::function<void(HeaderList&)>& tweak)
{
    CloudTestClient client(cloud, "sample");
    return client.Send("familyShare", "POST", "/rest.php",
                       QuotaForm(client.Session().accessToken, kPhotoFilter, "10880002"), tweak);
}

Json::Value LastEntry(const CloudEmulator& cloud)
{
    const Json::Value log = cloud.RequestLog();
    return log.empty() ? Json::Value() : log[log.size() - 1];
}

TEST(EmptyHeader, EmptyDeviceNameIsPresentAndAccepted)
{
    CloudEmulator cloud;
    CloudReply r =
        PhotoQuotaWithDeviceName(cloud, [](HeaderList& h) { SetHeader(h, "x-zp-device-name", ""); });
    EXPECT_EQ(r.status, 200) << r.body;
    EXPECT_EQ(r.json["retCode"].asInt(), 0) << r.body;
    const Json::Value entry = LastEntry(cloud);
    EXPECT_EQ(entry["verdict"].asString(), "ok");
    ASSERT_TRUE(entry["headers"].isMember("x-zp-device-name")) << entry.toStyledString();
    EXPECT_EQ(entry["headers"]["x-zp-device-name"].asString(), "");
}

TEST(EmptyHeader, LeftOutDeviceNameIsStillRefused)
{
    CloudEmulator cloud;
    CloudReply r =
        PhotoQuotaWithDeviceName(cloud, [](HeaderList& h) { RemoveHeader(h, "x-zp-device-name"); });
    EXPECT_EQ(r.status, 400) << r.body;
    EXPECT_EQ(LastEntry(cloud)["verdict"].asString(), "refused: x-zp-device-name: missing");
}

TEST(EmptyHeader, EmptyHeaderIsSeenOverTls)
{
    CloudEmulator::Options options;
    options.tls = true;
    CloudEmulator cloud(options);
    CloudReply r = PhotoQuotaWithDeviceName(cloud, [](HeaderList& h) {
        SetHeader(h, "x-zp-device-name", "");
        SetHeader(h, "x-probe-empty", "");
    });
    EXPECT_EQ(r.curlCode, 0);
    EXPECT_EQ(r.status, 200) << r.body;
    const Json::Value headers = LastEntry(cloud)["headers"];
    EXPECT_EQ(headers.get("x-zp-device-name", "absent").asString(), "");
    EXPECT_EQ(headers.get("x-probe-empty", "absent").asString(), "");
}

TEST(EmptyHeader, EmptyHeaderSentTwiceIsCountedTwice)
{
    CloudEmulator cloud;
    CloudTestClient client(cloud, "sample");
    // Two empty lines of one name: the trace id check wants exactly one.
    CloudReply r =
        client.Send("familyShare", "POST", "/rest.php",
                    QuotaForm(client.Session().accessToken, kPhotoFilter, "10880002"), [](HeaderList& h) {
                        RemoveHeader(h, "x-zp-trace-id");
                        h.emplace_back("x-zp-trace-id", "");
                        h.emplace_back("x-zp-trace-id", "");
                    });
    EXPECT_EQ(r.status, 400) << r.body;
    EXPECT_EQ(LastEntry(cloud)["verdict"].asString(), "refused: x-zp-trace-id: expected exactly one");
}

TEST(EmptyHeader, IdleKeepAliveConnectionDoesNotDelayTheStop)
{
    CloudEmulator cloud;
    const int sock = ::socket(AF_INET, SOCK_STREAM, 0);
    ASSERT_GE(sock, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<uint16_t>(cloud.Port()));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    ASSERT_EQ(::connect(sock, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    const std::string request = "GET /_admin/ready HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n";
    ASSERT_EQ(::send(sock, request.data(), request.size(), MSG_NOSIGNAL),
              static_cast<ssize_t>(request.size()));
    char reply[512];
    ASSERT_GT(::recv(sock, reply, sizeof reply, 0), 0);

    // The connection stays open and idle; the emulator keeps such a one for
    // 30 s, and its support object kills it after 5 s.
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(cloud.Stop(), 0);
    const auto took = std::chrono::steady_clock::now() - start;
    EXPECT_LT(took, std::chrono::seconds(2));
    ::close(sock);
}

} // namespace
} // namespace spacemgm_test
