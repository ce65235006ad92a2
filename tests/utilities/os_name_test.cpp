#include <gtest/gtest.h>

#include "foundation/device_identity.h"

namespace {

OsVersionRecord Version(uint32_t major, uint32_t minor, uint8_t productType = 1)
{
    OsVersionRecord v;
    v.major = major;
    v.minor = minor;
    v.build = 1234;
    v.platformId = 2;
    v.productType = productType;
    v.servicePackMajor = 1;
    return v;
}

struct OsRow
{
    const char* label;
    OsVersionRecord version;
    const wchar_t* expected;
};

OsVersionRecord With(OsVersionRecord v, uint32_t platformId, bool x64, int r2)
{
    v.platformId = platformId;
    v.x64Processor = x64;
    v.serverR2Metric = r2;
    return v;
}

const OsRow kRows[] = {
    {"Windows95", With(Version(4, 0), 1, false, 0), L"Microsoft Windows 95 4.0.1234.1"},
    {"WindowsNT4", With(Version(4, 0), 2, false, 0), L"Microsoft Windows NT 4.0 4.0.1234.1"},
    {"Version4OnOtherPlatform", With(Version(4, 0), 0, false, 0), L"Unknow Platform"},
    {"Windows98", Version(4, 10), L"Microsoft Windows 98 4.10.1234.1"},
    {"WindowsMe", Version(4, 90), L"Microsoft Windows Me 4.90.1234.1"},
    {"Windows2000", Version(5, 0), L"Microsoft Windows 2000 5.0.1234.1"},
    {"WindowsXP", Version(5, 1), L"Microsoft Windows XP 5.1.1234.1"},
    {"XPx64", With(Version(5, 3, 1), 2, true, 0),
     L"Microsoft Windows XP Professional x64 Edition 5.3.1234.1"},
    {"Server2003", With(Version(5, 3, 3), 2, true, 0), L"Microsoft Windows Server 2003 5.3.1234.1"},
    {"Server2003R2", With(Version(5, 3, 3), 2, false, 1), L"Microsoft Windows Server 2003 R2 5.3.1234.1"},
    {"Real52ServerMatchesNoRow", With(Version(5, 2, 3), 2, false, 0), L"Unknow Platform"},
    {"Vista", Version(6, 0), L"Microsoft Windows Vista 6.0.1234.1"},
    {"Server2008", Version(6, 0, 3), L"Microsoft Windows Server 2008 6.0.1234.1"},
    {"Windows7", Version(6, 1), L"Microsoft Windows 7 6.1.1234.1"},
    {"Server2008R2", Version(6, 1, 2), L"Microsoft Windows Server 2008 R2 6.1.1234.1"},
    {"Windows8", Version(6, 2), L"Microsoft Windows 8 6.2.1234.1"},
    {"Server2012", Version(6, 2, 3), L"Microsoft Windows Server 2012 6.2.1234.1"},
    {"Windows81", Version(6, 3), L"Microsoft Windows 8.1 6.3.1234.1"},
    {"Server2012R2", Version(6, 3, 3), L"Microsoft Windows Server 2012 R2 6.3.1234.1"},
    {"Version6Minor4", Version(6, 4), L"Unknow Platform"},
    {"Windows10ReadsNT", Version(10, 0), L"Microsoft Windows NT 10.0.1234.1"},
    {"Server2016", Version(10, 0, 3), L"Microsoft Windows Server 2016 10.0.1234.1"},
    {"Version11", Version(11, 0), L"Unknow Platform"},
    {"Version3", Version(3, 51), L"Unknow Platform"},
};

class OsNameTable : public ::testing::TestWithParam<OsRow>
{
};

} // namespace

TEST_P(OsNameTable, NameAndVersion)
{
    EXPECT_EQ(OsNameFromVersion(GetParam().version), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, OsNameTable, ::testing::ValuesIn(kRows),
                         [](const ::testing::TestParamInfo<OsRow>& info) {
                             return std::string(info.param.label);
                         });

TEST(OsName, Windows10WorkstationBuild19045)
{
    OsVersionRecord v;
    v.major = 10;
    v.minor = 0;
    v.build = 19045;
    v.platformId = 2;
    v.productType = 1;
    v.servicePackMajor = 0;
    EXPECT_EQ(OsNameFromVersion(v), L"Microsoft Windows NT 10.0.19045.0");
}

TEST(OsName, OnlyTheLowSixteenBitsOfTheBuildCount)
{
    OsVersionRecord v;
    v.major = 10;
    v.minor = 0;
    v.build = 0xF0004A65; // 19045 with the flag bits of the native version call
    EXPECT_EQ(OsNameFromVersion(v), L"Microsoft Windows NT 10.0.19045.0");
}

TEST(OsName, LinuxHasNoVersionRecordSoThePlatformIsUnknown)
{
    EXPECT_FALSE(ReadOsVersion().has_value());
    EXPECT_EQ(GetOsName(), L"Unknow Platform");
}
