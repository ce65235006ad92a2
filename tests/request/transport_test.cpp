// AnyHttpRequest on libcurl against a loopback server: what goes on the wire,
// what comes back, and how a failed transfer is reported.
#include <gtest/gtest.h>

#include <stdexcept>

#include "platform/any_http_request.h"
#include "tests/request/request_test_env.h"

namespace {

class TransportTest : public ::testing::Test
{
protected:
    void SetUp() override { host::SetCurrentHostConfig(ConfigFor(server)); }

    CResponseInfo Send(AnyHttpRequestMethod method, const AnyHttpHeaderMap& headers, const std::string& body,
                       AnyHttpHeaderMap& received, const std::string& path = "/plain")
    {
        AnyHttpRequest request(server.Url(path), method);
        request.SetBaseUrl(server.Url(path));
        request.Initialize(method, headers, body, 30, 3, 0, 0);
        return request.SendWebRequest(received);
    }

    CaptureServer server;
};

TEST_F(TransportTest, HeadersGoOutExactlyAsSetWithoutCurlDefaults)
{
    AnyHttpHeaderMap received;
    Send(AnyHttpPost, {{"User-Agent", "NuvoraPC/11.2.4.301"}, {"x-custom", "v"}}, std::string(2048, 'x'),
         received);
    const CapturedRequest request = server.Last();
    EXPECT_EQ(request.Header("User-Agent"), "NuvoraPC/11.2.4.301");
    EXPECT_EQ(request.Header("x-custom"), "v");
    EXPECT_FALSE(request.Has("Accept"));
    EXPECT_FALSE(request.Has("Expect"));
    EXPECT_FALSE(request.Has("Content-Type"));
    EXPECT_FALSE(request.Has("Accept-Encoding"));
    // Only what the protocol needs is added.
    for (const auto& [name, value] : request.headers) {
        EXPECT_TRUE(name == "User-Agent" || name == "x-custom" || name == "Host" || name == "Content-Length")
            << "unexpected header " << name;
    }
}

TEST(TransportWire, EmptyHeaderValueIsSentPresentAndEmpty)
{
    RawCaptureServer raw;
    AnyHttpRequest request(raw.Url("/plain"), AnyHttpGet);
    request.Initialize(AnyHttpGet, {{"x-zp-trace-id", ""}, {"version", ""}, {"Authorization", "Bearer "}}, "",
                       5, 3, 0, 0);
    AnyHttpHeaderMap received;
    EXPECT_EQ(request.SendWebRequest(received).status, 200);
    const std::string head = raw.LastHead();
    EXPECT_NE(head.find("\r\nx-zp-trace-id:\r\n"), std::string::npos) << head;
    EXPECT_NE(head.find("\r\nversion:\r\n"), std::string::npos) << head;
    EXPECT_NE(head.find("\r\nAuthorization: Bearer \r\n"), std::string::npos) << head;
}

TEST_F(TransportTest, PostCarriesTheBodyAndGetDoesNot)
{
    AnyHttpHeaderMap received;
    Send(AnyHttpPost, {{"Content-Type", "application/json"}}, "{\"a\":1}", received);
    EXPECT_EQ(server.Last().method, "POST");
    EXPECT_EQ(server.Last().body, "{\"a\":1}");
    EXPECT_EQ(server.Last().Header("Content-Type"), "application/json");

    Send(AnyHttpGet, {}, "", received);
    EXPECT_EQ(server.Last().method, "GET");
    EXPECT_EQ(server.Last().body, "");
}

TEST_F(TransportTest, StatusBodyAndResponseHeadersComeBack)
{
    CannedReply reply;
    reply.status = 503;
    reply.body = "busy";
    reply.headers["Retry-After"] = "60";
    server.Reply(reply);
    AnyHttpHeaderMap received;
    const CResponseInfo response = Send(AnyHttpGet, {}, "", received);
    EXPECT_EQ(response.status, 503);
    EXPECT_EQ(response.body, "busy");
    EXPECT_EQ(received["Retry-After"], "60");
}

TEST_F(TransportTest, RefusedConnectionThrows)
{
    int closedPort = 0;
    {
        CaptureServer gone;
        closedPort = gone.Port();
    }
    AnyHttpRequest request("http://127.0.0.1:" + std::to_string(closedPort) + "/x", AnyHttpGet);
    request.Initialize(AnyHttpGet, {}, "", 5, 3, 0, 0);
    AnyHttpHeaderMap received;
    EXPECT_THROW(request.SendWebRequest(received), std::runtime_error);
}

TEST_F(TransportTest, TimeoutIsReadInSecondsAndEndsTheTransferWithAnException)
{
    host::HostConfig config = ConfigFor(server);
    config.timeoutSeconds.reset();
    host::SetCurrentHostConfig(config);
    CannedReply slow;
    slow.delay = std::chrono::milliseconds(2500);
    server.Reply(slow);
    AnyHttpRequest request(server.Url("/slow"), AnyHttpGet);
    request.Initialize(AnyHttpGet, {}, "", 1, 3, 0, 0);
    AnyHttpHeaderMap received;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_THROW(request.SendWebRequest(received), std::runtime_error);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(2400));
}

