#include "window/error_wnd.h"

#include <memory>
#include <mutex>
#include <vector>

#include "window/operation_records.h"

using namespace DuiLib;

namespace {

thread_local HWND activeToast = nullptr;

// 100 units of margin beside the text, 60 units of height.
constexpr int kToastMargin = 100;
constexpr int kToastHeight = 60;

// A toast is not deleted after it closed; it is kept, reachable, until the
// process ends.
ErrorWnd& NewRetainedToast(std::wstring text)
{
    static std::mutex mutex;
    static std::vector<std::unique_ptr<ErrorWnd>> toasts;
    std::lock_guard<std::mutex> lock(mutex);
    toasts.push_back(std::make_unique<ErrorWnd>(std::move(text)));
    return *toasts.back();
}

} // namespace

ErrorWnd::ErrorWnd(std::wstring text) : m_text(std::move(text)) {}

ErrorWnd::~ErrorWnd() = default;

HWND ErrorWnd::GetActiveToast()
{
    return activeToast;
}

LPCTSTR ErrorWnd::GetWindowClassName() const
{
    return L"ErrorClass";
}

CDuiString ErrorWnd::GetSkinFile()
{
    return L"Gallery/Error/ErrorWnd.xml";
}

CDuiString ErrorWnd::GetSkinFolder()
{
    return L"";
}

void ErrorWnd::InitWindow()
{
    CControlUI* control = m_pm.FindControl(L"label");
    m_label = control != nullptr ? static_cast<CLabelUI*>(control->GetInterface(DUI_CTR_LABEL)) : nullptr;
    if (m_label != nullptr)
        m_label->SetText(m_text.c_str());
    HFONT font = m_pm.GetFont(m_label != nullptr ? m_label->GetFont() : -1);
    HDC dc = m_pm.GetPaintDC();
    HGDIOBJ oldFont = ::SelectObject(dc, font);
    SIZE extent{0, 0};
    ::GetTextExtentPoint32W(dc, m_text.c_str(), static_cast<int>(m_text.size()), &extent);
    // The extent is in device pixels already; the centring that follows
    // places the window.
    const CDPI* dpi = m_pm.GetDPIObj();
    ::MoveWindow(m_hWnd, 0, 0, dpi->Scale(kToastMargin) + extent.cx, dpi->Scale(kToastHeight), TRUE);
    ::SelectObject(dc, oldFont);
    activeToast = m_hWnd;
    m_closeTarget = m_hWnd;
    TimerEngine::GetInstance()->Start();
    TimerEngine::GetInstance()->AddTimer(this, kToastTimerId, kToastTimerMs, 1, 0);
}

bool ErrorWnd::OnTimerCallBack(uint32_t, uint32_t)
{
    // Close(2) from the engine's thread: the post is all it takes, and the
    // handle is read from the copy made for this thread.
    ::PostMessageW(m_closeTarget.load(), WM_CLOSE, kExitToast, 0);
    return true;
}

void ErrorWnd::OnFinalMessage(HWND hWnd)
{
    if (activeToast == hWnd)
        activeToast = nullptr;
    TimerEngine::GetInstance()->Stop();
    WindowImplBaseEx::OnFinalMessage(hWnd);
}

void ShowErrorWnd(HWND parent, std::wstring text)
{
    ErrorWnd& toast = NewRetainedToast(std::move(text));
    toast.Create(parent, L"CErrorWnd", 0x86C80000, 0x100, 0, 0, 0, 0, nullptr);
    toast.CenterWindow();
    toast.ShowModal();
}
