#include "toolkit/paint/control_timers.h"

#include <algorithm>

namespace DuiLib {

ControlTimerTable::~ControlTimerTable()
{
    KillIf([](const Entry&) { return true; });
}

bool ControlTimerTable::Set(CControlUI* control, UINT id, UINT elapse)
{
    if (control == nullptr || m_hWnd == nullptr)
        return false;
    for (const auto& entry : m_entries) {
        if (entry.control == control && entry.id == id)
            return ::SetTimer(m_hWnd, entry.windowTimerId, elapse, nullptr) != 0;
    }
    const UINT_PTR windowTimerId = ++m_nextWindowTimerId;
    if (::SetTimer(m_hWnd, windowTimerId, elapse, nullptr) == 0)
        return false;
    m_entries.push_back(Entry{control, id, windowTimerId});
    return true;
}

bool ControlTimerTable::KillIf(const std::function<bool(const Entry&)>& accept)
{
    const auto firstKilled = std::stable_partition(m_entries.begin(), m_entries.end(),
                                                   [&accept](const Entry& entry) { return !accept(entry); });
    if (firstKilled == m_entries.end())
        return false;
    if (m_hWnd != nullptr) {
        for (auto it = firstKilled; it != m_entries.end(); ++it)
            ::KillTimer(m_hWnd, it->windowTimerId);
    }
    m_entries.erase(firstKilled, m_entries.end());
    return true;
}

const ControlTimerTable::Entry* ControlTimerTable::Find(UINT_PTR windowTimerId) const
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(), [windowTimerId](const Entry& entry) {
        return entry.windowTimerId == windowTimerId;
    });
    return found != m_entries.end() ? &*found : nullptr;
}

} // namespace DuiLib
