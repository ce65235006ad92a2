#include "toolkit/paint/paint_manager.h"

#include <cairo.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cwctype>
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
    m_delayedCleanup.clear();
    for (const auto& timer : m_timers) {
        if (m_hWndPaint != nullptr)
            ::KillTimer(m_hWndPaint, timer.windowTimerId);
    }
    m_timers.clear();
    m_pFocus = m_pEventHover = m_pEventClick = nullptr;
    m_root.reset();
}

void CPaintManagerUI::Init(HWND hWnd, LPCTSTR pstrName)
{
    m_hWndPaint = hWnd;
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
    if (pControl == nullptr ||
        std::find(m_notifiers.begin(), m_notifiers.end(), pControl) != m_notifiers.end()) {
        return false;
    }
    m_notifiers.push_back(pControl);
    return true;
}

bool CPaintManagerUI::RemoveNotifier(INotifyUI* pControl)
{
    const auto it = std::find(m_notifiers.begin(), m_notifiers.end(), pControl);
    if (it == m_notifiers.end())
        return false;
    m_notifiers.erase(it);
    return true;
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
    if (pFilter == nullptr ||
        std::find(m_preFilters.begin(), m_preFilters.end(), pFilter) != m_preFilters.end()) {
        return false;
    }
    m_preFilters.push_back(pFilter);
    return true;
}

bool CPaintManagerUI::RemovePreMessageFilter(IMessageFilterUI* pFilter)
{
    const auto it = std::find(m_preFilters.begin(), m_preFilters.end(), pFilter);
    if (it == m_preFilters.end())
        return false;
    m_preFilters.erase(it);
    return true;
}

bool CPaintManagerUI::AddMessageFilter(IMessageFilterUI* pFilter)
{
    if (pFilter == nullptr || std::find(m_filters.begin(), m_filters.end(), pFilter) != m_filters.end())
        return false;
    m_filters.push_back(pFilter);
    return true;
}

bool CPaintManagerUI::RemoveMessageFilter(IMessageFilterUI* pFilter)
{
    const auto it = std::find(m_filters.begin(), m_filters.end(), pFilter);
    if (it == m_filters.end())
        return false;
    m_filters.erase(it);
    return true;
}

bool CPaintManagerUI::PreMessageHandler(UINT uMsg, WPARAM wParam, LPARAM lParam, LRESULT& lRes)
{
    const auto filters = m_preFilters;
    for (IMessageFilterUI* filter : filters) {
        bool handled = false;
        const LRESULT result = filter->MessageHandler(uMsg, wParam, lParam, handled);
        if (handled) {
            lRes = result;
            return true;
        }
    }
    return false;
}

POINT CPaintManagerUI::ToLogical(LPARAM lParam) const
{
    const double scale = m_dpi.GetScaleFactor();
    return POINT{static_cast<LONG>(std::floor(GET_X_LPARAM(lParam) / scale)),
                 static_cast<LONG>(std::floor(GET_Y_LPARAM(lParam) / scale))};
}

void CPaintManagerUI::DispatchEvent(CControlUI* control, int type, POINT pt, WPARAM wParam, LPARAM lParam,
                                    TCHAR key)
{
    if (control == nullptr)
        return;
    TEventUI event;
    event.Type = type;
    event.pSender = control;
    event.dwTimestamp = ::GetTickCount();
    event.ptMouse = pt;
    event.wParam = wParam;
    event.lParam = lParam;
    event.chKey = key;
    control->Event(event);
}

void CPaintManagerUI::UpdateHover(CControlUI* hover, POINT pt)
{
    if (hover == m_pEventHover)
        return;
    CControlUI* old = m_pEventHover;
    m_pEventHover = hover;
    if (old != nullptr)
        DispatchEvent(old, UIEVENT_MOUSELEAVE, pt);
    if (hover != nullptr && hover == m_pEventHover)
        DispatchEvent(hover, UIEVENT_MOUSEENTER, pt);
}

