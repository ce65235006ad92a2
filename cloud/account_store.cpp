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
    return WriteFileAtomically(statePath_, WriteStyledJson(AccountToJson(*Snapshot())), error);
}

// Called with mutex_ held: the write happens before the next change can
// start, so the file on disk never runs ahead of or behind the replies.
void MemoryAccountStore::Commit(std::shared_ptr<AccountData> next)
{
    current_ = std::move(next);
    if (statePath_.empty())
        return;
    std::string error;
    if (!WriteFileAtomically(statePath_, WriteStyledJson(AccountToJson(*current_)), error))
        std::cerr << "spacemgm-cloud: cannot write the state: " << error << std::endl;
}

bool MemoryAccountStore::DeleteDeviceBackup(const std::string& deviceId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    auto next = std::make_shared<AccountData>(*current_);
    auto it = std::find_if(next->backups.begin(), next->backups.end(),
                           [&](const BackupOwner& owner) { return owner.device.deviceId == deviceId; });
    if (it == next->backups.end())
        return false;
    next->backups.erase(it);
    Commit(std::move(next));
    return true;
}

bool MemoryAccountStore::ClearMessages(const std::string& kind, const std::string& deviceId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    auto next = std::make_shared<AccountData>(*current_);
    bool found = deviceId.empty();
    for (auto& device : next->messageDevices) {
        if (!deviceId.empty() && device.device.deviceId != deviceId)
            continue;
        found = true;
        if (kind == "sms")
            device.sms = 0;
        else
            device.callLog = 0;
    }
    if (found)
        Commit(std::move(next));
    return found;
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
        Commit(std::move(next));
    return outcome;
}

void MemoryAccountStore::Reset()
{
    std::lock_guard<std::mutex> lock(mutex_);
    Commit(std::make_shared<AccountData>(fixture_));
}

} // namespace cloud
