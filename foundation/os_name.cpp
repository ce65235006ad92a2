// The operating system's name as requests report it. The table is kept as
// the service has always received it: a version 10 workstation is
// "Microsoft Windows NT", and the 5.x server rows ask for minor version 3,
// so a real 5.2 system matches no row.
#include "foundation/device_identity.h"

namespace {

const wchar_t kUnknownPlatform[] = L"Unknow Platform";

const wchar_t* NameFromTable(const OsVersionRecord& v)
{
    const bool workstation = v.productType == 1;
    const auto pick = [workstation](const wchar_t* workstationName, const wchar_t* serverName) {
        return workstation ? workstationName : serverName;
    };
    switch (v.major) {
    case 4:
        if (v.minor == 0 && v.platformId == 1) {
            return L"Microsoft Windows 95";
        }
        if (v.minor == 0 && v.platformId == 2) {
            return L"Microsoft Windows NT 4.0";
        }
        if (v.minor == 10) {
            return L"Microsoft Windows 98";
        }
        if (v.minor == 90) {
            return L"Microsoft Windows Me";
        }
        return nullptr;
    case 5:
        if (v.minor == 0) {
            return L"Microsoft Windows 2000";
        }
        if (v.minor == 1) {
            return L"Microsoft Windows XP";
        }
        if (v.minor == 3) {
            if (workstation && v.x64Processor) {
                return L"Microsoft Windows XP Professional x64 Edition";
            }
            return v.serverR2Metric == 0 ? L"Microsoft Windows Server 2003"
                                         : L"Microsoft Windows Server 2003 R2";
        }
        return nullptr;
    case 6:
        switch (v.minor) {
        case 0:
            return pick(L"Microsoft Windows Vista", L"Microsoft Windows Server 2008");
        case 1:
            return pick(L"Microsoft Windows 7", L"Microsoft Windows Server 2008 R2");
        case 2:
            return pick(L"Microsoft Windows 8", L"Microsoft Windows Server 2012");
        case 3:
            return pick(L"Microsoft Windows 8.1", L"Microsoft Windows Server 2012 R2");
        default:
            return nullptr;
        }
    case 10:
        if (v.minor == 0) {
            return pick(L"Microsoft Windows NT", L"Microsoft Windows Server 2016");
        }
        return nullptr;
    default:
        return nullptr;
    }
}

} // namespace

std::wstring OsNameFromVersion(const OsVersionRecord& version)
{
    const wchar_t* name = NameFromTable(version);
    if (name == nullptr) {
        return kUnknownPlatform;
    }
    return std::wstring(name) + L" " + std::to_wstring(version.major) + L"." +
           std::to_wstring(version.minor) + L"." + std::to_wstring(version.build & 0xFFFFu) + L"." +
           std::to_wstring(version.servicePackMajor);
}

std::optional<OsVersionRecord> ReadOsVersion()
{
    // Linux has no Windows version record: the lookup fails, as the Windows
    // code does when its version call fails.
    return std::nullopt;
}

std::wstring GetOsName()
{
    const std::optional<OsVersionRecord> version = ReadOsVersion();
    if (!version) {
        return kUnknownPlatform;
    }
    return OsNameFromVersion(*version);
}
