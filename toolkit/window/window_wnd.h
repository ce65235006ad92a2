#pragma once
// CWindowWnd: a top-level window of the toolkit. It owns a window handle of
// the calling thread's message queue and a surface (SDL or offscreen);
// HandleMessage is its window procedure and OnFinalMessage the last call it
// gets, after which the object may delete itself.
//
// Geometry is in device pixels. Windows have no non-client area: the client
// rectangle is the whole window.

#include <atomic>
#include <memory>
#include <string>

#include "platform/win32.h"
#include "toolkit/core/dui_string.h"

namespace DuiLib {

class NativeSurface;

struct HMENU__;
using HMENU = HMENU__*;

constexpr int CW_USEDEFAULT = static_cast<int>(0x80000000);
constexpr UINT IDOK = 1;
constexpr UINT IDCANCEL = 2;

class CWindowWnd
{
public:
    CWindowWnd();
    virtual ~CWindowWnd();
    CWindowWnd(const CWindowWnd&) = delete;
    CWindowWnd& operator=(const CWindowWnd&) = delete;

    // The handle, readable from any thread (window code on the window's
    // thread may read m_hWnd directly).
    HWND GetHWND() const { return m_hWndShared.load(); }
    operator HWND() const { return GetHWND(); } // NOLINT: as DuiLib

    // Makes the window on the calling thread; it is hidden until ShowWindow
    // or ShowModal. Styles are accepted for compatibility and not used.
    HWND Create(HWND hwndParent, LPCTSTR pstrName, DWORD dwStyle, DWORD dwExStyle, const RECT rc,
                HMENU hMenu = nullptr);
    HWND Create(HWND hwndParent, LPCTSTR pstrName, DWORD dwStyle, DWORD dwExStyle, int x = CW_USEDEFAULT,
                int y = CW_USEDEFAULT, int cx = CW_USEDEFAULT, int cy = CW_USEDEFAULT, HMENU hMenu = nullptr);

    void ShowWindow(bool bShow = true, bool bTakeFocus = true);
    // Shows the window and runs a message loop until it is destroyed;
    // returns the code given to Close. A WM_QUIT met on the way ends the
    // loop and is posted again for the loop outside.
    UINT ShowModal();
    // Asks the window to close with `nRet` as ShowModal's result. Safe from
    // any thread: it posts WM_CLOSE.
    void Close(UINT nRet = IDOK);
    // Centres over the parent window when it has one, else on the screen.
    // From another thread the request is posted to the window's thread.
    void CenterWindow();
    void ResizeClient(int cx = -1, int cy = -1);
    RECT GetWindowRect() const { return m_rcWindow; }
    bool IsShown() const;
    NativeSurface* GetSurface() const { return m_surface.get(); }
    // Why the last Create failed for want of a surface (SDL2 could not be
    // loaded), or empty.
    const std::string& GetSurfaceError() const { return m_surfaceError; }

    // Safe from any thread, as the Win32 calls are.
    LRESULT SendMessage(UINT uMsg, WPARAM wParam = 0, LPARAM lParam = 0);
    LRESULT PostMessage(UINT uMsg, WPARAM wParam = 0, LPARAM lParam = 0);

    // The toolkit window that owns `hWnd` on the calling thread, or null.
    static CWindowWnd* FromHandle(HWND hWnd);

protected:
    virtual LPCTSTR GetWindowClassName() const = 0;
    // The window procedure. The base destroys the window on WM_CLOSE.
    virtual LRESULT HandleMessage(UINT uMsg, WPARAM wParam, LPARAM lParam);
    // The last call for this window, after WM_NCDESTROY; GetHWND is null.
    virtual void OnFinalMessage(HWND hWnd);
    // Called with the new geometry after the window moved or was resized.
    virtual void OnGeometryChanged() {}

    HWND m_hWnd = nullptr;
    HWND m_hWndParent = nullptr;

private:
    struct ModalState;
    LRESULT Dispatch(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam);
    void SetGeometry(const RECT& rc);

    void SetHandle(HWND hWnd);

    // m_hWnd for other threads: they may ask for the handle, close or
    // centre the window while its thread creates or destroys it.
    std::atomic<HWND> m_hWndShared{nullptr};
    RECT m_rcWindow{0, 0, 0, 0};
    std::unique_ptr<NativeSurface> m_surface;
    std::string m_surfaceError;
    std::shared_ptr<ModalState> m_modal;
    CDuiString m_sTitle;
};

} // namespace DuiLib