bool CPaintManagerUI::MessageHandler(UINT uMsg, WPARAM wParam, LPARAM lParam, LRESULT& lRes)
{
    ++m_handlerDepth;
    bool handled = false;
    const auto filters = m_filters;
    for (IMessageFilterUI* filter : filters) {
        bool filterHandled = false;
        const LRESULT result = filter->MessageHandler(uMsg, wParam, lParam, filterHandled);
        if (filterHandled) {
            lRes = result;
            handled = true;
            break;
        }
    }
    if (!handled) {
        switch (uMsg) {
        case UIMSG_ASYNC_NOTIFY: {
            auto pending = std::move(m_asyncNotify);
            m_asyncNotify.clear();
            for (auto& msg : pending) {
                if (msg.pSender == nullptr || IsInTree(msg.pSender))
                    SendNotify(msg, false);
            }
            handled = true;
            break;
        }
        case UIMSG_RUN_ON_WINDOW_THREAD:
            (*reinterpret_cast<const std::function<void()>*>(lParam))();
            lRes = 1;
            handled = true;
            break;
        case WM_PAINT:
            m_bPaintPosted = false;
            Paint();
            handled = true;
            break;
        case WM_SIZE: {
            const double scale = m_dpi.GetScaleFactor();
            SetClientSize(static_cast<int>(std::lround(LOWORD(static_cast<std::uintptr_t>(lParam)) / scale)),
                          static_cast<int>(std::lround(HIWORD(static_cast<std::uintptr_t>(lParam)) / scale)));
            break;
        }
        case WM_MOUSEMOVE: {
            UpdateLayoutIfNeeded();
            const POINT pt = ToLogical(lParam);
            UpdateHover(FindControl(pt), pt);
            if (m_pEventClick != nullptr) {
                DispatchEvent(m_pEventClick, UIEVENT_MOUSEMOVE, pt, wParam, lParam);
            } else if (m_pEventHover != nullptr) {
                DispatchEvent(m_pEventHover, UIEVENT_MOUSEMOVE, pt, wParam, lParam);
            }
            break;
        }
        case WM_MOUSELEAVE:
            UpdateHover(nullptr, POINT{-1, -1});
            break;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK: {
            UpdateLayoutIfNeeded();
            const POINT pt = ToLogical(lParam);
            CControlUI* control = FindControl(pt);
            if (control == nullptr || !control->IsEnabled())
                break;
            UpdateHover(control, pt);
            m_pEventClick = control;
            if (control->GetControlFlags() != 0)
                SetFocus(control);
            if (m_pEventClick != nullptr)
                DispatchEvent(m_pEventClick, UIEVENT_BUTTONDOWN, pt, wParam, lParam);
            break;
        }
        case WM_LBUTTONUP: {
            const POINT pt = ToLogical(lParam);
            CControlUI* control = m_pEventClick;
            m_pEventClick = nullptr;
            if (control != nullptr)
                DispatchEvent(control, UIEVENT_BUTTONUP, pt, wParam, lParam);
            break;
        }
        case WM_MOUSEWHEEL: {
            UpdateLayoutIfNeeded();
            const POINT pt = ToLogical(lParam);
            if (CControlUI* control = FindControl(pt))
                DispatchEvent(control, UIEVENT_SCROLLWHEEL, pt, wParam, lParam);
            break;
        }
        case WM_KEYDOWN:
            if (wParam == VK_TAB) {
                SetNextTabControl((lParam & 1) == 0);
                handled = true;
            } else if (m_pFocus != nullptr) {
                DispatchEvent(m_pFocus, UIEVENT_KEYDOWN, POINT{0, 0}, wParam, lParam,
                              static_cast<TCHAR>(wParam));
            }
            break;
        case WM_TIMER:
            for (const auto& timer : m_timers) {
                if (timer.windowTimerId == wParam) {
                    CControlUI* control = timer.control;
                    DispatchEvent(control, UIEVENT_TIMER, POINT{0, 0}, timer.id, lParam);
                    handled = true;
                    break;
                }
            }
            break;
        default:
            break;
        }
    }
    --m_handlerDepth;
    if (m_handlerDepth == 0)
        RunDelayedCleanup();
    return handled;
}

