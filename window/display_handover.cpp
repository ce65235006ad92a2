#include "window/display_handover.h"

#include <algorithm>

DisplayHandover& DisplayHandover::Instance()
{
    static DisplayHandover handover;
    return handover;
}

bool DisplayHandover::Post(HWND hWnd, std::unique_ptr<SpaceDisplayData> data)
{
    SpaceDisplayData* posted = data.get();
    std::lock_guard<std::mutex> lock(mutex_);
    // Parked before the post, so that the window always finds it.
    waiting_[hWnd].push_back(std::move(data));
    if (::PostMessageW(hWnd, WM_SPACE_SHOW_CLOUD, 0, reinterpret_cast<LPARAM>(posted)))
        return true;
    auto& records = waiting_[hWnd];
    records.pop_back();
    if (records.empty())
        waiting_.erase(hWnd);
    return false;
}

std::unique_ptr<SpaceDisplayData> DisplayHandover::Take(SpaceDisplayData* posted)
{
    if (posted == nullptr)
        return nullptr;
    std::lock_guard<std::mutex> lock(mutex_);
    for (auto entry = waiting_.begin(); entry != waiting_.end(); ++entry) {
        auto& records = entry->second;
        const auto found = std::find_if(records.begin(), records.end(),
                                        [posted](const auto& record) { return record.get() == posted; });
        if (found == records.end())
            continue;
        std::unique_ptr<SpaceDisplayData> taken = std::move(*found);
        records.erase(found);
        if (records.empty())
            waiting_.erase(entry);
        return taken;
    }
    return std::unique_ptr<SpaceDisplayData>(posted);
}

void DisplayHandover::ReleaseUntaken(HWND hWnd)
{
    std::vector<std::unique_ptr<SpaceDisplayData>> released;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        const auto entry = waiting_.find(hWnd);
        if (entry == waiting_.end() || ::IsWindow(hWnd))
            return;
        released = std::move(entry->second);
        waiting_.erase(entry);
    }
}

std::size_t DisplayHandover::Waiting() const
{
    std::lock_guard<std::mutex> lock(mutex_);
    std::size_t count = 0;
    for (const auto& entry : waiting_)
        count += entry.second.size();
    return count;
}
