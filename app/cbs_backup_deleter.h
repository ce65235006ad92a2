// The stand-alone host's backup service for the version 3 deletion: it asks
// the cloud backup service to remove one device's backup.
#pragma once

#include <string>

namespace app {

// "success", or a short reason ("result 31", "no reply").
std::string DeleteDeviceBackup(const std::string& deviceId);

} // namespace app
