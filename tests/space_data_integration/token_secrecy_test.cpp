// The session's access token travels in headers and form bodies; it must
// never reach a log line, a log file, an operation record or the text of a
// failed transfer, whatever the services answer.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/space_load.h"
#include "foundation/utilities.h"
#include "host/file_logger.h"
#include "host/host_config.h"
#include "host/logger_sink.h"
#include "platform/any_http_request.h"
#include "space_fixture.h"

namespace {

using spacemgm_test::CloudEmulator;

// The token as it may appear: raw, and in the URL-encoded form used in the
// Authorization value and the NSP forms.
std::vector<std::string> TokenForms(const std::string& token)
{
    return {token, UrlEncode(token)};
}

void ExpectNoTokenIn(const std::string& where, const std::string& text, const std::string& token)
{
    for (const std::string& form : TokenForms(token)) {
        EXPECT_EQ(text.find(form), std::string::npos) << where << " holds the access token: " << text;
    }
}

std::string ReadWhole(const std::filesystem::path& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// One load and every deletion, the way the window would run them.
void LoadAndDeleteEverything(CloudSpaceManagementViewModel& viewModel)
{
    app::RunUsageLoad(viewModel);
    viewModel.DeleteMessage(Message);
    viewModel.DeleteMessage(Phone);
    viewModel.DeleteMessage(HarassmentInterception);
    if (!viewModel.model->backups.empty()) {
        viewModel.DeleteBackItem(viewModel.model->backups.front());
    }
}

void ExpectNothingLoggedHoldsTheToken(const Logger::ScopedMemorySink& sink, const host::HostConfig& config)
{
    const std::string& token = config.session.accessToken;
    ASSERT_FALSE(sink.Records().empty()) << "the run logged nothing, so it proves nothing";
    for (const Logger::Record& record : sink.Records()) {
        ExpectNoTokenIn(record.function, record.message, token);
    }
    for (const Logger::OperationRecord& record : sink.OperationRecords()) {
        for (const auto& [key, value] : record.values) {
            ExpectNoTokenIn("operation record", WideToUtf8(key) + "=" + WideToUtf8(value), token);
        }
    }
    host::FlushLogFiles();
    int files = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(config.logDir)) {
        if (entry.is_regular_file()) {
            ++files;
            ExpectNoTokenIn(entry.path().string(), ReadWhole(entry.path()), token);
        }
    }
    EXPECT_GT(files, 0) << "no log file was written under " << config.logDir;
}

class TokenSecrecy : public ::testing::Test
{
protected:
    void TearDown() override { host::SetCurrentHostConfig(host::DefaultHostConfig()); }
};

TEST_F(TokenSecrecy, NoLogLineOrFileHoldsTheTokenAfterALoadAndEveryDeletion)
{
    CloudEmulator cloud;
    const host::HostConfig config = space_test::ConfigFor(cloud);
    ASSERT_FALSE(config.session.accessToken.empty());
    host::SetCurrentHostConfig(config);

    Logger::ScopedMemorySink sink;
    {
        space_test::WiredViewModel wired;
        LoadAndDeleteEverything(wired.viewModel);
        EXPECT_FALSE(wired.viewModel.model->items.empty()) << "the load found nothing to show";
    }
    ExpectNothingLoggedHoldsTheToken(sink, config);
}

// Error replies are where a careless logger would echo what it sent.
TEST_F(TokenSecrecy, NoLogLineOrFileHoldsTheTokenWhenEveryServiceFails)
{
    CloudEmulator cloud;
    const host::HostConfig config = space_test::ConfigFor(cloud);
    host::SetCurrentHostConfig(config);
    Json::Value rule;
    rule["kind"] = "status";
    rule["status"] = 401;
    cloud.AddFault(rule);

    Logger::ScopedMemorySink sink;
    {
        space_test::WiredViewModel wired;
        LoadAndDeleteEverything(wired.viewModel);
        EXPECT_TRUE(wired.viewModel.model->items.empty());
    }
    ExpectNothingLoggedHoldsTheToken(sink, config);
}

TEST_F(TokenSecrecy, AFailedTransferDoesNotNameTheToken)
{
    CloudEmulator cloud;
    host::HostConfig config = space_test::ConfigFor(cloud);
    host::SetCurrentHostConfig(config);
    const std::string token = config.session.accessToken;
    const std::string url = cloud.BaseUrl("nsp") + "?access_token=" + UrlEncode(token);
    cloud.Stop();

    AnyHttpRequest request(url, AnyHttpPost);
    request.SetBaseUrl(url);
    request.Initialize(AnyHttpPost, {{"Authorization", "Bearer " + token}},
                       "access_token=" + UrlEncode(token), 3, 3, 0, 0);
    AnyHttpHeaderMap received;
    try {
        request.SendWebRequest(received);
        FAIL() << "a send to a stopped server succeeded";
    } catch (const std::exception& error) {
        ExpectNoTokenIn("the transfer error", error.what(), token);
    }
}

} // namespace
