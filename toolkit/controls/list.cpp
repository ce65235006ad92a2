#include "toolkit/controls/list.h"

#include <unordered_map>

#include "toolkit/paint/paint_manager.h"

namespace DuiLib {

namespace {

IListItemUI* AsListItem(CControlUI* control)
{
    return control ? static_cast<IListItemUI*>(control->GetInterface(DUI_CTR_LISTITEM)) : nullptr;
}

} // namespace

CListUI::CListUI()
{
    EnableScrollBar(true);
}

LPCTSTR CListUI::GetClass() const
{
    return L"ListUI";
}

LPVOID CListUI::GetInterface(LPCTSTR pstrName)
{
    if (CompareNoCase(pstrName, DUI_CTR_LIST) == 0)
        return static_cast<CListUI*>(this);
    if (CompareNoCase(pstrName, DUI_CTR_ILISTOWNER) == 0)
        return static_cast<IListOwnerUI*>(this);
    return CVerticalLayoutUI::GetInterface(pstrName);
}

bool CListUI::Add(CControlUI* pControl)
{
    return AddAt(pControl, GetCount());
}

bool CListUI::AddAt(CControlUI* pControl, int iIndex)
{
    if (!CVerticalLayoutUI::AddAt(pControl, iIndex))
        return false;
    if (IListItemUI* item = AsListItem(pControl))
        item->SetOwner(this);
    if (m_iCurSel >= iIndex)
        ++m_iCurSel;
    ReindexFrom(iIndex);
    return true;
}

bool CListUI::Remove(CControlUI* pControl, bool bDoNotDestroy)
{
    const int index = GetItemIndex(pControl);
    return index >= 0 && RemoveAt(index, bDoNotDestroy);
}

bool CListUI::RemoveAt(int iIndex, bool bDoNotDestroy)
{
    if (!CVerticalLayoutUI::RemoveAt(iIndex, bDoNotDestroy))
        return false;
    if (iIndex == m_iCurSel) {
        m_iCurSel = -1;
    } else if (iIndex < m_iCurSel) {
        --m_iCurSel;
    }
    ReindexFrom(iIndex);
    return true;
}

void CListUI::RemoveAll()
{
    m_iCurSel = -1;
    CVerticalLayoutUI::RemoveAll();
}

void CListUI::ReindexFrom(int iIndex)
{
    for (int i = iIndex; i < GetCount(); ++i) {
        if (IListItemUI* item = AsListItem(GetItemAt(i)))
            item->SetIndex(i);
    }
}

UINT CListUI::GetControlFlags() const
{
    return IsKeyboardEnabled() && IsEnabled() ? UIFLAG_TABSTOP : 0u;
}

bool CListUI::ShowsFocusRing() const
{
    // Clicking a row gives the row the focus; the list still shows it.
    const CControlUI* focus = m_pManager != nullptr ? m_pManager->GetFocus() : nullptr;
    return IsFocused() || (focus != nullptr && GetItemIndex(const_cast<CControlUI*>(focus)) >= 0);
}

TListInfoUI* CListUI::GetListInfo()
{
    return &m_ListInfo;
}

int CListUI::GetCurSel() const
{
    return m_iCurSel;
}

bool CListUI::SelectItem(int iIndex, bool bTakeFocus, bool bTriggerEvent)
{
    if (iIndex == m_iCurSel)
        return true;
    const int old = m_iCurSel;
    if (m_iCurSel >= 0) {
        if (IListItemUI* item = AsListItem(GetItemAt(m_iCurSel)))
            item->Select(false);
        m_iCurSel = -1;
    }
    if (iIndex < 0)
        return false;
    CControlUI* control = GetItemAt(iIndex);
    IListItemUI* item = AsListItem(control);
    if (control == nullptr || item == nullptr || !control->IsVisible() || !control->IsEnabled())
        return false;
    m_iCurSel = iIndex;
    item->Select(true, false);
    EnsureVisible(iIndex);
    if (bTakeFocus)
        control->SetFocus();
    if (bTriggerEvent && m_pManager != nullptr) {
        m_pManager->SendNotify(this, DUI_MSGTYPE_ITEMSELECT, static_cast<WPARAM>(m_iCurSel),
                               static_cast<LPARAM>(old));
    }
    return true;
}

bool CListUI::UnSelectItem(int iIndex)
{
    if (iIndex != m_iCurSel || iIndex < 0)
        return false;
    if (IListItemUI* item = AsListItem(GetItemAt(iIndex)))
        item->Select(false);
    m_iCurSel = -1;
    return true;
}

void CListUI::UnSelectAllItems()
{
    for (int i = 0; i < GetCount(); ++i) {
        if (IListItemUI* item = AsListItem(GetItemAt(i))) {
            if (item->IsSelected())
                item->Select(false);
        }
    }
    m_iCurSel = -1;
}

void CListUI::EnsureVisible(int iIndex)
{
    if (m_pManager != nullptr)
        m_pManager->UpdateLayoutIfNeeded();
    CContainerUI::EnsureVisible(GetItemAt(iIndex));
}

int CListUI::FindSelectable(int iIndex, bool bForward) const
{
    const int step = bForward ? 1 : -1;
    for (int i = iIndex; i >= 0 && i < GetCount(); i += step) {
        CControlUI* row = GetItemAt(i);
        if (AsListItem(row) != nullptr && row->IsVisible() && row->IsEnabled())
            return i;
    }
    return -1;
}

int CListUI::RowForKey(TCHAR key) const
{
    switch (key) {
    case VK_UP:
        // With no selection, Up and Down both start at the top.
        return m_iCurSel < 0 ? FindSelectable(0) : FindSelectable(m_iCurSel - 1, false);
    case VK_DOWN:
        return FindSelectable(m_iCurSel + 1);
    case VK_HOME:
        return FindSelectable(0);
    case VK_END:
        return FindSelectable(GetCount() - 1, false);
    default:
        return -1;
    }
}

void CListUI::DoEvent(TEventUI& event)
{
    if (event.Type == UIEVENT_KEYDOWN) {
        const bool navigation =
            event.chKey == VK_UP || event.chKey == VK_DOWN || event.chKey == VK_HOME || event.chKey == VK_END;
        if (navigation) {
            // At either end the selection stays where it is.
            const int row = RowForKey(event.chKey);
            if (row >= 0)
                SelectItem(row, true);
            return;
        }
    }
    CVerticalLayoutUI::DoEvent(event);
}

void CListUI::SetAttribute(LPCTSTR pstrName, LPCTSTR pstrValue)
{
    using Setter = AttributeSetter<CListUI>;
    static const std::unordered_map<std::wstring, Setter> table = {
        {L"itembkcolor", [](CListUI& c, const wchar_t* n,
                            const wchar_t* v) { c.m_ListInfo.dwBkColor = attr::ParseColor(n, v); }},
        {L"itemhotbkcolor", [](CListUI& c, const wchar_t* n,
                               const wchar_t* v) { c.m_ListInfo.dwHotBkColor = attr::ParseColor(n, v); }},
        {L"itemselectedbkcolor",
         [](CListUI& c, const wchar_t* n, const wchar_t* v) {
             c.m_ListInfo.dwSelectedBkColor = attr::ParseColor(n, v);
         }},
        {L"itemdisabledbkcolor",
         [](CListUI& c, const wchar_t* n, const wchar_t* v) {
             c.m_ListInfo.dwDisabledBkColor = attr::ParseColor(n, v);
         }},
        // DuiLib lists have a column header unless it is hidden; ours have
        // none, so a skin says header="hidden" to look the same in both.
        {L"header",
         [](CListUI&, const wchar_t* n, const wchar_t* v) {
             if (std::wstring(v) != L"hidden")
                 throw AttributeError(AttributeError::Kind::BadValue, n, v);
         }},
        {L"itemlinecolor", [](CListUI& c, const wchar_t* n,
                              const wchar_t* v) { c.m_ListInfo.dwLineColor = attr::ParseColor(n, v); }},
    };
    if (ApplyFromTable(table, *this, pstrName, pstrValue))
        return;
    CVerticalLayoutUI::SetAttribute(pstrName, pstrValue);
}

CListContainerElementUI::CListContainerElementUI() = default;

LPCTSTR CListContainerElementUI::GetClass() const
{
    return L"ListContainerElementUI";
}

LPVOID CListContainerElementUI::GetInterface(LPCTSTR pstrName)
{
    if (CompareNoCase(pstrName, DUI_CTR_LISTITEM) == 0)
        return static_cast<IListItemUI*>(this);
    if (CompareNoCase(pstrName, DUI_CTR_LISTCONTAINERELEMENT) == 0)
        return static_cast<CListContainerElementUI*>(this);
    return CHorizontalLayoutUI::GetInterface(pstrName);
}

UINT CListContainerElementUI::GetControlFlags() const
{
    return 0;
}

int CListContainerElementUI::GetIndex() const
{
    return m_iIndex;
}

void CListContainerElementUI::SetIndex(int iIndex)
{
    m_iIndex = iIndex;
}

IListOwnerUI* CListContainerElementUI::GetOwner()
{
    return m_pOwner;
}

void CListContainerElementUI::SetOwner(CControlUI* pOwner)
{
    m_pOwner = pOwner ? static_cast<IListOwnerUI*>(pOwner->GetInterface(DUI_CTR_ILISTOWNER)) : nullptr;
}

bool CListContainerElementUI::IsSelected() const
{
    return m_bSelected;
}

bool CListContainerElementUI::Select(bool bSelect, bool bTriggerEvent)
{
    if (!IsEnabled() && bSelect)
        return false;
    if (m_bSelected == bSelect)
        return true;
    m_bSelected = bSelect;
    if (bSelect && m_pOwner != nullptr && m_pOwner->GetCurSel() != m_iIndex) {
        m_pOwner->SelectItem(m_iIndex, false, bTriggerEvent);
    }
    Invalidate();
    return true;
}

bool CListContainerElementUI::Activate()
{
    if (!CControlUI::Activate())
        return false;
    if (m_pManager != nullptr)
        m_pManager->SendNotify(this, DUI_MSGTYPE_ITEMCLICK);
    return true;
}

void CListContainerElementUI::DoEvent(TEventUI& event)
{
    switch (event.Type) {
    case UIEVENT_BUTTONDOWN:
        if (IsEnabled()) {
            Activate();
            if (m_pOwner != nullptr) {
                m_pOwner->SelectItem(m_iIndex, true);
            }
            // Also when the row was selected already: a click brings the
            // keyboard to the list.
            SetFocus();
            Invalidate();
        }
        return;
    case UIEVENT_MOUSEENTER:
        if (!m_bHot) {
            m_bHot = true;
            Invalidate();
        }
        return;
    case UIEVENT_MOUSELEAVE:
        if (m_bHot) {
            m_bHot = false;
            Invalidate();
        }
        return;
    case UIEVENT_SCROLLWHEEL:
    case UIEVENT_KEYDOWN:
        // The owner scrolls and moves the selection.
        if (m_pOwner != nullptr) {
            m_pOwner->DoEvent(event);
            return;
        }
        break;
    default:
        break;
    }
    CHorizontalLayoutUI::DoEvent(event);
}

void CListContainerElementUI::PaintBkColor(RenderContext& ctx)
{
    CHorizontalLayoutUI::PaintBkColor(ctx);
    if (m_pOwner == nullptr)
        return;
    const TListInfoUI* info = m_pOwner->GetListInfo();
    DWORD overlay = info->dwBkColor;
    if (!IsEnabled() && info->dwDisabledBkColor != 0) {
        overlay = info->dwDisabledBkColor;
    } else if (m_bSelected && info->dwSelectedBkColor != 0) {
        overlay = info->dwSelectedBkColor;
    } else if (m_bHot && info->dwHotBkColor != 0) {
        overlay = info->dwHotBkColor;
    }
    if (m_dwBackColor == 0 || overlay != info->dwBkColor)
        ctx.FillRect(m_rcItem, overlay);
    if (info->dwLineColor != 0) {
        ctx.FillRect(RECT{m_rcItem.left, m_rcItem.bottom - 1, m_rcItem.right, m_rcItem.bottom},
                     info->dwLineColor);
    }
}

} // namespace DuiLib
