#pragma once
// The timers controls own. Each runs as a timer of the paint manager's
// window under an id of its own, taken from a range the window's own timers
// do not use; WM_TIMER with that id is handed back to the control.

#include <functional>
#include <vector>

#include "platform/win32.h"

namespace DuiLib {

class CControlUI;

class ControlTimerTable
{
public:
    struct Entry
    {
        CControlUI* control;
        UINT id;                // the control's own timer id
        UINT_PTR windowTimerId; // the id the window timer runs under
    };

    ControlTimerTable() = default;
    ~ControlTimerTable();
    ControlTimerTable(const ControlTimerTable&) = delete;
    ControlTimerTable& operator=(const ControlTimerTable&) = delete;

    // The window whose timers carry the controls' timers.
    void SetWindow(HWND hWnd) { m_hWnd = hWnd; }

    // Starts (or restarts with a new period) the control's timer `id`.
    bool Set(CControlUI* control, UINT id, UINT elapse);
    // Stops every timer the predicate accepts; true when one was stopped.
    bool KillIf(const std::function<bool(const Entry&)>& accept);
    // The entry of a window timer id, or null for a timer of the window's own.
    const Entry* Find(UINT_PTR windowTimerId) const;

private:
    HWND m_hWnd = nullptr;
    std::vector<Entry> m_entries;
    UINT_PTR m_nextWindowTimerId = 0x7F000000;
};

} // namespace DuiLib
