#include "toolkit/paint/paint_manager.h"

#include <cairo.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <mutex>

#include "toolkit/controls/container.h"
#include "toolkit/core/resource_paths.h"
#include "toolkit/paint/ui_messages.h"
#include "toolkit/render/render_context.h"
#include "toolkit/win32/message_queue.h"

namespace DuiLib {

namespace {

CControlUI* FindByName(CControlUI* control, LPVOID data)
{
    const wchar_t* name = static_cast<const wchar_t*>(data);
    return control->GetName() == name ? control : nullptr;
}

CControlUI* FindByPoint(CControlUI* control, LPVOID)
{
    return control;
}

bool IsAncestorOrSelf(const CControlUI* ancestor, const CControlUI* control)
{
    for (const CControlUI* c = control; c != nullptr; c = c->GetParent()) {
        if (c == ancestor)
            return true;
    }
    return false;
}

// Notifiers and message filters: each is registered once, in order.
template <class T> bool AddOnce(std::vector<T*>& list, T* item)
{
    if (item == nullptr || std::find(list.begin(), list.end(), item) != list.end())
        return false;
    list.push_back(item);
    return true;
}

template <class T> bool RemoveOne(std::vector<T*>& list, T* item)
{
    const auto found = std::find(list.begin(), list.end(), item);
    if (found == list.end())
        return false;
    list.erase(found);
    return true;
}

// Default attribute lists are found by control class, ignoring case.
std::wstring ClassKey(LPCTSTR className)
{
    CDuiString key(className);
    key.MakeLower();
    return key.str();
}

RECT UnionRects(const RECT& a, const RECT& b)
{
    if (RectIsEmpty(a))
        return b;
    if (RectIsEmpty(b))
        return a;
    return RECT{std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
                std::max(a.bottom, b.bottom)};
}

} // namespace

CPaintManagerUI::CPaintManagerUI()
{
    m_defaultFont.size = 12;
    m_defaultFont.font = MakeScaled(m_defaultFont);
}

CPaintManagerUI::~CPaintManagerUI()
{
    m_gate.Shut();
    m_delayedCleanup.clear();
    m_timers.KillIf([](const ControlTimerTable::Entry&) { return true; });
    m_pFocus = m_pEventHover = m_pEventClick = nullptr;
    m_root.reset();
}

void CPaintManagerUI::Init(HWND hWnd, LPCTSTR pstrName)
{
    m_hWndPaint = hWnd;
    m_timers.SetWindow(hWnd);
    m_sName = pstrName ? pstrName : L"";
}

HDC CPaintManagerUI::GetPaintDC()
{
    m_paintDC.defaultFont = DefaultContextFont();
    m_paintDC.selected = m_paintDC.defaultFont;
    return &m_paintDC;
}

void CPaintManagerUI::SetInstancePath(LPCTSTR pStrPath)
{
    resource_paths::SetInstance(pStrPath ? pStrPath : L"");
}

CDuiString CPaintManagerUI::GetInstancePath()
{
    return CDuiString(resource_paths::Instance());
}

void CPaintManagerUI::SetResourcePath(LPCTSTR pStrPath)
{
    resource_paths::SetSkin(pStrPath ? pStrPath : L"");
}

CDuiString CPaintManagerUI::GetResourcePath()
{
    return CDuiString(resource_paths::Skin());
}

bool CPaintManagerUI::AttachDialog(CControlUI* pControl)
{
    if (pControl == nullptr)
        return false;
    m_pFocus = m_pEventHover = m_pEventClick = nullptr;
    if (m_root)
        AddDelayedCleanup(std::move(m_root));
    m_root.reset(pControl);
    m_bUpdateNeeded = true;
    m_bFirstLayout = true;
    return InitControls(pControl);
}

bool CPaintManagerUI::InitControls(CControlUI* pControl, CControlUI* pParent)
{
    if (pControl == nullptr)
        return false;
    pControl->SetManager(this, pParent != nullptr ? pParent : pControl->GetParent(), true);
    pControl->FindControl(
        [](CControlUI* c, LPVOID) -> CControlUI* {
            c->Init();
            return nullptr;
        },
        nullptr, UIFIND_ALL);
    NeedUpdate();
    return true;
}

CControlUI* CPaintManagerUI::FindControl(POINT pt) const
{
    if (!m_root)
        return nullptr;
    return m_root->FindControl(FindByPoint, &pt, UIFIND_VISIBLE | UIFIND_HITTEST | UIFIND_TOP_FIRST);
}

CControlUI* CPaintManagerUI::FindControl(LPCTSTR pstrName) const
{
    if (!m_root || pstrName == nullptr)
        return nullptr;
    return m_root->FindControl(FindByName, const_cast<wchar_t*>(pstrName), UIFIND_ALL);
}

CControlUI* CPaintManagerUI::FindSubControlByPoint(CControlUI* pParent, POINT pt) const
{
    if (pParent == nullptr)
        pParent = m_root.get();
    if (pParent == nullptr)
        return nullptr;
    return pParent->FindControl(FindByPoint, &pt, UIFIND_VISIBLE | UIFIND_HITTEST | UIFIND_TOP_FIRST);
}

CControlUI* CPaintManagerUI::FindSubControlByName(CControlUI* pParent, LPCTSTR pstrName) const
{
    if (pParent == nullptr)
        pParent = m_root.get();
    if (pParent == nullptr || pstrName == nullptr)
        return nullptr;
    return pParent->FindControl(FindByName, const_cast<wchar_t*>(pstrName), UIFIND_ALL);
}

CControlUI* CPaintManagerUI::FindSubControlByClass(CControlUI* pParent, LPCTSTR pstrClass, int iIndex) const
{
    if (pParent == nullptr)
        pParent = m_root.get();
    if (pParent == nullptr || pstrClass == nullptr)
        return nullptr;
    struct Query
    {
        LPCTSTR cls;
        int index;
    } query{pstrClass, iIndex};
    return pParent->FindControl(
        [](CControlUI* c, LPVOID data) -> CControlUI* {
            auto* q = static_cast<Query*>(data);
            if (CompareNoCase(c->GetClass(), q->cls) != 0)
                return nullptr;
            return q->index-- == 0 ? c : nullptr;
        },
        &query, UIFIND_ALL);
}

bool CPaintManagerUI::AddNotifier(INotifyUI* pControl)
{
    return AddOnce(m_notifiers, pControl);
}

bool CPaintManagerUI::RemoveNotifier(INotifyUI* pControl)
{
    return RemoveOne(m_notifiers, pControl);
}

void CPaintManagerUI::SendNotify(TNotifyUI& Msg, bool bAsync)
{
    Msg.dwTimestamp = ::GetTickCount();
    if (Msg.pSender != nullptr && Msg.sVirtualWnd.IsEmpty())
        Msg.sVirtualWnd = Msg.pSender->GetVirtualWnd();
    if (bAsync && m_hWndPaint != nullptr) {
        m_asyncNotify.push_back(Msg);
        ::PostMessageW(m_hWndPaint, UIMSG_ASYNC_NOTIFY, 0, 0);
        return;
    }
    // A notifier may remove itself or others while being notified.
    const auto notifiers = m_notifiers;
    for (INotifyUI* notifier : notifiers) {
        if (std::find(m_notifiers.begin(), m_notifiers.end(), notifier) != m_notifiers.end())
            notifier->Notify(Msg);
    }
}

void CPaintManagerUI::SendNotify(CControlUI* pControl, LPCTSTR pstrMessage, WPARAM wParam, LPARAM lParam,
                                 bool bAsync)
{
    TNotifyUI msg;
    msg.pSender = pControl;
    msg.sType = pstrMessage;
    msg.wParam = wParam;
    msg.lParam = lParam;
    SendNotify(msg, bAsync);
}

bool CPaintManagerUI::AddPreMessageFilter(IMessageFilterUI* pFilter)
{
    return AddOnce(m_preFilters, pFilter);
}

bool CPaintManagerUI::RemovePreMessageFilter(IMessageFilterUI* pFilter)
{
    return RemoveOne(m_preFilters, pFilter);
}

bool CPaintManagerUI::AddMessageFilter(IMessageFilterUI* pFilter)
{
    return AddOnce(m_filters, pFilter);
}

bool CPaintManagerUI::RemoveMessageFilter(IMessageFilterUI* pFilter)
{
    return RemoveOne(m_filters, pFilter);
}

void CPaintManagerUI::SetInitSize(int cx, int cy)
{
    m_szInitWindowSize = SIZE{cx, cy};
    if (m_szClient.cx == 0 && m_szClient.cy == 0)
        SetClientSize(cx, cy);
}

void CPaintManagerUI::SetClientSize(int cx, int cy)
{
    if (m_szClient.cx == cx && m_szClient.cy == cy)
        return;
    m_szClient = SIZE{cx, cy};
    NeedUpdate();
    Invalidate();
}

void CPaintManagerUI::AddDefaultAttributeList(LPCTSTR pStrControlName, LPCTSTR pStrControlAttrList, bool)
{
    m_defaultAttributes[ClassKey(pStrControlName)] = pStrControlAttrList ? pStrControlAttrList : L"";
}

LPCTSTR CPaintManagerUI::GetDefaultAttributeList(LPCTSTR pStrControlName) const
{
    const auto found = m_defaultAttributes.find(ClassKey(pStrControlName));
    return found != m_defaultAttributes.end() ? found->second.c_str() : nullptr;
}

std::shared_ptr<Image> CPaintManagerUI::GetImage(LPCTSTR file)
{
    return m_images.Get(GetResourcePath().str(), file ? file : L"");
}

void CPaintManagerUI::Invalidate()
{
    Invalidate(RECT{0, 0, m_szClient.cx, m_szClient.cy});
}

void CPaintManagerUI::Invalidate(const RECT& rcItem)
{
    const RECT clipped = IntersectRects(rcItem, RECT{0, 0, m_szClient.cx, m_szClient.cy});
    if (RectIsEmpty(clipped))
        return;
    m_rcInvalid = UnionRects(m_rcInvalid, clipped);
    if (!m_bPaintPosted && m_hWndPaint != nullptr) {
        m_bPaintPosted = ::PostMessageW(m_hWndPaint, WM_PAINT, 0, 0) != FALSE;
    }
}

void CPaintManagerUI::NeedUpdate()
{
    m_bUpdateNeeded = true;
    Invalidate();
}

void CPaintManagerUI::UpdateLayoutIfNeeded()
{
    if (!m_root)
        return;
    const RECT client{0, 0, m_szClient.cx, m_szClient.cy};
    if (m_bUpdateNeeded || m_root->IsUpdateNeeded()) {
        m_bUpdateNeeded = false;
        // Re-arranging from the root is cheap at our tree sizes and keeps the
        // rule simple: every control is always where the layout puts it.
        m_root->SetPos(RECT{0, 0, 0, 0}, false);
        m_root->SetPos(client, false);
    }
}

void CPaintManagerUI::SendWindowInitOnce()
{
    if (!m_bFirstLayout || !m_root)
        return;
    m_bFirstLayout = false;
    SendNotify(m_root.get(), DUI_MSGTYPE_WINDOWINIT, 0, 0, false);
    // "windowinit" handlers commonly change sizes.
    UpdateLayoutIfNeeded();
}

void CPaintManagerUI::Paint()
{
    if (!m_root)
        return;
    UpdateLayoutIfNeeded();
    SendWindowInitOnce();
    if (m_target != nullptr) {
        cairo_t* cr = m_target->BeginPaint(m_dpi.Scale(m_szClient.cx), m_dpi.Scale(m_szClient.cy));
        if (cr == nullptr)
            return;
        Render(cr);
        m_target->EndPaint(cr);
    }
    m_rcInvalid = RECT{0, 0, 0, 0};
    m_dumpFile.Refresh(*this);
}

void CPaintManagerUI::SetControlDumpPath(LPCTSTR pstrPath)
{
    m_dumpFile.SetPath(attr::Narrow(pstrPath ? pstrPath : L""));
    // The file comes with the next frame.
    Invalidate();
}

CDuiString CPaintManagerUI::GetControlDumpPath() const
{
    return CDuiString(attr::Widen(m_dumpFile.Path()));
}

void CPaintManagerUI::Render(cairo_t* cr)
{
    if (!m_root)
        return;
    UpdateLayoutIfNeeded();
    SendWindowInitOnce();
    if (!m_root)
        return;
    RenderContext ctx(cr, m_dpi.GetScaleFactor());
    const RECT client{0, 0, m_szClient.cx, m_szClient.cy};
    ctx.PushClip(client, m_szRoundCorner);
    m_root->DoPaint(ctx, client);
    ctx.PopClip();
}

void CPaintManagerUI::AddDelayedCleanup(std::unique_ptr<CControlUI> pControl)
{
    if (!pControl)
        return;
    ReapObjects(pControl.get());
    m_delayedCleanup.push_back(std::move(pControl));
    if (m_handlerDepth == 0 && m_hWndPaint != nullptr) {
        // Outside any message: clean up on the next turn of the loop.
        ::PostMessageW(m_hWndPaint, UIMSG_ASYNC_NOTIFY, 0, 0);
    }
}

void CPaintManagerUI::RunDelayedCleanup()
{
    while (!m_delayedCleanup.empty()) {
        auto pending = std::move(m_delayedCleanup);
        m_delayedCleanup.clear();
        pending.clear();
    }
}

void CPaintManagerUI::ReapObjects(CControlUI* pControl)
{
    if (pControl == nullptr)
        return;
    if (IsAncestorOrSelf(pControl, m_pEventClick))
        m_pEventClick = nullptr;
    if (IsAncestorOrSelf(pControl, m_pEventHover))
        m_pEventHover = nullptr;
    if (IsAncestorOrSelf(pControl, m_pFocus))
        m_pFocus = nullptr;
    m_timers.KillIf([pControl](const ControlTimerTable::Entry& timer) {
        return IsAncestorOrSelf(pControl, timer.control);
    });
    for (auto& msg : m_asyncNotify) {
        if (IsAncestorOrSelf(pControl, msg.pSender))
            msg.pSender = nullptr;
    }
}

bool CPaintManagerUI::SetTimer(CControlUI* pControl, UINT nTimerID, UINT uElapse)
{
    return m_timers.Set(pControl, nTimerID, uElapse);
}

bool CPaintManagerUI::KillTimer(CControlUI* pControl, UINT nTimerID)
{
    return m_timers.KillIf([pControl, nTimerID](const ControlTimerTable::Entry& timer) {
        return timer.control == pControl && timer.id == nTimerID;
    });
}

void CPaintManagerUI::KillTimer(CControlUI* pControl)
{
    m_timers.KillIf([pControl](const ControlTimerTable::Entry& timer) { return timer.control == pControl; });
}

bool CPaintManagerUI::IsWindowThread() const
{
    return m_hWndPaint == nullptr ||
           ::GetWindowThreadProcessId(m_hWndPaint, nullptr) == ::GetCurrentThreadId();
}

bool CPaintManagerUI::RunOnWindowThread(const std::function<void()>& work)
{
    if (IsWindowThread()) {
        work();
        return true;
    }
    if (!m_gate.Enter())
        return false;
    const bool ran =
        ::SendMessageW(m_hWndPaint, UIMSG_RUN_ON_WINDOW_THREAD, 0, reinterpret_cast<LPARAM>(&work)) != 0;
    m_gate.Leave();
    return ran;
}

bool CPaintManagerUI::IsInTree(const CControlUI* pControl) const
{
    return m_root != nullptr && IsAncestorOrSelf(m_root.get(), pControl);
}

} // namespace DuiLib
