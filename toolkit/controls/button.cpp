#include "toolkit/controls/button.h"

#include <unordered_map>

#include "toolkit/paint/paint_manager.h"
#include "toolkit/render/images.h"

namespace DuiLib {

namespace {

bool Inside(const RECT& r, POINT p)
{
    return p.x >= r.left && p.x < r.right && p.y >= r.top && p.y < r.bottom;
}

const wchar_t* CheckedImage(const wchar_t* name, const wchar_t* value)
{
    ImageSpec spec;
    if (!ImageSpec::Parse(value, spec))
        throw AttributeError(AttributeError::Kind::BadValue, name, value);
    return value;
}

} // namespace

CButtonUI::CButtonUI()
{
    m_uTextStyle = DT_SINGLELINE | DT_VCENTER | DT_CENTER;
}

LPCTSTR CButtonUI::GetClass() const
{
    return L"ButtonUI";
}

LPVOID CButtonUI::GetInterface(LPCTSTR pstrName)
{
    if (CompareNoCase(pstrName, DUI_CTR_BUTTON) == 0)
        return static_cast<CButtonUI*>(this);
    return CLabelUI::GetInterface(pstrName);
}

UINT CButtonUI::GetControlFlags() const
{
    return IsKeyboardEnabled() && IsEnabled() ? UIFLAG_TABSTOP : 0u;
}

bool CButtonUI::Activate()
{
    if (!CControlUI::Activate())
        return false;
    if (m_pManager != nullptr)
        m_pManager->SendNotify(this, DUI_MSGTYPE_CLICK);
    return true;
}

void CButtonUI::SetEnabled(bool bEnable)
{
    CControlUI::SetEnabled(bEnable);
    if (!bEnable)
        m_uButtonState = 0;
}

void CButtonUI::SetState(UINT state, bool on)
{
    const UINT next = on ? (m_uButtonState | state) : (m_uButtonState & ~state);
    if (next == m_uButtonState)
        return;
    m_uButtonState = next;
    Invalidate();
}

void CButtonUI::DoEvent(TEventUI& event)
{
    if (!IsMouseEnabled() && event.Type > UIEVENT_MOUSEMOVE && event.Type < UIEVENT_KEYDOWN) {
        CLabelUI::DoEvent(event);
        return;
    }
    switch (event.Type) {
    case UIEVENT_SETFOCUS:
    case UIEVENT_KILLFOCUS:
        CControlUI::DoEvent(event);
        return;
    case UIEVENT_KEYDOWN:
        if (IsEnabled() && (event.chKey == VK_SPACE || event.chKey == VK_RETURN)) {
            Activate();
            return;
        }
        break;
    case UIEVENT_BUTTONDOWN:
        if (IsEnabled() && Inside(m_rcItem, event.ptMouse)) {
            SetState(UISTATE_PUSHED | UISTATE_CAPTURED, true);
        }
        return;
    case UIEVENT_MOUSEMOVE:
        if (m_uButtonState & UISTATE_CAPTURED)
            SetState(UISTATE_PUSHED, Inside(m_rcItem, event.ptMouse));
        return;
    case UIEVENT_BUTTONUP:
        if (m_uButtonState & UISTATE_CAPTURED) {
            const bool click = Inside(m_rcItem, event.ptMouse) && IsEnabled();
            SetState(UISTATE_PUSHED | UISTATE_CAPTURED, false);
            if (click)
                Activate();
        }
        return;
    case UIEVENT_MOUSEENTER:
        if (IsEnabled())
            SetState(UISTATE_HOT, true);
        return;
    case UIEVENT_MOUSELEAVE:
        SetState(UISTATE_HOT, false);
        return;
    default:
        break;
    }
    CLabelUI::DoEvent(event);
}

void CButtonUI::SetNormalImage(LPCTSTR image)
{
    if (Assign(m_sNormalImage, CDuiString(image)))
        Invalidate();
}

void CButtonUI::SetHotImage(LPCTSTR image)
{
    if (Assign(m_sHotImage, CDuiString(image)))
        Invalidate();
}

void CButtonUI::SetPushedImage(LPCTSTR image)
{
    if (Assign(m_sPushedImage, CDuiString(image)))
        Invalidate();
}

void CButtonUI::SetDisabledImage(LPCTSTR image)
{
    if (Assign(m_sDisabledImage, CDuiString(image)))
        Invalidate();
}

void CButtonUI::SetFocusedImage(LPCTSTR image)
{
    if (Assign(m_sFocusedImage, CDuiString(image)))
        Invalidate();
}

void CButtonUI::SetHotBkColor(DWORD color)
{
    if (Assign(m_dwHotBkColor, color))
        Invalidate();
}

void CButtonUI::SetPushedBkColor(DWORD color)
{
    if (Assign(m_dwPushedBkColor, color))
        Invalidate();
}

void CButtonUI::SetDisabledBkColor(DWORD color)
{
    if (Assign(m_dwDisabledBkColor, color))
        Invalidate();
}

void CButtonUI::SetHotTextColor(DWORD color)
{
    if (Assign(m_dwHotTextColor, color))
        Invalidate();
}

void CButtonUI::SetPushedTextColor(DWORD color)
{
    if (Assign(m_dwPushedTextColor, color))
        Invalidate();
}

void CButtonUI::SetFocusedTextColor(DWORD color)
{
    if (Assign(m_dwFocusedTextColor, color))
        Invalidate();
}

DWORD CButtonUI::CurrentTextColor() const
{
    if (IsEnabled()) {
        if ((m_uButtonState & UISTATE_PUSHED) && m_dwPushedTextColor != 0)
            return m_dwPushedTextColor;
        if ((m_uButtonState & UISTATE_HOT) && m_dwHotTextColor != 0)
            return m_dwHotTextColor;
        if (IsFocused() && m_dwFocusedTextColor != 0)
            return m_dwFocusedTextColor;
    }
    return CLabelUI::CurrentTextColor();
}

void CButtonUI::PaintBkColor(RenderContext& ctx)
{
    DWORD color = m_dwBackColor;
    if (!IsEnabled()) {
        if (m_dwDisabledBkColor != 0)
            color = m_dwDisabledBkColor;
    } else if ((m_uButtonState & UISTATE_PUSHED) && m_dwPushedBkColor != 0) {
        color = m_dwPushedBkColor;
    } else if ((m_uButtonState & (UISTATE_HOT | UISTATE_PUSHED)) && m_dwHotBkColor != 0) {
        color = m_dwHotBkColor;
    }
    ctx.FillRect(m_rcItem, color);
}

void CButtonUI::PaintStatusImage(RenderContext& ctx)
{
    if (!IsEnabled() && DrawImage(ctx, m_sDisabledImage))
        return;
    if (IsEnabled()) {
        if ((m_uButtonState & UISTATE_PUSHED) && DrawImage(ctx, m_sPushedImage))
            return;
        if ((m_uButtonState & UISTATE_HOT) && DrawImage(ctx, m_sHotImage))
            return;
        if (IsFocused() && DrawImage(ctx, m_sFocusedImage))
            return;
    }
    DrawImage(ctx, m_sNormalImage);
}

void CButtonUI::SetAttribute(LPCTSTR pstrName, LPCTSTR pstrValue)
{
    using Setter = AttributeSetter<CButtonUI>;
    static const std::unordered_map<std::wstring, Setter> table = {
        {L"normalimage",
         [](CButtonUI& c, const wchar_t* n, const wchar_t* v) { c.SetNormalImage(CheckedImage(n, v)); }},
        {L"hotimage",
         [](CButtonUI& c, const wchar_t* n, const wchar_t* v) { c.SetHotImage(CheckedImage(n, v)); }},
        {L"pushedimage",
         [](CButtonUI& c, const wchar_t* n, const wchar_t* v) { c.SetPushedImage(CheckedImage(n, v)); }},
        {L"disabledimage",
         [](CButtonUI& c, const wchar_t* n, const wchar_t* v) { c.SetDisabledImage(CheckedImage(n, v)); }},
        {L"focusedimage",
         [](CButtonUI& c, const wchar_t* n, const wchar_t* v) { c.SetFocusedImage(CheckedImage(n, v)); }},
        {L"hotbkcolor",
         [](CButtonUI& c, const wchar_t* n, const wchar_t* v) { c.SetHotBkColor(attr::ParseColor(n, v)); }},
        {L"pushedbkcolor", [](CButtonUI& c, const wchar_t* n,
                              const wchar_t* v) { c.SetPushedBkColor(attr::ParseColor(n, v)); }},
        {L"disabledbkcolor", [](CButtonUI& c, const wchar_t* n,
                                const wchar_t* v) { c.SetDisabledBkColor(attr::ParseColor(n, v)); }},
        {L"hottextcolor",
         [](CButtonUI& c, const wchar_t* n, const wchar_t* v) { c.SetHotTextColor(attr::ParseColor(n, v)); }},
        {L"pushedtextcolor", [](CButtonUI& c, const wchar_t* n,
                                const wchar_t* v) { c.SetPushedTextColor(attr::ParseColor(n, v)); }},
        {L"focusedtextcolor", [](CButtonUI& c, const wchar_t* n,
                                 const wchar_t* v) { c.SetFocusedTextColor(attr::ParseColor(n, v)); }},
    };
    if (ApplyFromTable(table, *this, pstrName, pstrValue))
        return;
    CLabelUI::SetAttribute(pstrName, pstrValue);
}

} // namespace DuiLib
