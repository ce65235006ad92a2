// The layout containers of skins: vertical and horizontal stacks, and the
// tab layout that shows one page at a time.

#include <algorithm>

#include "toolkit/controls/container.h"
#include "toolkit/paint/paint_manager.h"

namespace DuiLib {

CVerticalLayoutUI::CVerticalLayoutUI() : CContainerUI(std::make_unique<VerticalStackLayout>()) {}

LPCTSTR CVerticalLayoutUI::GetClass() const
{
    return L"VerticalLayoutUI";
}

LPVOID CVerticalLayoutUI::GetInterface(LPCTSTR pstrName)
{
    if (CompareNoCase(pstrName, DUI_CTR_VERTICALLAYOUT) == 0)
        return static_cast<CVerticalLayoutUI*>(this);
    return CContainerUI::GetInterface(pstrName);
}

CHorizontalLayoutUI::CHorizontalLayoutUI() : CContainerUI(std::make_unique<HorizontalStackLayout>()) {}

LPCTSTR CHorizontalLayoutUI::GetClass() const
{
    return L"HorizontalLayoutUI";
}

LPVOID CHorizontalLayoutUI::GetInterface(LPCTSTR pstrName)
{
    if (CompareNoCase(pstrName, DUI_CTR_HORIZONTALLAYOUT) == 0)
        return static_cast<CHorizontalLayoutUI*>(this);
    return CContainerUI::GetInterface(pstrName);
}

LPCTSTR CTabLayoutUI::GetClass() const
{
    return L"TabLayoutUI";
}

LPVOID CTabLayoutUI::GetInterface(LPCTSTR pstrName)
{
    if (CompareNoCase(pstrName, DUI_CTR_TABLAYOUT) == 0)
        return static_cast<CTabLayoutUI*>(this);
    return CContainerUI::GetInterface(pstrName);
}

bool CTabLayoutUI::Add(CControlUI* pControl)
{
    return AddAt(pControl, GetCount());
}

bool CTabLayoutUI::AddAt(CControlUI* pControl, int iIndex)
{
    if (!CContainerUI::AddAt(pControl, iIndex))
        return false;
    if (m_iCurSel == -1 && pControl->IsVisible()) {
        m_iCurSel = GetItemIndex(pControl);
    } else {
        if (iIndex <= m_iCurSel)
            ++m_iCurSel;
        pControl->SetVisible(false);
    }
    return true;
}

bool CTabLayoutUI::Remove(CControlUI* pControl, bool bDoNotDestroy)
{
    const int index = GetItemIndex(pControl);
    if (index < 0)
        return false;
    if (!CContainerUI::RemoveAt(index, bDoNotDestroy))
        return false;
    if (index == m_iCurSel) {
        m_iCurSel = -1;
        if (GetCount() > 0)
            SelectItem(std::max(0, index - 1));
    } else if (index < m_iCurSel) {
        --m_iCurSel;
    }
    return true;
}

void CTabLayoutUI::RemoveAll()
{
    m_iCurSel = -1;
    CContainerUI::RemoveAll();
}

bool CTabLayoutUI::SelectItem(int iIndex)
{
    // Page switches may come from worker threads (a network watcher); the
    // tree is only ever changed on the window's thread.
    if (m_pManager != nullptr && !m_pManager->IsWindowThread()) {
        bool selected = false;
        m_pManager->RunOnWindowThread([this, iIndex, &selected] { selected = SelectItem(iIndex); });
        return selected;
    }
    if (iIndex < 0 || iIndex >= GetCount())
        return false;
    if (iIndex == m_iCurSel)
        return true;
    const int old = m_iCurSel;
    m_iCurSel = iIndex;
    for (int i = 0; i < GetCount(); ++i)
        GetItemAt(i)->SetVisible(i == iIndex);
    NeedUpdate();
    Invalidate();
    if (m_pManager != nullptr) {
        m_pManager->SendNotify(this, L"tabselect", static_cast<WPARAM>(m_iCurSel), static_cast<LPARAM>(old));
    }
    return true;
}

void CTabLayoutUI::DoInit()
{
    if (m_iInitialSel < 0 || m_iInitialSel >= GetCount())
        return;
    m_iCurSel = m_iInitialSel;
    for (int i = 0; i < GetCount(); ++i)
        GetItemAt(i)->SetVisible(i == m_iCurSel);
    m_iInitialSel = -1;
}

bool CTabLayoutUI::SelectItem(CControlUI* pControl)
{
    const int index = GetItemIndex(pControl);
    return index >= 0 && SelectItem(index);
}

void CTabLayoutUI::SetAttribute(LPCTSTR pstrName, LPCTSTR pstrValue)
{
    if (CompareNoCase(pstrName, L"selectedid") == 0) {
        // Pages are added after the attributes are read; DoInit applies it.
        m_iInitialSel = attr::ParseInt(pstrName, pstrValue);
        return;
    }
    CContainerUI::SetAttribute(pstrName, pstrValue);
}

} // namespace DuiLib
