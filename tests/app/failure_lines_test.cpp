#include <gtest/gtest.h>

#include <string>

#include "app/exchange_log.h"
#include "app/failure_lines.h"

namespace {

host::ExchangeRecord Record(const std::string& service, const std::string& path, int status)
{
    host::ExchangeRecord record;
    record.service = service;
    record.path = path;
    record.status = status;
    return record;
}

host::ExchangeRecord Failed(const std::string& service, const std::string& path,
                            host::TransportFailure failure)
{
    host::ExchangeRecord record = Record(service, path, 0);
    record.failure = failure;
    record.transportError = "HTTP transfer failed: Some libcurl text (detail)";
    record.timeoutSeconds = 100;
    return record;
}

std::string LineFor(const host::ExchangeRecord& record, const std::string& body = "{}")
{
    const auto problem = app::ProblemOf(record, body);
    if (!problem) {
        return "no problem";
    }
    app::FailedExchange failure;
    failure.service = record.service;
    failure.path = record.path;
    failure.failure = record.failure;
    failure.caFile = record.caFile;
    failure.problem = *problem;
    return app::FailureLine(failure);
}

} // namespace

TEST(FailureLines, ATimeoutNamesServicePathAndLimit)
{
    EXPECT_EQ(LineFor(Failed("familyShare", "/user/v1/quota/drive", host::TransportFailure::Timeout)),
              "family share: /user/v1/quota/drive: timed out after 100 s");
}

TEST(FailureLines, AStatusOfAFullUrlServiceHasNoPath)
{
    EXPECT_EQ(LineFor(Record("accountQuota", "", 401)), "account quota: HTTP 401");
    EXPECT_EQ(LineFor(Record("cbs", "/CloudBackup/ClientServlet", 500)),
              "cloud backup: /CloudBackup/ClientServlet: HTTP 500");
}

TEST(FailureLines, AnUntrustedCertificateNamesTheCaFile)
{
    host::ExchangeRecord record = Failed("nsp", "", host::TransportFailure::TlsUntrusted);
    record.caFile = "/home/a/ca.pem";
    EXPECT_EQ(LineFor(record), "TLS: certificate not trusted (caFile /home/a/ca.pem)");
    record.caFile.clear();
    EXPECT_EQ(LineFor(record), "TLS: certificate not trusted (the system's CA store)");
}

TEST(FailureLines, EveryTransportFailureInWords)
{
    using host::TransportFailure;
    EXPECT_EQ(LineFor(Failed("pimds", "/Statistic/Wlan", TransportFailure::Connect)),
              "data statistics: /Statistic/Wlan: could not connect");
    EXPECT_EQ(LineFor(Failed("nsp", "", TransportFailure::Resolve)), "file service: host name not found");
    EXPECT_EQ(LineFor(Failed("cloudPhoto", "/cloudPhoto/v1/about", TransportFailure::Closed)),
              "cloud photo: /cloudPhoto/v1/about: the connection closed before the reply was complete");
    EXPECT_EQ(LineFor(Failed("cloudSyncDrive", "/x", TransportFailure::TlsHandshake)),
              "data versions: /x: TLS handshake failed");
    EXPECT_EQ(LineFor(Failed("omConfig", "", TransportFailure::Other)),
              "operations configuration: transfer failed: Some libcurl text (detail)");
}

TEST(FailureLines, RepliesWithoutUsableContentAreFailures)
{
    const host::ExchangeRecord ok = Record("pimds", "/Statistic/Contact", 200);
    EXPECT_EQ(LineFor(ok, ""), "data statistics: /Statistic/Contact: empty reply");
    EXPECT_EQ(LineFor(ok, "[]"), "data statistics: /Statistic/Contact: empty reply ([])");
    EXPECT_EQ(LineFor(ok, "<html>busy</html>"), "data statistics: /Statistic/Contact: the reply is not JSON");
    EXPECT_EQ(LineFor(ok, std::string(5000, '[')),
              "data statistics: /Statistic/Contact: the reply is not JSON");
    EXPECT_EQ(LineFor(ok, R"({"result":{"errorNo":0}})"), "no problem");
}

TEST(FailureLines, NoPublishedOperationsConfigurationIsNoFailure)
{
    EXPECT_EQ(LineFor(Record("omConfig", "", 404), "404 not found"), "no problem");
    EXPECT_EQ(LineFor(Record("omConfig", "", 503), "busy"), "operations configuration: HTTP 503");
    EXPECT_EQ(LineFor(Record("familyShare", "/rest.php", 404)), "family share: /rest.php: HTTP 404");
}

TEST(FailureLines, AnUnknownServiceIsNamedByItsKey)
{
    EXPECT_EQ(LineFor(Record("", "/elsewhere", 502)), "unknown service: /elsewhere: HTTP 502");
}

TEST(FailureLines, EachLineIsListedOnce)
{
    app::FailedExchange tls;
    tls.failure = host::TransportFailure::TlsUntrusted;
    tls.problem = "certificate not trusted";
    tls.caFile = "/ca.pem";
    app::FailedExchange status;
    status.service = "accountQuota";
    status.problem = "HTTP 401";
    const auto lines = app::FailureLines({tls, status, tls, tls});
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0], "TLS: certificate not trusted (caFile /ca.pem)");
    EXPECT_EQ(lines[1], "account quota: HTTP 401");
}

TEST(ExchangeLog, ARefusedReplyTurnsASucceededExchangeIntoAFailure)
{
    app::ExchangeLog log;
    host::ExchangeRecord record = Record("accountQuota", "", 200);
    record.id = 41;
    log.OnExchangeEnded(record, R"({"used":"x"})");
    EXPECT_TRUE(log.Failures().empty());
    log.OnReplyRefused(41, "the reply is not a quota");
    ASSERT_EQ(log.Failures().size(), 1u);
    EXPECT_EQ(app::FailureLine(log.Failures()[0]), "account quota: the reply is not a quota");
    log.OnReplyRefused(41, "again");
    EXPECT_EQ(log.Failures().size(), 1u);
}

TEST(ExchangeLog, TheLongestRunningExchangeIsTheOldest)
{
    app::ExchangeLog log;
    host::ExchangeStart older;
    older.id = 1;
    older.service = "cbs";
    older.path = "/CloudBackup/ClientServlet";
    older.startedAt = std::chrono::steady_clock::now() - std::chrono::seconds(3);
    host::ExchangeStart newer = older;
    newer.id = 2;
    newer.service = "nsp";
    newer.startedAt = std::chrono::steady_clock::now();
    log.OnExchangeStarted(newer);
    log.OnExchangeStarted(older);
    ASSERT_TRUE(log.Longest());
    EXPECT_EQ(log.Longest()->service, "cbs");
    EXPECT_GE(log.Longest()->running, std::chrono::seconds(3));
    log.OnExchangeEnded(Record("cbs", "", 200), "{}");
    host::ExchangeRecord ended = Record("cbs", "", 200);
    ended.id = 1;
    log.OnExchangeEnded(ended, "{}");
    EXPECT_EQ(log.Longest()->service, "nsp");
}