FontPtr CPaintManagerUI::MakeScaled(const FontEntry& entry) const
{
    return MakeFont(entry.family, m_dpi.Scale(entry.size), entry.bold, entry.italic, entry.underline);
}

HFONT CPaintManagerUI::AddFont(int id, LPCTSTR pStrFontName, int nSize, bool bBold, bool bUnderline,
                               bool bItalic, bool)
{
    FontEntry entry;
    entry.family = pStrFontName ? pStrFontName : L"";
    entry.size = nSize;
    entry.bold = bBold;
    entry.underline = bUnderline;
    entry.italic = bItalic;
    entry.font = MakeScaled(entry);
    FontEntry& stored = m_fonts[id] = std::move(entry);
    Invalidate();
    return stored.font.get();
}

HFONT CPaintManagerUI::GetFont(int id)
{
    const auto found = m_fonts.find(id);
    return found != m_fonts.end() ? found->second.font.get() : m_defaultFont.font.get();
}

void CPaintManagerUI::SetDefaultFont(LPCTSTR pStrFontName, int nSize, bool bBold, bool bUnderline,
                                     bool bItalic, bool)
{
    m_defaultFont.family = pStrFontName ? pStrFontName : L"";
    m_defaultFont.size = nSize;
    m_defaultFont.bold = bBold;
    m_defaultFont.underline = bUnderline;
    m_defaultFont.italic = bItalic;
    m_defaultFont.font = MakeScaled(m_defaultFont);
    Invalidate();
}

void CPaintManagerUI::RebuildFonts()
{
    m_defaultFont.font = MakeScaled(m_defaultFont);
    for (auto& entry : m_fonts)
        entry.second.font = MakeScaled(entry.second);
}

void CPaintManagerUI::SetDPI(int iDPI)
{
    if (iDPI == m_dpi.GetDPI())
        return;
    m_dpi.SetScale(iDPI);
    RebuildFonts();
    NeedUpdate();
    Invalidate();
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
    std::wstring name = pStrControlName ? pStrControlName : L"";
    for (auto& ch : name)
        ch = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(ch)));
    m_defaultAttributes[name] = pStrControlAttrList ? pStrControlAttrList : L"";
}

LPCTSTR CPaintManagerUI::GetDefaultAttributeList(LPCTSTR pStrControlName) const
{
    std::wstring name = pStrControlName ? pStrControlName : L"";
    for (auto& ch : name)
        ch = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(ch)));
    const auto found = m_defaultAttributes.find(name);
    return found != m_defaultAttributes.end() ? found->second.c_str() : nullptr;
}

std::shared_ptr<Image> CPaintManagerUI::GetImage(LPCTSTR file)
{
    return m_images.Get(GetResourcePath().str(), file ? file : L"");
}

void CPaintManagerUI::SetFocus(CControlUI* pControl)
{
    if (pControl == m_pFocus)
        return;
    CControlUI* old = m_pFocus;
    m_pFocus = nullptr;
    if (old != nullptr) {
        DispatchEvent(old, UIEVENT_KILLFOCUS, POINT{0, 0});
        SendNotify(old, DUI_MSGTYPE_KILLFOCUS);
    }
    if (pControl != nullptr && pControl->IsVisible() && pControl->IsEnabled() && IsInTree(pControl)) {
        m_pFocus = pControl;
        DispatchEvent(pControl, UIEVENT_SETFOCUS, POINT{0, 0});
        SendNotify(pControl, DUI_MSGTYPE_SETFOCUS);
    }
}

