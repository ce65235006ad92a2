#include "account_store.h"

#include <algorithm>
#include <iostream>

#include "fixture.h"
#include "state_file.h"
#include "wire_text.h"

namespace cloud {

MemoryAccountStore::MemoryAccountStore(AccountData fixture, AccountData initial, std::string statePath)
    : fixture_(std::move(fixture)), statePath_(std::move(statePath)),
      current_(std::make_shared<const AccountData>(std::move(initial)))
{
}

std::shared_ptr<const AccountData> MemoryAccountStore::Snapshot() const
{
    std::lock_guard<std::mutex> lock(mutex_);
    return current_;
}

bool MemoryAccountStore::Persist(std::string& error)
{
    if (statePath_.empty())
        return true;
    return WriteFileAtomically(statePath_, WriteStyledJson(AccountToJson(*Snapshot())), kOwnerOnly, error);
}

// Called with mutex_ held: the write happens before the next change can
// start, and the account changes only once it is on disk, so the replies
// never acknowledge what a restart would not bring back.
std::string MemoryAccountStore::Commit(std::shared_ptr<AccountData> next)
{
    std::string error;
    if (!statePath_.empty() &&
        !WriteFileAtomically(statePath_, WriteStyledJson(AccountToJson(*next)), kOwnerOnly, error)) {
        std::cerr << "spacemgm-cloud: cannot write the state: " << error << std::endl;
        return error.empty() ? "the state file cannot be written" : error;
    }
    current_ = std::move(next);
    return "";
}

ChangeOutcome MemoryAccountStore::DeleteDeviceBackup(const std::string& deviceId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    auto next = std::make_shared<AccountData>(*current_);
    auto it = std::find_if(next->backups.begin(), next->backups.end(),
                           [&](const BackupOwner& owner) { return owner.device.deviceId == deviceId; });
    if (it == next->backups.end())
        return {};
    next->backups.erase(it);
    return {true, Commit(std::move(next))};
}

ChangeOutcome MemoryAccountStore::ClearMessages(const std::vector<std::string>& kinds,
                                                const std::string& deviceId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    auto next = std::make_shared<AccountData>(*current_);
    bool found = deviceId.empty();
    for (auto& device : next->messageDevices) {
        if (!deviceId.empty() && device.device.deviceId != deviceId)
            continue;
        found = true;
        for (const auto& kind : kinds) {
            if (kind == "sms")
                device.sms = 0;
            else
                device.callLog = 0;
        }
    }
    if (!found)
        return {};
    return {true, Commit(std::move(next))};
}

RemoveOutcome MemoryAccountStore::RemoveFiles(const std::vector<std::string>& paths)
{
    std::lock_guard<std::mutex> lock(mutex_);
    auto next = std::make_shared<AccountData>(*current_);
    RemoveOutcome outcome;
    for (const auto& path : paths) {
        auto it =
            std::lower_bound(next->files.begin(), next->files.end(), path,
                             [](const NspFile& file, const std::string& key) { return file.path < key; });
        if (it != next->files.end() && it->path == path) {
            outcome.removed.push_back(*it);
            next->files.erase(it);
        } else {
            outcome.missing.push_back(path);
        }
    }
    if (!outcome.removed.empty())
        outcome.notKept = Commit(std::move(next));
    if (!outcome.notKept.empty())
        outcome.removed.clear();
    return outcome;
}

ChangeOutcome MemoryAccountStore::Reset()
{
    std::lock_guard<std::mutex> lock(mutex_);
    return {true, Commit(std::make_shared<AccountData>(fixture_))};
}

} // namespace cloud
