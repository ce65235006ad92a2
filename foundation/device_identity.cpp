// Device model and UUID with their process-wide caches, and the random digits
// of the trace identifier.
#include "foundation/device_identity.h"

#include <cstdlib>
#include <ctime>

#include "foundation/utilities.h"
#include "platform/global_param_wrapper.h"
#include "platform/oem_information.h"

RandomHelper::RandomHelper() : seed(static_cast<uint32_t>(std::time(nullptr)))
{
    std::srand(seed);
}

RandomHelper::~RandomHelper() = default;

std::string RandomHelper::NextDigits()
{
    std::string digits;
    for (int position = 0; position < 8; ++position) {
        // Reseeding with the current second before every digit is why digits
        // drawn within one second repeat; the identifier has always looked so.
        std::srand(static_cast<unsigned>(std::time(nullptr)));
        const int value = std::rand();
        const int digit = position == 0 ? value % 9 + 1 : value % 10;
        digits.push_back(static_cast<char>('0' + digit));
    }
    return digits;
}

std::string IdentityCache::GetOrFill(const std::function<std::string()>& probe)
{
    std::lock_guard<std::mutex> lock(fillMutex);
    if (!value.empty()) {
        return value;
    }
    std::string found = probe();
    value = found;
    return found;
}

namespace {

IdentityCache deviceModel;
IdentityCache deviceUuid;

std::string QueryProductNameFromManagementData()
{
    ManagementClass management;
    management.query = std::wstring(L"SELECT * From ") + L"Win32_ComputerSystemProduct";
    if (!management.Open()) {
        return {};
    }
    while (management.Next()) {
        const std::wstring name = management.Property(L"Name");
        if (!name.empty()) {
            return WideToUtf8(name);
        }
    }
    return {};
}

} // namespace

DeviceModelProbes SystemDeviceModelProbes()
{
    return DeviceModelProbes{ReadOemModelValue, QueryProductNameFromManagementData};
}

std::string GetDeviceModel(IdentityCache& cache, const DeviceModelProbes& probes)
{
    return cache.GetOrFill([&probes]() -> std::string {
        if (std::optional<std::string> oemModel = probes.readOemModel()) {
            return *oemModel;
        }
        return probes.queryProductName();
    });
}

std::string GetDeviceModel()
{
    return GetDeviceModel(deviceModel, SystemDeviceModelProbes());
}

std::string GetDeviceUuid()
{
    return deviceUuid.GetOrFill([] { return WideToUtf8(GlobalParamWrapper::GetSystemUUid()); });
}
