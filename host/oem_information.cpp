// Linux keeps no OEM model value; the host configuration's "deviceModel"
// stands in for it.
#include "platform/oem_information.h"

#include "host/host_config.h"

std::optional<std::string> ReadOemModelValue()
{
    const std::optional<std::string>& model = host::CurrentHostConfig().deviceModel;
    if (!model) {
        return std::nullopt;
    }
    // The registry value is cut at its first zero byte.
    return model->substr(0, model->find('\0'));
}
