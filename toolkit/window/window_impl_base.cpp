#include "toolkit/window/window_impl_base.h"

#include "toolkit/core/resource_manager.h"
#include "toolkit/win32/message_queue.h"
#include "toolkit/window/native_surface.h"

namespace DuiLib {

DUI_BEGIN_MESSAGE_MAP(WindowImplBase)
DUI_ON_MSGTYPE(DUI_MSGTYPE_CLICK, WindowImplBase::OnClick)
DUI_END_MESSAGE_MAP()

WindowImplBase::WindowImplBase() = default;

WindowImplBase::~WindowImplBase() = default;

void WindowImplBase::InitWindow() {}

void WindowImplBase::OnFinalMessage(HWND)
{
    m_pm.RemovePreMessageFilter(this);
    m_pm.RemoveNotifier(this);
}

void WindowImplBase::Notify(TNotifyUI& msg)
{
    NotifyPump(msg);
}

void WindowImplBase::OnClick(TNotifyUI&) {}

CControlUI* WindowImplBase::CreateControl(LPCTSTR)
{
    return nullptr;
}

LPCTSTR WindowImplBase::QueryControlText(LPCTSTR lpstrId, LPCTSTR)
{
    return CResourceManager::GetInstance()->GetText(lpstrId);
}

LRESULT WindowImplBase::MessageHandler(UINT uMsg, WPARAM wParam, LPARAM, bool& bHandled)
{
    if (uMsg == WM_KEYDOWN && (wParam == VK_RETURN || wParam == VK_ESCAPE)) {
        bHandled = ResponseDefaultKeyEvent(wParam) != 0;
    }
    return 0;
}

LRESULT WindowImplBase::ResponseDefaultKeyEvent(WPARAM wParam)
{
    if (wParam != VK_ESCAPE)
        return FALSE; // Enter goes on to the focused control.
    // Escape does what a click on the window's close button does, when it
    // has one that can be clicked; either way the key stops here.
    for (LPCTSTR name : {L"btn_close", L"closebtn"}) {
        CControlUI* close = m_pm.FindControl(name);
        if (close != nullptr && close->GetInterface(DUI_CTR_BUTTON) != nullptr && IsControlShown(close) &&
            close->Activate()) {
            break;
        }
    }
    return TRUE;
}

int WindowImplBase::InitialDPI() const
{
    return 96;
}

LRESULT WindowImplBase::OnCreate(UINT, WPARAM, LPARAM, BOOL&)
{
    // The class name names the window in its control dump.
    m_pm.Init(m_hWnd, GetWindowClassName());
    m_pm.SetDPI(InitialDPI());
    m_pm.AddPreMessageFilter(this);
    const CDuiString folder = GetSkinFolder();
    if (!folder.IsEmpty())
        CPaintManagerUI::SetResourcePath(CPaintManagerUI::GetInstancePath() + folder);

    CDialogBuilder builder;
    CControlUI* root = builder.Create(GetSkinFile().GetData(), nullptr, this, &m_pm);
    if (root == nullptr) {
        m_skinError = builder.GetError();
        return -1;
    }
    m_pm.AttachDialog(root);
    m_pm.AddNotifier(this);
    if (auto* surface = GetSurface())
        m_pm.SetPaintTarget(surface);

    const SIZE size = m_pm.GetInitSize();
    const CDPI* dpi = m_pm.GetDPIObj();
    m_pm.SetClientSize(size.cx, size.cy);
    ResizeClient(dpi->Scale(size.cx), dpi->Scale(size.cy));
    InitWindow();
    return 0;
}

LRESULT WindowImplBase::OnClose(UINT, WPARAM, LPARAM, BOOL& bHandled)
{
    bHandled = FALSE;
    return 0;
}

LRESULT WindowImplBase::OnDestroy(UINT, WPARAM, LPARAM, BOOL& bHandled)
{
    m_pm.SetPaintTarget(nullptr);
    bHandled = FALSE;
    return 0;
}

LRESULT WindowImplBase::HandleCustomMessage(UINT, WPARAM, LPARAM, BOOL& bHandled)
{
    bHandled = FALSE;
    return 0;
}

LRESULT WindowImplBase::HandleMessage(UINT uMsg, WPARAM wParam, LPARAM lParam)
{
    LRESULT lRes = 0;
    BOOL bHandled = TRUE;
    switch (uMsg) {
    case WM_CREATE:
        lRes = OnCreate(uMsg, wParam, lParam, bHandled);
        break;
    case WM_CLOSE:
        lRes = OnClose(uMsg, wParam, lParam, bHandled);
        break;
    case WM_DESTROY:
        lRes = OnDestroy(uMsg, wParam, lParam, bHandled);
        break;
    default:
        bHandled = FALSE;
        break;
    }
    if (bHandled)
        return lRes;
    lRes = HandleCustomMessage(uMsg, wParam, lParam, bHandled);
    if (bHandled)
        return lRes;
    // A DuiLib message loop offers keys to the pre-message filters before
    // any window procedure sees them; our loops dispatch straight to the
    // procedure, so the filters get them here. A window that calls
    // PreMessageHandler itself has had the default keys taken before it
    // calls the base, so nothing happens twice.
    if (uMsg >= WM_KEYDOWN && uMsg <= WM_SYSKEYUP && m_pm.PreMessageHandler(uMsg, wParam, lParam, lRes))
        return lRes;
    if (m_pm.MessageHandler(uMsg, wParam, lParam, lRes))
        return lRes;
    return CWindowWnd::HandleMessage(uMsg, wParam, lParam);
}

int WindowImplBaseEx::InitialDPI() const
{
    return CDPI::GetProcessDPI();
}

} // namespace DuiLib
