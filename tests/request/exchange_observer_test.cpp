// The transport tells its observers of every exchange: which service, which
// path, the status or the transport failure, and how long it took.
#include <gtest/gtest.h>

#include <mutex>
#include <stdexcept>
#include <thread>
#include <vector>

#include "host/exchange_observer.h"
#include "platform/any_http_request.h"
#include "platform/user_space.h"
#include "tests/request/request_test_env.h"

namespace {

class Recorder : public host::ExchangeObserver
{
public:
    void OnExchangeStarted(const host::ExchangeStart& start) override
    {
        std::lock_guard<std::mutex> lock(mutex_);
        starts_.push_back(start);
    }
    void OnExchangeEnded(const host::ExchangeRecord& record, const std::string& body) override
    {
        std::lock_guard<std::mutex> lock(mutex_);
        records_.push_back(record);
        bodies_.push_back(body);
    }
    void OnReplyRefused(std::uint64_t id, const std::string& why) override
    {
        std::lock_guard<std::mutex> lock(mutex_);
        refusals_.emplace_back(id, why);
    }
    void OnExchangeThreadEnded() override
    {
        std::lock_guard<std::mutex> lock(mutex_);
        ++threadsEnded_;
    }

    std::vector<host::ExchangeStart> starts_;
    std::vector<host::ExchangeRecord> records_;
    std::vector<std::string> bodies_;
    std::vector<std::pair<std::uint64_t, std::string>> refusals_;
    int threadsEnded_ = 0;

private:
    std::mutex mutex_;
};

class ExchangeObserverTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        config_ = ConfigFor(server_);
        host::SetCurrentHostConfig(config_);
    }

    CResponseInfo Get(const std::string& url)
    {
        AnyHttpRequest request(url, AnyHttpGet);
        request.Initialize(AnyHttpGet, {}, "", 30, 3, 0, 0);
        AnyHttpHeaderMap received;
        return request.SendWebRequest(received);
    }

    CaptureServer server_;
    host::HostConfig config_;
    Recorder recorder_;
};

} // namespace

TEST_F(ExchangeObserverTest, AnExchangeIsReportedWithServicePathStatusAndTime)
{
    host::ScopedExchangeObserver attach(recorder_);
    CannedReply reply;
    reply.status = 401;
    reply.body = R"({"retCode":401})";
    reply.delay = std::chrono::milliseconds(50);
    server_.Reply(reply);
    Get(server_.Url("/family/user/v1/quota/drive?x=1"));
    ASSERT_EQ(recorder_.starts_.size(), 1u);
    ASSERT_EQ(recorder_.records_.size(), 1u);
    const host::ExchangeRecord& record = recorder_.records_[0];
    EXPECT_EQ(record.id, recorder_.starts_[0].id);
    EXPECT_EQ(record.service, "familyShare");
    EXPECT_EQ(record.path, "/user/v1/quota/drive");
    EXPECT_EQ(record.status, 401);
    EXPECT_EQ(record.failure, host::TransportFailure::None);
    EXPECT_EQ(record.timeoutSeconds, 5);
    EXPECT_GE(record.seconds, 0.05);
    EXPECT_EQ(recorder_.bodies_[0], R"({"retCode":401})");
}

TEST_F(ExchangeObserverTest, ATimeoutIsReportedAsSuchWithItsLimit)
{
    config_.timeoutSeconds = 1;
    host::SetCurrentHostConfig(config_);
    host::ScopedExchangeObserver attach(recorder_);
    CannedReply slow;
    slow.delay = std::chrono::milliseconds(2500);
    server_.Reply(slow);
    EXPECT_THROW(Get(server_.Url("/cbs/CloudBackup/ClientServlet")), std::runtime_error);
    ASSERT_EQ(recorder_.records_.size(), 1u);
    const host::ExchangeRecord& record = recorder_.records_[0];
    EXPECT_EQ(record.service, "cbs");
    EXPECT_EQ(record.path, "/CloudBackup/ClientServlet");
    EXPECT_EQ(record.status, 0);
    EXPECT_EQ(record.failure, host::TransportFailure::Timeout);
    EXPECT_EQ(record.timeoutSeconds, 1);
    EXPECT_NE(record.transportError.find("Timeout"), std::string::npos) << record.transportError;
}

TEST_F(ExchangeObserverTest, ARefusedConnectionIsAConnectFailure)
{
    int closedPort = 0;
    {
        CaptureServer gone;
        closedPort = gone.Port();
    }
    host::ScopedExchangeObserver attach(recorder_);
    EXPECT_THROW(Get("http://127.0.0.1:" + std::to_string(closedPort) + "/elsewhere/x?y"),
                 std::runtime_error);
    ASSERT_EQ(recorder_.records_.size(), 1u);
    EXPECT_EQ(recorder_.records_[0].failure, host::TransportFailure::Connect);
    EXPECT_EQ(recorder_.records_[0].service, "");
    EXPECT_EQ(recorder_.records_[0].path, "/elsewhere/x");
}

TEST_F(ExchangeObserverTest, AQuotaReplyTheHostCannotReadIsReportedAsRefused)
{
    config_.services.accountQuota = server_.Url("/account/quota");
    host::SetCurrentHostConfig(config_);
    host::ScopedExchangeObserver attach(recorder_);
    CannedReply reply;
    reply.body = std::string(5000, '[');
    server_.Reply(reply);
    NS::Drive::UserSpaceInfo info;
    EXPECT_FALSE(NS::Drive::UserSpace::QueryUserSpace(info, true));
    ASSERT_EQ(recorder_.records_.size(), 1u);
    EXPECT_EQ(recorder_.records_[0].service, "accountQuota");
    EXPECT_EQ(recorder_.records_[0].path, "");
    ASSERT_EQ(recorder_.refusals_.size(), 1u);
    EXPECT_EQ(recorder_.refusals_[0].first, recorder_.records_[0].id);
    EXPECT_EQ(recorder_.refusals_[0].second, "the reply is not a quota");
}

TEST_F(ExchangeObserverTest, AThreadThatExchangedReportsItsEnd)
{
    host::ScopedExchangeObserver attach(recorder_);
    std::thread worker([this] { Get(server_.Url("/pimds/Statistic/Wlan")); });
    worker.join();
    std::thread idle([] {});
    idle.join();
    EXPECT_EQ(recorder_.threadsEnded_, 1);
}

TEST_F(ExchangeObserverTest, NothingIsReportedOnceDetached)
{
    {
        host::ScopedExchangeObserver attach(recorder_);
    }
    Get(server_.Url("/nsp"));
    EXPECT_TRUE(recorder_.records_.empty());
}
