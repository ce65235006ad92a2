// What a request says about the machine it runs on: model, system name and
// version, a stable device id, and the digits behind the trace identifier.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <string>

// The random helper behind the trace identifier. The seed is the time in
// seconds at construction; every digit reseeds with the current second, so
// the digits drawn within one second repeat (callers rely on nothing more).
class RandomHelper
{
public:
    RandomHelper();
    virtual ~RandomHelper();
    std::string NextDigits();
    uint32_t seed;
};

// One query of the machine's management data. On Linux the only class the
// system asks for, "Win32_ComputerSystemProduct", is answered from the DMI
// attributes the kernel exports; it yields at most one row.
class ManagementClass
{
public:
    explicit ManagementClass(std::string dmiFolderPath = "/sys/class/dmi/id");
    virtual ~ManagementClass();

    // Runs `query`; false if the query names a class this machine cannot answer.
    bool Open();
    // Moves to the next row; false once the rows are exhausted.
    bool Next();
    // A property of the current row; empty if the row lacks it.
    std::wstring Property(const std::wstring& name) const;

    std::wstring query;

private:
    std::string dmiFolder;
    std::map<std::wstring, std::wstring> row;
    bool opened = false;
    bool rowTaken = false;
};

// A process-wide identity value that is filled once, on the first read that
// finds it empty. An empty probe result is not stored, so a later read
// probes again. The probe runs under the lock: concurrent first reads wait
// for one probe instead of racing to write the same value.
class IdentityCache
{
public:
    std::string GetOrFill(const std::function<std::string()>& probe);

private:
    std::mutex fillMutex;
    std::string value;
};

// The two places a model name can come from, in the order they are asked.
struct DeviceModelProbes
{
    // The OEM "Model" value; nullopt if it is not set. An empty value counts as found.
    std::function<std::optional<std::string>()> readOemModel;
    // The "Name" of the first product row with a non-empty name; empty if none.
    std::function<std::string()> queryProductName;
};

// The host's probes: the configured "deviceModel" stands in for the OEM
// value, the DMI product name for the management query.
DeviceModelProbes SystemDeviceModelProbes();

std::string GetDeviceModel(IdentityCache& cache, const DeviceModelProbes& probes);
std::string GetDeviceModel();

std::string GetDeviceUuid();

// The fields of the system's extended version record that decide the name.
struct OsVersionRecord
{
    uint32_t major = 0;
    uint32_t minor = 0;
    uint32_t build = 0; // may carry flag bits in its high half; only the low 16 bits count
    uint32_t platformId = 0;
    uint8_t productType = 1; // 1 is a workstation, anything else a server
    uint16_t servicePackMajor = 0;
    bool x64Processor = false;
    int serverR2Metric = 0; // GetSystemMetrics(89)
};

// The system's name with " major.minor.build.servicepack", or
// "Unknow Platform" when no row of the version table matches.
std::wstring OsNameFromVersion(const OsVersionRecord& version);

// The running system's version record; Linux has no such record.
std::optional<OsVersionRecord> ReadOsVersion();

std::wstring GetOsName();