TEST_F(TransportTest, AFileUrlIsRefusedWithoutReadingTheFile)
{
    AnyHttpRequest request("file:///etc/passwd#", AnyHttpGet);
    request.Initialize(AnyHttpGet, {}, "", 5, 3, 0, 0);
    AnyHttpHeaderMap received;
    try {
        const CResponseInfo reply = request.SendWebRequest(received);
        FAIL() << "a file URL was fetched: " << reply.body.size() << " bytes";
    } catch (const std::runtime_error& error) {
        EXPECT_NE(std::string(error.what()).find("Unsupported protocol"), std::string::npos) << error.what();
    }
}

TEST_F(TransportTest, ProtocolsOtherThanHttpAreRefusedAtOnce)
{
    for (const char* url : {"gopher://127.0.0.1:1/x", "ftp://127.0.0.1:1/x", "dict://127.0.0.1:1/x",
                            "telnet://127.0.0.1:1", "scp://127.0.0.1:1/x"}) {
        AnyHttpRequest request(url, AnyHttpGet);
        request.Initialize(AnyHttpGet, {}, "", 5, 3, 0, 0);
        AnyHttpHeaderMap received;
        try {
            request.SendWebRequest(received);
            ADD_FAILURE() << url << " was fetched";
        } catch (const std::runtime_error& error) {
            EXPECT_NE(std::string(error.what()).find("Unsupported protocol"), std::string::npos)
                << url << ": " << error.what();
        }
    }
}

TEST_F(TransportTest, ARedirectIsHandedBackAndNotFollowed)
{
    CannedReply redirect;
    redirect.status = 302;
    redirect.body = "";
    redirect.headers["Location"] = "file:///etc/passwd";
    server.Reply(redirect);
    AnyHttpRequest request(server.Url("/moved"), AnyHttpGet);
    request.Initialize(AnyHttpGet, {}, "", 5, 3, 0, 0);
    AnyHttpHeaderMap received;
    const CResponseInfo reply = request.SendWebRequest(received);
    EXPECT_EQ(reply.status, 302);
    EXPECT_EQ(reply.body, "");
    EXPECT_EQ(server.Count(), 1u);
}

TEST_F(TransportTest, FailureTextNeverHoldsTheToken)
{
    AnyHttpRequest request("http://127.0.0.1:1/x", AnyHttpGet);
    request.Initialize(AnyHttpGet, {{"Authorization", "Bearer secret-token-value"}}, "", 5, 3, 0, 0);
    AnyHttpHeaderMap received;
    try {
        request.SendWebRequest(received);
        FAIL() << "a refused connection must throw";
    } catch (const std::runtime_error& error) {
        EXPECT_EQ(std::string(error.what()).find("secret-token-value"), std::string::npos);
    }
}

TEST_F(TransportTest, Http2RequestOverPlainHttpFallsBackToHttp11)
{
    AnyHttpRequest request(server.Url("/h2"), AnyHttpPost);
    request.SetHttpVersion(2);
    request.Initialize(AnyHttpPost, {}, "a=b", 5, 3, 0, 0);
    AnyHttpHeaderMap received;
    EXPECT_EQ(request.SendWebRequest(received).status, 200);
    EXPECT_EQ(server.Last().body, "a=b");
    EXPECT_FALSE(server.Last().Has("Upgrade"));
}

TEST_F(TransportTest, ConcurrentRequestsShareTheCacheSafely)
{
    std::vector<std::thread> threads;
    std::atomic<int> ok{0};
    for (int i = 0; i < 12; ++i) {
        threads.emplace_back([this, &ok] {
            AnyHttpRequest request(server.Url("/concurrent"), AnyHttpGet);
            request.Initialize(AnyHttpGet, {}, "", 5, 3, 0, 0);
            AnyHttpHeaderMap received;
            if (request.SendWebRequest(received).status == 200) {
                ++ok;
            }
        });
    }
    for (auto& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(ok.load(), 12);
    EXPECT_EQ(server.Count(), 12u);
}

} // namespace
