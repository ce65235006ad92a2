#include "toolkit/window/window_wnd.h"

#include <map>
#include <mutex>

#include "platform/win32_gdi.h"
#include "toolkit/paint/ui_messages.h"
#include "toolkit/win32/message_queue.h"
#include "toolkit/window/native_surface.h"

namespace DuiLib {

namespace {

// Windows by handle, for MoveWindow and FromHandle. Each thread sees only
// its own windows: a CWindowWnd is only touched on its thread.
std::map<HWND, CWindowWnd*>& ThreadWindows()
{
    thread_local std::map<HWND, CWindowWnd*> windows;
    return windows;
}

bool IsInputMessage(UINT msg)
{
    return (msg >= WM_MOUSEMOVE && msg <= WM_MOUSEWHEEL) || (msg >= WM_KEYDOWN && msg <= WM_SYSKEYUP);
}

} // namespace

// What ShowModal needs to know after the window object may be gone.
struct CWindowWnd::ModalState
{
    UINT closeCode = 0;
};

CWindowWnd::CWindowWnd() : m_modal(std::make_shared<ModalState>()) {}

CWindowWnd::~CWindowWnd()
{
    if (m_hWnd != nullptr)
        ThreadWindows().erase(m_hWnd);
}

CWindowWnd* CWindowWnd::FromHandle(HWND hWnd)
{
    const auto found = ThreadWindows().find(hWnd);
    return found != ThreadWindows().end() ? found->second : nullptr;
}

HWND CWindowWnd::Create(HWND hwndParent, LPCTSTR pstrName, DWORD dwStyle, DWORD dwExStyle, const RECT rc,
                        HMENU hMenu)
{
    return Create(hwndParent, pstrName, dwStyle, dwExStyle, rc.left, rc.top, rc.right - rc.left,
                  rc.bottom - rc.top, hMenu);
}

HWND CWindowWnd::Create(HWND hwndParent, LPCTSTR pstrName, DWORD, DWORD, int x, int y, int cx, int cy, HMENU)
{
    m_hWndParent = hwndParent;
    m_sTitle = pstrName;
    m_rcWindow = RECT{x == CW_USEDEFAULT ? 0 : x, y == CW_USEDEFAULT ? 0 : y, 0, 0};
    m_rcWindow.right = m_rcWindow.left + (cx == CW_USEDEFAULT ? 0 : cx);
    m_rcWindow.bottom = m_rcWindow.top + (cy == CW_USEDEFAULT ? 0 : cy);
    const HWND hwnd =
        CreateWindowHandle([this](HWND h, UINT msg, WPARAM w, LPARAM l) { return Dispatch(h, msg, w, l); });
    return hwnd;
}

LRESULT CWindowWnd::Dispatch(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam)
{
    if (m_hWnd == nullptr && uMsg == WM_CREATE) {
        // First message: the handle exists, the surface comes before the
        // window's own WM_CREATE work so that it can size itself.
        SetHandle(hWnd);
        ThreadWindows()[hWnd] = this;
        m_surfaceError.clear();
        m_surface = CreateNativeSurface(hWnd, DefaultSurfaceKind(), &m_surfaceError);
        if (!m_surface)
            return -1;
        m_surface->SetTitle(m_sTitle.str());
        m_surface->SetGeometry(m_rcWindow);
    }
    switch (uMsg) {
    case UIMSG_MOVEWINDOW:
        SetGeometry(*reinterpret_cast<const RECT*>(lParam));
        return 1;
    case UIMSG_GETCLIENTRECT: {
        auto* rc = reinterpret_cast<RECT*>(lParam);
        *rc = RECT{0, 0, m_rcWindow.right - m_rcWindow.left, m_rcWindow.bottom - m_rcWindow.top};
        return 1;
    }
    case UIMSG_GETWINDOWRECT:
        *reinterpret_cast<RECT*>(lParam) = m_rcWindow;
        return 1;
    case UIMSG_CENTERWINDOW:
        CenterWindow();
        return 1;
    case WM_CLOSE:
        m_modal->closeCode = static_cast<UINT>(wParam);
        break;
    default:
        break;
    }
    if (uMsg == WM_NCDESTROY) {
        const LRESULT result = HandleMessage(uMsg, wParam, lParam);
        ThreadWindows().erase(hWnd);
        m_surface.reset();
        SetHandle(nullptr);
        OnFinalMessage(hWnd);
        return result;
    }
    return HandleMessage(uMsg, wParam, lParam);
}

void CWindowWnd::SetHandle(HWND hWnd)
{
    m_hWnd = hWnd;
    m_hWndShared.store(hWnd);
}

void CWindowWnd::SetGeometry(const RECT& rc)
{
    const bool resized = (rc.right - rc.left) != (m_rcWindow.right - m_rcWindow.left) ||
                         (rc.bottom - rc.top) != (m_rcWindow.bottom - m_rcWindow.top);
    m_rcWindow = rc;
    if (m_surface)
        m_surface->SetGeometry(rc);
    if (resized && m_hWnd != nullptr) {
        HandleMessage(WM_SIZE, 0, MAKELPARAM(rc.right - rc.left, rc.bottom - rc.top));
    }
    OnGeometryChanged();
}

void CWindowWnd::ShowWindow(bool bShow, bool)
{
    if (m_surface)
        m_surface->Show(bShow);
    if (bShow && m_hWnd != nullptr)
        ::PostMessageW(m_hWnd, WM_PAINT, 0, 0);
}

bool CWindowWnd::IsShown() const
{
    return m_surface && m_surface->IsShown();
}

UINT CWindowWnd::ShowModal()
{
    const HWND hwnd = m_hWnd;
    if (hwnd == nullptr)
        return 0;
    // Keep the state: the window object may delete itself in OnFinalMessage.
    const std::shared_ptr<ModalState> state = m_modal;
    const HWND owner = m_hWndParent;
    ShowWindow(true);
    MSG msg{};
    bool quit = false;
    WPARAM quitCode = 0;
    while (::IsWindow(hwnd)) {
        const BOOL got = ::GetMessageW(&msg, nullptr, 0, 0);
        if (got == 0) {
            quit = true;
            quitCode = msg.wParam;
            break;
        }
        if (got < 0)
            break;
        // The owner is disabled while its modal child runs, as on Windows.
        if (IsInputMessage(msg.message) && msg.hwnd != hwnd && msg.hwnd != nullptr && msg.hwnd == owner)
            continue;
        ::TranslateMessage(&msg);
        ::DispatchMessageW(&msg);
    }
    if (quit)
        ::PostQuitMessage(static_cast<int>(quitCode));
    return state->closeCode;
}

void CWindowWnd::Close(UINT nRet)
{
    if (const HWND hwnd = GetHWND())
        ::PostMessageW(hwnd, WM_CLOSE, static_cast<WPARAM>(nRet), 0);
}

void CWindowWnd::CenterWindow()
{
    const HWND hwnd = GetHWND();
    if (hwnd == nullptr)
        return;
    // The geometry and the parent belong to the window's thread.
    if (::GetWindowThreadProcessId(hwnd, nullptr) != ::GetCurrentThreadId()) {
        ::PostMessageW(hwnd, UIMSG_CENTERWINDOW, 0, 0);
        return;
    }
    const int width = m_rcWindow.right - m_rcWindow.left;
    const int height = m_rcWindow.bottom - m_rcWindow.top;
    RECT area{0, 0, 0, 0};
    if (m_surface) {
        const SIZE screen = m_surface->ScreenSize();
        area = RECT{0, 0, screen.cx, screen.cy};
    }
    if (CWindowWnd* parent = FromHandle(m_hWndParent)) {
        if (parent->IsShown())
            area = parent->GetWindowRect();
    }
    const int x = area.left + ((area.right - area.left) - width) / 2;
    const int y = area.top + ((area.bottom - area.top) - height) / 2;
    SetGeometry(RECT{x, y, x + width, y + height});
}

void CWindowWnd::ResizeClient(int cx, int cy)
{
    RECT rc = m_rcWindow;
    if (cx >= 0)
        rc.right = rc.left + cx;
    if (cy >= 0)
        rc.bottom = rc.top + cy;
    SetGeometry(rc);
}

LRESULT CWindowWnd::SendMessage(UINT uMsg, WPARAM wParam, LPARAM lParam)
{
    return ::SendMessageW(GetHWND(), uMsg, wParam, lParam);
}

LRESULT CWindowWnd::PostMessage(UINT uMsg, WPARAM wParam, LPARAM lParam)
{
    return ::PostMessageW(GetHWND(), uMsg, wParam, lParam);
}

LRESULT CWindowWnd::HandleMessage(UINT uMsg, WPARAM, LPARAM)
{
    if (uMsg == WM_CLOSE && m_hWnd != nullptr)
        ::DestroyWindow(m_hWnd);
    return 0;
}

void CWindowWnd::OnFinalMessage(HWND) {}

} // namespace DuiLib

BOOL MoveWindow(HWND hWnd, int x, int y, int width, int height, BOOL)
{
    if (!::IsWindow(hWnd))
        return FALSE;
    RECT rc{x, y, x + width, y + height};
    return ::SendMessageW(hWnd, DuiLib::UIMSG_MOVEWINDOW, 0, reinterpret_cast<LPARAM>(&rc)) != 0 ? TRUE
                                                                                                 : FALSE;
}

BOOL GetClientRect(HWND hWnd, RECT* rect)
{
    if (rect == nullptr || !::IsWindow(hWnd))
        return FALSE;
    return ::SendMessageW(hWnd, DuiLib::UIMSG_GETCLIENTRECT, 0, reinterpret_cast<LPARAM>(rect)) != 0 ? TRUE
                                                                                                     : FALSE;
}

BOOL GetWindowRect(HWND hWnd, RECT* rect)
{
    if (rect == nullptr || !::IsWindow(hWnd))
        return FALSE;
    return ::SendMessageW(hWnd, DuiLib::UIMSG_GETWINDOWRECT, 0, reinterpret_cast<LPARAM>(rect)) != 0 ? TRUE
                                                                                                     : FALSE;
}
