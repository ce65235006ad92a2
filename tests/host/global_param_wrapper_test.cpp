#include <gtest/gtest.h>

#include <fstream>

#include "host/host_config.h"
#include "platform/global_param_wrapper.h"

namespace {

class ConfigScope
{
public:
    explicit ConfigScope(const host::HostConfig& config) { host::SetCurrentHostConfig(config); }
    ~ConfigScope() { host::SetCurrentHostConfig(host::DefaultHostConfig()); }
};

} // namespace

TEST(GlobalParamWrapper, ServiceUrlsComeFromTheConfiguration)
{
    host::HostConfig config = host::DefaultHostConfig();
    config.services.nsp = "http://127.0.0.1:9/nsp";
    config.services.basic = "http://127.0.0.1:9/basic";
    config.services.portal = "http://127.0.0.1:9/portal";
    config.services.cloudPhoto = "http://127.0.0.1:9/photo";
    config.services.cbs = "http://127.0.0.1:9/cbs";
    config.services.pimds = "http://127.0.0.1:9/pimds";
    config.services.familyShare = "http://127.0.0.1:9/family";
    config.services.cloudSyncDrive = "http://127.0.0.1:9/drive";
    ConfigScope scope(config);
    EXPECT_EQ(GlobalParamWrapper::GetNspUrl(), L"http://127.0.0.1:9/nsp");
    EXPECT_EQ(GlobalParamWrapper::GetBasicUrl(), L"http://127.0.0.1:9/basic");
    EXPECT_EQ(GlobalParamWrapper::GetPortalUrl(), L"http://127.0.0.1:9/portal");
    EXPECT_EQ(GlobalParamWrapper::GetCloudPhotoUrl(), L"http://127.0.0.1:9/photo");
    EXPECT_EQ(GlobalParamWrapper::GetCBSUrl(), L"http://127.0.0.1:9/cbs");
    EXPECT_EQ(GlobalParamWrapper::GetPIMDSUrl(), L"http://127.0.0.1:9/pimds");
    EXPECT_EQ(GlobalParamWrapper::GetFamilyShareUrl(), L"http://127.0.0.1:9/family");
    EXPECT_EQ(GlobalParamWrapper::GetCloudSyncDriveUrl(), L"http://127.0.0.1:9/drive");
}

TEST(GlobalParamWrapper, CountryAndDataFolderBothCallForms)
{
    host::HostConfig config = host::DefaultHostConfig();
    config.session.country = "CN";
    config.dataDir = "/var/lib/spacemgm";
    ConfigScope scope(config);
    EXPECT_EQ(GlobalParamWrapper::GetCountryCode(), L"CN");
    EXPECT_EQ(GlobalParamWrapper::GetInstance()->GetCountryCode(), L"CN");
    EXPECT_EQ(GlobalParamWrapper::GetInstance()->GetAppDataLocalPath(), L"/var/lib/spacemgm");
    EXPECT_EQ(GlobalParamWrapper::GetInstance(), GlobalParamWrapper::GetInstance());
}

TEST(GlobalParamWrapper, DecimalCommaIsOffWithoutConfiguration)
{
    ConfigScope scope(host::DefaultHostConfig());
    EXPECT_FALSE(GlobalParamWrapper::IsReplaceCommaCountry());
}

TEST(GlobalParamWrapper, DecimalCommaFollowsTheConfiguration)
{
    host::HostConfig config = host::DefaultHostConfig();
    config.replaceCommaCountry = true;
    ConfigScope scope(config);
    EXPECT_TRUE(GlobalParamWrapper::IsReplaceCommaCountry());
}

TEST(GlobalParamWrapper, ReplaceCommaWritesTheDecimalPointAsAComma)
{
    EXPECT_EQ(GlobalParamWrapper::ReplaceComma(std::string("12.50")), "12,50");
    EXPECT_EQ(GlobalParamWrapper::ReplaceComma(std::wstring(L"2.5 GB")), L"2,5 GB");
    EXPECT_EQ(GlobalParamWrapper::ReplaceComma(std::string("12")), "12");
}

TEST(GlobalParamWrapper, SystemUuidFromTheConfigurationFirst)
{
    host::HostConfig config = host::DefaultHostConfig();
    config.deviceUuid = "configured-uuid";
    ConfigScope scope(config);
    EXPECT_EQ(GlobalParamWrapper::GetSystemUUid(), L"configured-uuid");
}

TEST(GlobalParamWrapper, SystemUuidOtherwiseTheMachineId)
{
    ConfigScope scope(host::DefaultHostConfig());
    std::ifstream in("/etc/machine-id");
    std::string machineId;
    std::getline(in, machineId);
    std::wstring expected(machineId.begin(), machineId.end());
    EXPECT_EQ(GlobalParamWrapper::GetSystemUUid(), expected);
}
