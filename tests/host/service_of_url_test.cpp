#include <gtest/gtest.h>

#include "host/service_of_url.h"

namespace {

host::ServiceUrls Services()
{
    host::ServiceUrls urls;
    urls.familyShare = "http://127.0.0.1:4000/family";
    urls.nsp = "http://127.0.0.1:4000/nsp";
    urls.accountQuota = "http://127.0.0.1:4000/account/quota";
    urls.cbs = "https://cloud.example.com/";
    urls.omConfig = "http://127.0.0.1:4000/om/SpaceOMConfig.json?v=2";
    return urls;
}

} // namespace

TEST(ServiceOfUrl, ThePathFollowsTheServiceAddressWithoutTheQuery)
{
    const auto found = host::ServiceOfUrl(Services(), "http://127.0.0.1:4000/family/user/v1/quota/drive?a=b");
    EXPECT_EQ(found.service, "familyShare");
    EXPECT_EQ(found.path, "/user/v1/quota/drive");
}

TEST(ServiceOfUrl, AServiceAddressIsMatchedWhole)
{
    EXPECT_EQ(host::ServiceOfUrl(Services(), "http://127.0.0.1:4000/nsp").service, "nsp");
    EXPECT_EQ(host::ServiceOfUrl(Services(), "http://127.0.0.1:4000/nsp?traceId=1").path, "");
    const auto other = host::ServiceOfUrl(Services(), "http://127.0.0.1:4000/nspx/y");
    EXPECT_EQ(other.service, "");
    EXPECT_EQ(other.path, "/nspx/y");
}

TEST(ServiceOfUrl, AnAddressEndingInASlashAndOneWithAQuery)
{
    const auto backup = host::ServiceOfUrl(Services(), "https://cloud.example.com/CloudBackup/ClientServlet");
    EXPECT_EQ(backup.service, "cbs");
    EXPECT_EQ(backup.path, "CloudBackup/ClientServlet");
    EXPECT_EQ(host::ServiceOfUrl(Services(), "http://127.0.0.1:4000/om/SpaceOMConfig.json").service,
              "omConfig");
}

TEST(ServiceOfUrl, TheLongestAddressWins)
{
    host::ServiceUrls urls;
    urls.basic = "http://h/api";
    urls.portal = "http://h/api/portal";
    EXPECT_EQ(host::ServiceOfUrl(urls, "http://h/api/portal/x").service, "portal");
    EXPECT_EQ(host::ServiceOfUrl(urls, "http://h/api/other").service, "basic");
}
