#pragma once
// The start-up steps that read files. Each returns what it made, or fails
// with one line in `error` that names the file, the place and the reason.
#include <memory>
#include <string>

#include "account_store.h"
#include "faults.h"
#include "options.h"

namespace cloud {

// The account: from the state file when there is one, else from the fixture
// (and then written to the state file at once). The fixture's fault rules go
// into `faults`.
std::unique_ptr<MemoryAccountStore> LoadAccount(const Options& options, FaultTable& faults,
                                                std::string& error);

// Adds the rules of a faults file: one rule, or an array of rules.
bool LoadFaultsFile(const std::string& path, FaultTable& faults, std::string& error);

} // namespace cloud
