// The stand-alone host's backup service for the version 3 deletion: it asks
// the cloud backup service to remove one device's backup.
#pragma once

#include <string>

namespace app {

// "success" only for a device of the host's own version 3 list that the
// service holds a backup of, and whose removal the service acknowledged;
// otherwise a short reason ("unknown device", "no backup on the service",
// "result 31", "no reply"), which the module takes as a failure.
std::string DeleteDeviceBackup(const std::string& deviceId);

} // namespace app
