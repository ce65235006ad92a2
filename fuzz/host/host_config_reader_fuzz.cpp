// Feeds arbitrary text to the host configuration reader. Whatever a file
// holds, the reader either returns a configuration or refuses the file with
// a ConfigError that names it; nothing else may leave it.
#include <cstddef>
#include <cstdint>
#include <string>

#include "host/host_config.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string path = "/fuzz/spacemgm.json";
    const std::string text(reinterpret_cast<const char*>(data), size);
    try {
        const host::HostConfig config = host::ParseHostConfigText(path, text);
        if (config.sourcePath != path) {
            __builtin_trap();
        }
    } catch (const host::ConfigError& error) {
        if (std::string(error.what()).rfind(path + ": ", 0) != 0) {
            __builtin_trap();
        }
    }
    return 0;
}
