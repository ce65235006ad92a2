#pragma once
// The account behind the routes. Readers take a consistent snapshot; every
// change goes through one of the named mutations, which persist the account
// when a state file is set.
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "account.h"

namespace cloud {

// The outcome of a change. A change that could not be written to the state
// file is not made at all: the account stays as the file has it.
struct ChangeOutcome
{
    bool found = false;  // the change had something to act on
    std::string notKept; // why the change could not be kept; empty when it was
};

struct RemoveOutcome
{
    std::vector<NspFile> removed;
    std::vector<std::string> missing;
    std::string notKept; // as in ChangeOutcome; then nothing was removed
};

class AccountStore
{
public:
    virtual ~AccountStore() = default;
    virtual std::shared_ptr<const AccountData> Snapshot() const = 0;
    // Removes every backup of the device; not found when the device has none.
    virtual ChangeOutcome DeleteDeviceBackup(const std::string& deviceId) = 0;
    // Each kind is "sms" or "calllog": sets those counts to 0 on the device,
    // or on every device when deviceId is empty, as one change. Not found when
    // the device is unknown.
    virtual ChangeOutcome ClearMessages(const std::vector<std::string>& kinds,
                                        const std::string& deviceId) = 0;
    virtual RemoveOutcome RemoveFiles(const std::vector<std::string>& paths) = 0;
    virtual ChangeOutcome Reset() = 0;
};

// Holds the account in memory; with a state path, writes it atomically
// before every change takes effect. Snapshots are immutable, so a reader
// never sees half a change.
class MemoryAccountStore : public AccountStore
{
public:
    MemoryAccountStore(AccountData fixture, AccountData initial, std::string statePath);

    std::shared_ptr<const AccountData> Snapshot() const override;
    ChangeOutcome DeleteDeviceBackup(const std::string& deviceId) override;
    ChangeOutcome ClearMessages(const std::vector<std::string>& kinds, const std::string& deviceId) override;
    RemoveOutcome RemoveFiles(const std::vector<std::string>& paths) override;
    ChangeOutcome Reset() override;

    // Writes the current account to the state file (if any); false on error.
    bool Persist(std::string& error);

private:
    // Writes `next` and makes it the account; the reason when it cannot be written.
    std::string Commit(std::shared_ptr<AccountData> next);

    const AccountData fixture_;
    const std::string statePath_;
    mutable std::mutex mutex_;
    std::shared_ptr<const AccountData> current_;
};

} // namespace cloud