bool CPaintManagerUI::SetNextTabControl(bool bForward)
{
    if (!m_root)
        return false;
    std::vector<CControlUI*> stops;
    m_root->FindControl(
        [](CControlUI* c, LPVOID data) -> CControlUI* {
            if (c->GetControlFlags() != 0)
                static_cast<std::vector<CControlUI*>*>(data)->push_back(c);
            return nullptr;
        },
        &stops, UIFIND_VISIBLE | UIFIND_ENABLED | UIFIND_ME_FIRST);
    if (stops.empty())
        return false;
    const auto current = std::find(stops.begin(), stops.end(), m_pFocus);
    std::size_t next = 0;
    if (current != stops.end()) {
        const std::size_t index = static_cast<std::size_t>(current - stops.begin());
        next = bForward ? (index + 1) % stops.size() : (index + stops.size() - 1) % stops.size();
    } else if (!bForward) {
        next = stops.size() - 1;
    }
    SetFocus(stops[next]);
    return true;
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
    if (m_target == nullptr) {
        m_rcInvalid = RECT{0, 0, 0, 0};
        return;
    }
    const int width = m_dpi.Scale(m_szClient.cx);
    const int height = m_dpi.Scale(m_szClient.cy);
    cairo_t* cr = m_target->BeginPaint(width, height);
    if (cr == nullptr)
        return;
    Render(cr);
    m_target->EndPaint(cr);
    m_rcInvalid = RECT{0, 0, 0, 0};
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
    for (auto it = m_timers.begin(); it != m_timers.end();) {
        if (IsAncestorOrSelf(pControl, it->control)) {
            if (m_hWndPaint != nullptr)
                ::KillTimer(m_hWndPaint, it->windowTimerId);
            it = m_timers.erase(it);
        } else {
            ++it;
        }
    }
    for (auto& msg : m_asyncNotify) {
        if (IsAncestorOrSelf(pControl, msg.pSender))
            msg.pSender = nullptr;
    }
}

bool CPaintManagerUI::SetTimer(CControlUI* pControl, UINT nTimerID, UINT uElapse)
{
    if (pControl == nullptr || m_hWndPaint == nullptr)
        return false;
    for (auto& timer : m_timers) {
        if (timer.control == pControl && timer.id == nTimerID) {
            return ::SetTimer(m_hWndPaint, timer.windowTimerId, uElapse, nullptr) != 0;
        }
    }
    const UINT_PTR windowId = ++m_nextTimerId;
    if (::SetTimer(m_hWndPaint, windowId, uElapse, nullptr) == 0)
        return false;
    m_timers.push_back(ControlTimer{pControl, nTimerID, windowId});
    return true;
}

bool CPaintManagerUI::KillTimer(CControlUI* pControl, UINT nTimerID)
{
    for (auto it = m_timers.begin(); it != m_timers.end(); ++it) {
        if (it->control == pControl && it->id == nTimerID) {
            if (m_hWndPaint != nullptr)
                ::KillTimer(m_hWndPaint, it->windowTimerId);
            m_timers.erase(it);
            return true;
        }
    }
    return false;
}

void CPaintManagerUI::KillTimer(CControlUI* pControl)
{
    for (auto it = m_timers.begin(); it != m_timers.end();) {
        if (it->control == pControl) {
            if (m_hWndPaint != nullptr)
                ::KillTimer(m_hWndPaint, it->windowTimerId);
            it = m_timers.erase(it);
        } else {
            ++it;
        }
    }
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
    return ::SendMessageW(m_hWndPaint, UIMSG_RUN_ON_WINDOW_THREAD, 0, reinterpret_cast<LPARAM>(&work)) != 0;
}

bool CPaintManagerUI::IsInTree(const CControlUI* pControl) const
{
    return m_root != nullptr && IsAncestorOrSelf(m_root.get(), pControl);
}

} // namespace DuiLib
