#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

#include "foundation/device_identity.h"
#include "host/host_config.h"
#include "temp_folder.h"

namespace {

struct CountingProbes
{
    int oemReads = 0;
    int productQueries = 0;
    std::optional<std::string> oemModel;
    std::string productName;

    DeviceModelProbes Probes()
    {
        return DeviceModelProbes{[this] {
                                     ++oemReads;
                                     return oemModel;
                                 },
                                 [this] {
                                     ++productQueries;
                                     return productName;
                                 }};
    }
};

class ConfigScope
{
public:
    explicit ConfigScope(const host::HostConfig& config) { host::SetCurrentHostConfig(config); }
    ~ConfigScope() { host::SetCurrentHostConfig(host::DefaultHostConfig()); }
};

} // namespace

TEST(RandomHelper, SeedIsTheTimeInSeconds)
{
    const auto before = static_cast<uint32_t>(std::time(nullptr));
    RandomHelper helper;
    const auto after = static_cast<uint32_t>(std::time(nullptr));
    EXPECT_GE(helper.seed, before);
    EXPECT_LE(helper.seed, after);
}

TEST(RandomHelper, EightDigitsNeverStartingWithZero)
{
    RandomHelper helper;
    for (int i = 0; i < 50; ++i) {
        const std::string digits = helper.NextDigits();
        ASSERT_EQ(digits.size(), 8u);
        EXPECT_NE(digits[0], '0');
        for (char c : digits) {
            EXPECT_TRUE(c >= '0' && c <= '9') << digits;
        }
    }
}

TEST(RandomHelper, DigitsWithinOneSecondRepeat)
{
    RandomHelper helper;
    // Retry until the draw did not straddle a second boundary.
    for (int attempt = 0; attempt < 5; ++attempt) {
        const std::time_t before = std::time(nullptr);
        const std::string digits = helper.NextDigits();
        const std::time_t after = std::time(nullptr);
        if (before != after) {
            continue;
        }
        std::srand(static_cast<unsigned>(before));
        const int value = std::rand();
        std::string expected(1, static_cast<char>('0' + value % 9 + 1));
        expected.append(7, static_cast<char>('0' + value % 10));
        EXPECT_EQ(digits, expected);
        return;
    }
    FAIL() << "every draw straddled a second boundary";
}

TEST(DeviceModel, SecondCallDoesNoLookupOnceANameWasFound)
{
    IdentityCache cache;
    CountingProbes probes;
    probes.productName = "ThinkCentre M70q";
    const DeviceModelProbes p = probes.Probes();
    EXPECT_EQ(GetDeviceModel(cache, p), "ThinkCentre M70q");
    EXPECT_EQ(GetDeviceModel(cache, p), "ThinkCentre M70q");
    EXPECT_EQ(probes.oemReads, 1);
    EXPECT_EQ(probes.productQueries, 1);
}

TEST(DeviceModel, WithoutTheOemValueTheProductNameIsUsed)
{
    IdentityCache cache;
    CountingProbes probes;
    probes.productName = "Precision 3660";
    EXPECT_EQ(GetDeviceModel(cache, probes.Probes()), "Precision 3660");
    EXPECT_EQ(probes.productQueries, 1);
}

TEST(DeviceModel, OemValueWinsAndSkipsTheProductQuery)
{
    IdentityCache cache;
    CountingProbes probes;
    probes.oemModel = "OEM Model 7";
    probes.productName = "unused";
    EXPECT_EQ(GetDeviceModel(cache, probes.Probes()), "OEM Model 7");
    EXPECT_EQ(probes.productQueries, 0);
}

TEST(DeviceModel, EmptyOemValueCountsAsFoundButIsNotCached)
{
    IdentityCache cache;
    CountingProbes probes;
    probes.oemModel = "";
    probes.productName = "unused";
    const DeviceModelProbes p = probes.Probes();
    EXPECT_EQ(GetDeviceModel(cache, p), "");
    EXPECT_EQ(probes.productQueries, 0);
    EXPECT_EQ(GetDeviceModel(cache, p), "");
    EXPECT_EQ(probes.oemReads, 2);
}

TEST(DeviceModel, EmptyResultIsNotCachedSoTheNextCallTriesAgain)
{
    IdentityCache cache;
    CountingProbes probes;
    const DeviceModelProbes p = probes.Probes();
    EXPECT_EQ(GetDeviceModel(cache, p), "");
    probes.productName = "Later Found";
    EXPECT_EQ(GetDeviceModel(cache, p), "Later Found");
    EXPECT_EQ(probes.productQueries, 2);
}

TEST(DeviceModel, HostTakesTheConfiguredModelAsTheOemValue)
{
    host::HostConfig config = host::DefaultHostConfig();
    config.deviceModel = "Configured Model";
    ConfigScope scope(config);
    const DeviceModelProbes probes = SystemDeviceModelProbes();
    EXPECT_EQ(probes.readOemModel(), std::optional<std::string>("Configured Model"));
    // The process-wide cache is filled from it.
    EXPECT_EQ(GetDeviceModel(), "Configured Model");
}

TEST(DeviceModel, HostWithoutAConfiguredModelHasNoOemValue)
{
    ConfigScope scope(host::DefaultHostConfig());
    EXPECT_EQ(SystemDeviceModelProbes().readOemModel(), std::nullopt);
}

TEST(ManagementClass, ProductRowComesFromTheDmiAttributes)
{
    TempFolder dmi;
    dmi.Write("product_name", "Precision 3660\n");
    dmi.Write("sys_vendor", "Maker Inc.\n");
    ManagementClass management(dmi.Path().string());
    management.query = L"SELECT * From Win32_ComputerSystemProduct";
    ASSERT_TRUE(management.Open());
    ASSERT_TRUE(management.Next());
    EXPECT_EQ(management.Property(L"Name"), L"Precision 3660");
    EXPECT_EQ(management.Property(L"Vendor"), L"Maker Inc.");
    EXPECT_EQ(management.Property(L"Version"), L"");
    EXPECT_FALSE(management.Next());
}

TEST(ManagementClass, OpenFailsWithoutDmiData)
{
    TempFolder dmi;
    ManagementClass management((dmi.Path() / "absent").string());
    management.query = L"SELECT * From Win32_ComputerSystemProduct";
    EXPECT_FALSE(management.Open());
    EXPECT_FALSE(management.Next());
}

TEST(ManagementClass, OpenFailsForAClassItCannotAnswer)
{
    TempFolder dmi;
    dmi.Write("product_name", "X\n");
    ManagementClass management(dmi.Path().string());
    management.query = L"SELECT * From Win32_BIOS";
    EXPECT_FALSE(management.Open());
}

TEST(DeviceUuid, ComesFromTheGlobalParametersAndIsCached)
{
    host::HostConfig config = host::DefaultHostConfig();
    config.deviceUuid = "6f1c2c1e-uuid-from-config";
    {
        ConfigScope scope(config);
        EXPECT_EQ(GetDeviceUuid(), "6f1c2c1e-uuid-from-config");
    }
    // Filled once: a later change of the source is not seen.
    EXPECT_EQ(GetDeviceUuid(), "6f1c2c1e-uuid-from-config");
}
