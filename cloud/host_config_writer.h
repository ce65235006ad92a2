#pragma once
#include <string>

#include "account.h"

namespace cloud {

class Emulator;

// Writes the host configuration (docs/host-config.md) that points every
// service of the module at this emulator, with the fixture's session.
bool WriteHostConfig(const std::string& path, const Emulator& emulator, const AccountData& account,
                     std::string& error);

} // namespace cloud
