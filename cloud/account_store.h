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

struct RemoveOutcome
{
    std::vector<NspFile> removed;
    std::vector<std::string> missing;
};

class AccountStore
{
public:
    virtual ~AccountStore() = default;
    virtual std::shared_ptr<const AccountData> Snapshot() const = 0;
    // Removes every backup of the device; false when the device has none.
    virtual bool DeleteDeviceBackup(const std::string& deviceId) = 0;
    // kind is "sms" or "calllog": sets that count to 0 on the device, or on
    // every device when deviceId is empty. False when the device is unknown.
    virtual bool ClearMessages(const std::string& kind, const std::string& deviceId) = 0;
    virtual RemoveOutcome RemoveFiles(const std::vector<std::string>& paths) = 0;
    virtual void Reset() = 0;
};

// Holds the account in memory; with a state path, writes it atomically after
// every change. Snapshots are immutable, so a reader never sees half a change.
class MemoryAccountStore : public AccountStore
{
public:
    MemoryAccountStore(AccountData fixture, AccountData initial, std::string statePath);

    std::shared_ptr<const AccountData> Snapshot() const override;
    bool DeleteDeviceBackup(const std::string& deviceId) override;
    bool ClearMessages(const std::string& kind, const std::string& deviceId) override;
    RemoveOutcome RemoveFiles(const std::vector<std::string>& paths) override;
    void Reset() override;

    // Writes the current account to the state file (if any); false on error.
    bool Persist(std::string& error);

private:
    void Commit(std::shared_ptr<AccountData> next);

    const AccountData fixture_;
    const std::string statePath_;
    mutable std::mutex mutex_;
    std::shared_ptr<const AccountData> current_;
};

} // namespace cloud
