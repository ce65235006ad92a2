// --tls: HTTPS with a certificate made at start, verified against the CA file
// the emulator writes for the client.
#include <gtest/gtest.h>

#include <fstream>

#include <curl/curl.h>

#include "cloud_test_client.h"

namespace spacemgm_test {
namespace {

TEST(Tls, ServesHttpsVerifiedByItsCaFile)
{
    CloudEmulator::Options options;
    options.tls = true;
    CloudEmulator cloud(options);
    ASSERT_FALSE(cloud.CaFile().empty());
    EXPECT_EQ(cloud.BaseUrl("familyShare").rfind("https://127.0.0.1:", 0), 0u);
    CloudTestClient client(cloud, "sample");
    CloudReply r = client.QuotaQuery("collection=photo and (trashed=true or trashed=false)", "10880002");
    EXPECT_EQ(r.curlCode, 0);
    EXPECT_EQ(r.status, 200) << r.body;
    EXPECT_EQ(r.json["retCode"].asInt(), 0);
}

TEST(Tls, PeerVerificationFailsWithoutTheCaFile)
{
    CloudEmulator::Options options;
    options.tls = true;
    CloudEmulator cloud(options);
    // An empty CA bundle: nothing to trust.
    std::string empty = cloud.WorkDir() + "/empty.pem";
    std::ofstream(empty) << "";
    HttpResult r = HttpExchange("GET", cloud.Root() + "/_admin/ready", {}, "", empty);
    EXPECT_NE(r.curlCode, 0);
    EXPECT_EQ(r.status, 0);
}

TEST(Tls, HostConfigNamesTheCaFile)
{
    CloudEmulator::Options options;
    options.tls = true;
    CloudEmulator cloud(options);
    std::ifstream in(cloud.ConfigPath());
    std::stringstream text;
    text << in.rdbuf();
    Json::Value config = ParseJsonText(text.str());
    EXPECT_EQ(config["caFile"].asString(), cloud.CaFile());
    std::ifstream ca(cloud.CaFile());
    std::string first;
    std::getline(ca, first);
    EXPECT_EQ(first, "-----BEGIN CERTIFICATE-----");
}

} // namespace
} // namespace spacemgm_test
