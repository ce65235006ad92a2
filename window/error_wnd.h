#pragma once
// ErrorWnd: a small modal toast of one line, exactly as wide as its text
// needs, that closes itself three seconds after it opens. The window shows it
// when a deletion failed; ShowErrorWnd is the only way in.
#include <atomic>
#include <cstdint>
#include <string>

#include "foundation/timer_engine.h"
#include "toolkit/duilib.h"

class ErrorWnd : public DuiLib::WindowImplBaseEx, public ITimerEngineCallBack
{
public:
    explicit ErrorWnd(std::wstring text);
    ~ErrorWnd() override;

    // The toast shown on the calling thread, or null; for tests and
    // automation, which look at it the way a user would.
    static HWND GetActiveToast();

protected:
    LPCTSTR GetWindowClassName() const override;
    void OnFinalMessage(HWND hWnd) override;
    void InitWindow() override;
    DuiLib::CDuiString GetSkinFile() override;
    DuiLib::CDuiString GetSkinFolder() override;
    // On the timer engine's dispatch thread: closes the toast with 2.
    bool OnTimerCallBack(uint32_t id, uint32_t param) override;

private:
    DuiLib::CLabelUI* m_label = nullptr;
    std::wstring m_text;
    // The handle the engine's thread closes; written before the timer is added.
    std::atomic<HWND> m_closeTarget{nullptr};
};

// Shows `text` in a toast over `parent` and returns when it has closed,
// about three seconds later. The window object is kept until the process
// ends.
void ShowErrorWnd(HWND parent, std::wstring text);

// The toast's timer: id 1, one firing after 3000 ms.
inline constexpr uint32_t kToastTimerId = 1;
inline constexpr uint32_t kToastTimerMs = 3000;
