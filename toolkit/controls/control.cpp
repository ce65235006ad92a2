#include "toolkit/controls/control.h"

#include <unordered_map>

#include "toolkit/paint/paint_manager.h"
#include "toolkit/render/images.h"

namespace DuiLib {

namespace {

using Setter = AttributeSetter<CControlUI>;

const std::unordered_map<std::wstring, Setter>& ControlAttributes()
{
    static const std::unordered_map<std::wstring, Setter> table = {
        {L"name", [](CControlUI& c, const wchar_t*, const wchar_t* v) { c.SetName(v); }},
        {L"text", [](CControlUI& c, const wchar_t*, const wchar_t* v) { c.SetText(v); }},
        {L"tooltip", [](CControlUI& c, const wchar_t*, const wchar_t* v) { c.SetToolTip(v); }},
        {L"userdata", [](CControlUI& c, const wchar_t*, const wchar_t* v) { c.SetUserData(v); }},
        {L"virtualwnd", [](CControlUI& c, const wchar_t*, const wchar_t* v) { c.SetVirtualWnd(v); }},
        {L"width",
         [](CControlUI& c, const wchar_t* n, const wchar_t* v) { c.SetFixedWidth(attr::ParseInt(n, v)); }},
        {L"height",
         [](CControlUI& c, const wchar_t* n, const wchar_t* v) { c.SetFixedHeight(attr::ParseInt(n, v)); }},
        {L"minwidth",
         [](CControlUI& c, const wchar_t* n, const wchar_t* v) { c.SetMinWidth(attr::ParseInt(n, v)); }},
        {L"maxwidth",
         [](CControlUI& c, const wchar_t* n, const wchar_t* v) { c.SetMaxWidth(attr::ParseInt(n, v)); }},
        {L"minheight",
         [](CControlUI& c, const wchar_t* n, const wchar_t* v) { c.SetMinHeight(attr::ParseInt(n, v)); }},
        {L"maxheight",
         [](CControlUI& c, const wchar_t* n, const wchar_t* v) { c.SetMaxHeight(attr::ParseInt(n, v)); }},
        {L"padding",
         [](CControlUI& c, const wchar_t* n, const wchar_t* v) { c.SetPadding(attr::ParseRect(n, v)); }},
        {L"float",
         [](CControlUI& c, const wchar_t* n, const wchar_t* v) { c.SetFloat(attr::ParseBool(n, v)); }},
        {L"pos",
         [](CControlUI& c, const wchar_t* n, const wchar_t* v) { c.SetPosAttribute(attr::ParseRect(n, v)); }},
        {L"visible",
         [](CControlUI& c, const wchar_t* n, const wchar_t* v) { c.SetVisible(attr::ParseBool(n, v)); }},
        {L"enabled",
         [](CControlUI& c, const wchar_t* n, const wchar_t* v) { c.SetEnabled(attr::ParseBool(n, v)); }},
        {L"mouse",
         [](CControlUI& c, const wchar_t* n, const wchar_t* v) { c.SetMouseEnabled(attr::ParseBool(n, v)); }},
        {L"keyboard", [](CControlUI& c, const wchar_t* n,
                         const wchar_t* v) { c.SetKeyboardEnabled(attr::ParseBool(n, v)); }},
        {L"bkcolor",
         [](CControlUI& c, const wchar_t* n, const wchar_t* v) { c.SetBkColor(attr::ParseColor(n, v)); }},
        {L"forecolor",
         [](CControlUI& c, const wchar_t* n, const wchar_t* v) { c.SetForeColor(attr::ParseColor(n, v)); }},
        {L"bordercolor",
         [](CControlUI& c, const wchar_t* n, const wchar_t* v) { c.SetBorderColor(attr::ParseColor(n, v)); }},
        {L"focusbordercolor", [](CControlUI& c, const wchar_t* n,
                                 const wchar_t* v) { c.SetFocusBorderColor(attr::ParseColor(n, v)); }},
        {L"bordersize",
         [](CControlUI& c, const wchar_t* n, const wchar_t* v) { c.SetBorderSize(attr::ParseInt(n, v)); }},
        {L"borderround",
         [](CControlUI& c, const wchar_t* n, const wchar_t* v) { c.SetBorderRound(attr::ParseSize(n, v)); }},
        {L"bkimage",
         [](CControlUI& c, const wchar_t* n, const wchar_t* v) {
             ImageSpec spec;
             if (!ImageSpec::Parse(v, spec))
                 throw AttributeError(AttributeError::Kind::BadValue, n, v);
             c.SetBkImage(v);
         }},
    };
    return table;
}

} // namespace

bool IsControlShown(const CControlUI* control)
{
    for (const CControlUI* c = control; c != nullptr; c = c->GetParent()) {
        if (!c->IsVisible())
            return false;
    }
    return control != nullptr;
}

CControlUI::CControlUI() = default;

CControlUI::~CControlUI()
{
    if (m_pManager != nullptr)
        m_pManager->ReapObjects(this);
}

CDuiString CControlUI::GetName() const
{
    return m_sName;
}

void CControlUI::SetName(LPCTSTR pstrName)
{
    m_sName = pstrName;
}

LPCTSTR CControlUI::GetClass() const
{
    return L"ControlUI";
}

LPVOID CControlUI::GetInterface(LPCTSTR pstrName)
{
    if (CompareNoCase(pstrName, DUI_CTR_CONTROL) == 0)
        return this;
    return nullptr;
}

UINT CControlUI::GetControlFlags() const
{
    return 0;
}

bool CControlUI::Activate()
{
    return IsVisible() && IsEnabled();
}

CPaintManagerUI* CControlUI::GetManager() const
{
    return m_pManager;
}

void CControlUI::SetManager(CPaintManagerUI* pManager, CControlUI* pParent, bool bInit)
{
    if (m_pManager != nullptr && m_pManager != pManager)
        m_pManager->ReapObjects(this);
    m_pManager = pManager;
    m_pParent = pParent;
    if (bInit && m_pParent != nullptr)
        Init();
}

CControlUI* CControlUI::GetParent() const
{
    return m_pParent;
}

CDuiString CControlUI::GetText() const
{
    return m_sText;
}

void CControlUI::SetText(LPCTSTR pstrText)
{
    if (m_sText == pstrText)
        return;
    m_sText = pstrText;
    // A text change can change an automatic width.
    NeedParentUpdate();
    Invalidate();
}

void CControlUI::SetBkColor(DWORD dwBackColor)
{
    if (Assign(m_dwBackColor, dwBackColor))
        Invalidate();
}

void CControlUI::SetForeColor(DWORD dwForeColor)
{
    if (Assign(m_dwForeColor, dwForeColor))
        Invalidate();
}

void CControlUI::SetBorderColor(DWORD dwBorderColor)
{
    if (Assign(m_dwBorderColor, dwBorderColor))
        Invalidate();
}

void CControlUI::SetFocusBorderColor(DWORD dwBorderColor)
{
    if (Assign(m_dwFocusBorderColor, dwBorderColor))
        Invalidate();
}

void CControlUI::SetBorderSize(int nSize)
{
    if (Assign(m_nBorderSize, nSize))
        Invalidate();
}

void CControlUI::SetBorderRound(SIZE cxyRound)
{
    if (Assign(m_cxyBorderRound, cxyRound))
        Invalidate();
}

void CControlUI::SetBkImage(LPCTSTR pStrImage)
{
    if (Assign(m_sBkImage, pStrImage))
        Invalidate();
}

const RECT& CControlUI::GetPos() const
{
    return m_rcItem;
}

void CControlUI::SetPos(RECT rc, bool bNeedInvalidate)
{
    if (rc.right < rc.left)
        rc.right = rc.left;
    if (rc.bottom < rc.top)
        rc.bottom = rc.top;
    m_bUpdateNeeded = false;
    if (SameValue(rc, m_rcItem))
        return;
    if (bNeedInvalidate)
        Invalidate();
    m_rcItem = rc;
    if (bNeedInvalidate)
        Invalidate();
}

RECT CControlUI::GetPadding() const
{
    return m_rcPadding;
}

void CControlUI::SetPadding(RECT rcPadding)
{
    if (Assign(m_rcPadding, rcPadding))
        NeedParentUpdate();
}

int CControlUI::GetFixedWidth() const
{
    return m_cxyFixed.cx;
}

void CControlUI::SetFixedWidth(int cx)
{
    if (cx >= 0 && Assign(m_cxyFixed.cx, cx))
        NeedParentUpdate();
}

int CControlUI::GetFixedHeight() const
{
    return m_cxyFixed.cy;
}

void CControlUI::SetFixedHeight(int cy)
{
    if (cy >= 0 && Assign(m_cxyFixed.cy, cy))
        NeedParentUpdate();
}

void CControlUI::SetMinWidth(int cx)
{
    if (cx >= 0 && Assign(m_cxyMin.cx, cx))
        NeedParentUpdate();
}

void CControlUI::SetMaxWidth(int cx)
{
    if (cx >= 0 && Assign(m_cxyMax.cx, cx))
        NeedParentUpdate();
}

void CControlUI::SetMinHeight(int cy)
{
    if (cy >= 0 && Assign(m_cxyMin.cy, cy))
        NeedParentUpdate();
}

void CControlUI::SetMaxHeight(int cy)
{
    if (cy >= 0 && Assign(m_cxyMax.cy, cy))
        NeedParentUpdate();
}

void CControlUI::SetFloat(bool bFloat)
{
    if (Assign(m_bFloat, bFloat))
        NeedParentUpdate();
}

void CControlUI::SetFixedXY(SIZE szXY)
{
    if (Assign(m_cXY, szXY))
        NeedParentUpdate();
}

void CControlUI::SetPosAttribute(RECT rcPos)
{
    // A negative left (top) anchors the control to the right (bottom) edge,
    // where its right (bottom) coordinate then says how far from it.
    SetFixedXY(SIZE{rcPos.left >= 0 ? rcPos.left : rcPos.right, rcPos.top >= 0 ? rcPos.top : rcPos.bottom});
    SetFixedWidth(rcPos.right - rcPos.left);
    SetFixedHeight(rcPos.bottom - rcPos.top);
}

CDuiString CControlUI::GetToolTip() const
{
    return m_sToolTip;
}

void CControlUI::SetToolTip(LPCTSTR pstrText)
{
    m_sToolTip = pstrText;
}

CDuiString CControlUI::GetVirtualWnd() const
{
    for (const CControlUI* c = this; c != nullptr; c = c->m_pParent) {
        if (!c->m_sVirtualWnd.IsEmpty())
            return c->m_sVirtualWnd;
    }
    return CDuiString();
}

void CControlUI::SetVirtualWnd(LPCTSTR pstrValue)
{
    m_sVirtualWnd = pstrValue;
}

bool CControlUI::IsVisible() const
{
    return m_bVisible && m_bInternVisible;
}

void CControlUI::SetVisible(bool bVisible)
{
    if (m_bVisible == bVisible)
        return;
    const bool wasVisible = IsVisible();
    m_bVisible = bVisible;
    if (m_bFocused && !bVisible)
        m_bFocused = false;
    if (wasVisible != IsVisible()) {
        NeedParentUpdate();
        Invalidate();
    }
}

void CControlUI::SetInternVisible(bool bVisible)
{
    if (m_bInternVisible == bVisible)
        return;
    m_bInternVisible = bVisible;
    NeedParentUpdate();
}

bool CControlUI::IsEnabled() const
{
    return m_bEnabled;
}

void CControlUI::SetEnabled(bool bEnable)
{
    if (Assign(m_bEnabled, bEnable))
        Invalidate();
}

bool CControlUI::IsMouseEnabled() const
{
    return m_bMouseEnabled;
}

void CControlUI::SetMouseEnabled(bool bEnable)
{
    m_bMouseEnabled = bEnable;
}

bool CControlUI::IsKeyboardEnabled() const
{
    return m_bKeyboardEnabled;
}

void CControlUI::SetKeyboardEnabled(bool bEnable)
{
    m_bKeyboardEnabled = bEnable;
}

bool CControlUI::IsFocused() const
{
    return m_bFocused;
}

void CControlUI::SetFocus()
{
    if (m_pManager != nullptr)
        m_pManager->SetFocus(this);
}

bool CControlUI::ShowsFocusRing() const
{
    return m_bFocused;
}

CControlUI* CControlUI::FindControl(FINDCONTROLPROC Proc, LPVOID pData, UINT uFlags)
{
    if (!IsSearchedBy(pData, uFlags))
        return nullptr;
    if ((uFlags & UIFIND_HITTEST) != 0 && !m_bMouseEnabled)
        return nullptr;
    return Proc(this, pData);
}

bool CControlUI::IsSearchedBy(LPVOID pData, UINT uFlags) const
{
    if ((uFlags & UIFIND_VISIBLE) != 0 && !IsVisible())
        return false;
    if ((uFlags & UIFIND_ENABLED) != 0 && !IsEnabled())
        return false;
    if ((uFlags & UIFIND_HITTEST) != 0) {
        const POINT* pt = static_cast<const POINT*>(pData);
        return pt->x >= m_rcItem.left && pt->x < m_rcItem.right && pt->y >= m_rcItem.top &&
               pt->y < m_rcItem.bottom;
    }
    return true;
}

void CControlUI::Invalidate()
{
    if (m_pManager != nullptr && IsVisible())
        m_pManager->Invalidate(m_rcItem);
}

void CControlUI::NeedUpdate()
{
    m_bUpdateNeeded = true;
    if (m_pManager != nullptr)
        m_pManager->NeedUpdate();
}

void CControlUI::NeedParentUpdate()
{
    if (m_pParent != nullptr) {
        m_pParent->NeedUpdate();
    } else {
        NeedUpdate();
    }
}

void CControlUI::Init()
{
    DoInit();
}

void CControlUI::DoInit() {}

void CControlUI::Event(TEventUI& event)
{
    DoEvent(event);
}

void CControlUI::DoEvent(TEventUI& event)
{
    if (event.Type == UIEVENT_SETFOCUS) {
        m_bFocused = true;
        Invalidate();
        return;
    }
    if (event.Type == UIEVENT_KILLFOCUS) {
        m_bFocused = false;
        Invalidate();
        return;
    }
    if (m_pParent != nullptr)
        m_pParent->DoEvent(event);
}

void CControlUI::SetAttribute(LPCTSTR pstrName, LPCTSTR pstrValue)
{
    if (ApplyFromTable(ControlAttributes(), *this, pstrName, pstrValue))
        return;
    throw AttributeError(AttributeError::Kind::UnknownAttribute, pstrName ? pstrName : L"",
                         pstrValue ? pstrValue : L"");
}

CControlUI* CControlUI::ApplyAttributeList(LPCTSTR pstrList)
{
    const bool ok = attr::ForEachInList(pstrList, [this](const std::wstring& key, const std::wstring& value) {
        SetAttribute(key.c_str(), value.c_str());
    });
    if (!ok)
        throw AttributeError(AttributeError::Kind::BadValue, L"attribute list", pstrList ? pstrList : L"");
    return this;
}

SIZE CControlUI::EstimateSize(SIZE)
{
    return m_cxyFixed;
}

} // namespace DuiLib
