// CPaintManagerUI's input side: window messages become control events, the
// hover and click targets are tracked, and the keyboard focus moves.

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "toolkit/paint/paint_manager.h"
#include "toolkit/paint/ui_messages.h"

namespace DuiLib {

namespace {

// Offers the message to each filter in turn; a filter may remove itself or
// others meanwhile, so the list is copied first.
bool RunFilters(const std::vector<IMessageFilterUI*>& filters, UINT uMsg, WPARAM wParam, LPARAM lParam,
                LRESULT& lRes)
{
    const auto snapshot = filters;
    for (IMessageFilterUI* filter : snapshot) {
        bool handled = false;
        const LRESULT result = filter->MessageHandler(uMsg, wParam, lParam, handled);
        if (handled) {
            lRes = result;
            return true;
        }
    }
    return false;
}

} // namespace

bool CPaintManagerUI::PreMessageHandler(UINT uMsg, WPARAM wParam, LPARAM lParam, LRESULT& lRes)
{
    return RunFilters(m_preFilters, uMsg, wParam, lParam, lRes);
}

bool CPaintManagerUI::MessageHandler(UINT uMsg, WPARAM wParam, LPARAM lParam, LRESULT& lRes)
{
    ++m_handlerDepth;
    bool handled = RunFilters(m_filters, uMsg, wParam, lParam, lRes);
    if (!handled)
        handled = HandleOwnMessage(uMsg, wParam, lParam, lRes);
    --m_handlerDepth;
    if (m_handlerDepth == 0)
        RunDelayedCleanup();
    return handled;
}

bool CPaintManagerUI::HandleOwnMessage(UINT uMsg, WPARAM wParam, LPARAM lParam, LRESULT& lRes)
{
    switch (uMsg) {
    case UIMSG_ASYNC_NOTIFY:
        DeliverAsyncNotify();
        return true;
    case UIMSG_RUN_ON_WINDOW_THREAD:
        // Work that arrives while the window goes is dropped; its caller gets 0.
        lRes = m_gate.IsShut() ? 0 : 1;
        if (lRes != 0)
            (*reinterpret_cast<const std::function<void()>*>(lParam))();
        return true;
    case WM_DESTROY:
        m_gate.Shut();
        return false;
    case WM_PAINT:
        m_bPaintPosted = false;
        Paint();
        return true;
    case WM_SIZE:
        OnSize(lParam);
        return false;
    case WM_MOUSEMOVE:
        OnMouseMove(wParam, lParam);
        return false;
    case WM_MOUSELEAVE:
        UpdateHover(nullptr, POINT{-1, -1});
        return false;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        OnButtonDown(wParam, lParam);
        return false;
    case WM_LBUTTONUP:
        OnButtonUp(wParam, lParam);
        return false;
    case WM_MOUSEWHEEL:
        OnMouseWheel(wParam, lParam);
        return false;
    case WM_KEYDOWN:
        return OnKeyDown(wParam, lParam);
    case WM_TIMER:
        return OnTimer(wParam, lParam);
    default:
        return false;
    }
}

void CPaintManagerUI::DeliverAsyncNotify()
{
    auto pending = std::move(m_asyncNotify);
    m_asyncNotify.clear();
    for (auto& msg : pending) {
        if (msg.pSender == nullptr || IsInTree(msg.pSender))
            SendNotify(msg, false);
    }
}

void CPaintManagerUI::OnSize(LPARAM lParam)
{
    const double scale = m_dpi.GetScaleFactor();
    const auto packed = static_cast<std::uintptr_t>(lParam);
    SetClientSize(static_cast<int>(std::lround(LOWORD(packed) / scale)),
                  static_cast<int>(std::lround(HIWORD(packed) / scale)));
}

void CPaintManagerUI::OnMouseMove(WPARAM wParam, LPARAM lParam)
{
    UpdateLayoutIfNeeded();
    const POINT pt = ToLogical(lParam);
    UpdateHover(FindControl(pt), pt);
    // While the button is down the pressed control keeps the moves, so that
    // it can tell a release outside it.
    CControlUI* target = m_pEventClick != nullptr ? m_pEventClick : m_pEventHover;
    DispatchEvent(target, UIEVENT_MOUSEMOVE, pt, wParam, lParam);
}

void CPaintManagerUI::OnButtonDown(WPARAM wParam, LPARAM lParam)
{
    UpdateLayoutIfNeeded();
    const POINT pt = ToLogical(lParam);
    CControlUI* control = FindControl(pt);
    if (control == nullptr || !control->IsEnabled())
        return;
    UpdateHover(control, pt);
    m_pEventClick = control;
    if (control->GetControlFlags() != 0)
        SetFocus(control);
    // The focus change may have removed the control.
    DispatchEvent(m_pEventClick, UIEVENT_BUTTONDOWN, pt, wParam, lParam);
}

void CPaintManagerUI::OnButtonUp(WPARAM wParam, LPARAM lParam)
{
    const POINT pt = ToLogical(lParam);
    CControlUI* control = m_pEventClick;
    m_pEventClick = nullptr;
    DispatchEvent(control, UIEVENT_BUTTONUP, pt, wParam, lParam);
}

void CPaintManagerUI::OnMouseWheel(WPARAM wParam, LPARAM lParam)
{
    UpdateLayoutIfNeeded();
    const POINT pt = ToLogical(lParam);
    DispatchEvent(FindControl(pt), UIEVENT_SCROLLWHEEL, pt, wParam, lParam);
}

bool CPaintManagerUI::OnKeyDown(WPARAM wParam, LPARAM lParam)
{
    if (wParam == VK_TAB) {
        SetNextTabControl((lParam & 1) == 0);
        return true;
    }
    DispatchEvent(m_pFocus, UIEVENT_KEYDOWN, POINT{0, 0}, wParam, lParam, static_cast<TCHAR>(wParam));
    return false;
}

bool CPaintManagerUI::OnTimer(WPARAM wParam, LPARAM lParam)
{
    const ControlTimerTable::Entry* timer = m_timers.Find(static_cast<UINT_PTR>(wParam));
    if (timer == nullptr)
        return false;
    DispatchEvent(timer->control, UIEVENT_TIMER, POINT{0, 0}, timer->id, lParam);
    return true;
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
    // A focused row counts as its list: Tab goes on from the list.
    auto current = stops.end();
    for (CControlUI* c = m_pFocus; c != nullptr && current == stops.end(); c = c->GetParent())
        current = std::find(stops.begin(), stops.end(), c);
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

} // namespace DuiLib
