#include "toolkit/controls/container.h"

#include <algorithm>
#include <unordered_map>

#include "toolkit/paint/paint_manager.h"

namespace DuiLib {

CContainerUI::CContainerUI() : m_layout(std::make_unique<StackLayout>()) {}

CContainerUI::CContainerUI(std::unique_ptr<LayoutStrategy> layout) : m_layout(std::move(layout)) {}

CContainerUI::~CContainerUI()
{
    // Children go first, while this container is still whole.
    m_items.clear();
}

LPCTSTR CContainerUI::GetClass() const
{
    return L"ContainerUI";
}

LPVOID CContainerUI::GetInterface(LPCTSTR pstrName)
{
    if (CompareNoCase(pstrName, DUI_CTR_ICONTAINER) == 0)
        return static_cast<IContainerUI*>(this);
    if (CompareNoCase(pstrName, DUI_CTR_CONTAINER) == 0)
        return static_cast<CContainerUI*>(this);
    return CControlUI::GetInterface(pstrName);
}

CControlUI* CContainerUI::GetItemAt(int iIndex) const
{
    if (iIndex < 0 || iIndex >= GetCount())
        return nullptr;
    return m_items[static_cast<std::size_t>(iIndex)].get();
}

int CContainerUI::GetItemIndex(CControlUI* pControl) const
{
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        if (m_items[i].get() == pControl)
            return static_cast<int>(i);
    }
    return -1;
}

bool CContainerUI::SetItemIndex(CControlUI* pControl, int iIndex)
{
    const int current = GetItemIndex(pControl);
    if (current < 0 || iIndex < 0 || iIndex >= GetCount())
        return false;
    auto moved = std::move(m_items[static_cast<std::size_t>(current)]);
    m_items.erase(m_items.begin() + current);
    m_items.insert(m_items.begin() + iIndex, std::move(moved));
    NeedUpdate();
    return true;
}

int CContainerUI::GetCount() const
{
    return static_cast<int>(m_items.size());
}

bool CContainerUI::Add(CControlUI* pControl)
{
    return AddAt(pControl, GetCount());
}

bool CContainerUI::AddAt(CControlUI* pControl, int iIndex)
{
    if (pControl == nullptr || iIndex < 0 || iIndex > GetCount())
        return false;
    m_items.insert(m_items.begin() + iIndex, std::unique_ptr<CControlUI>(pControl));
    pControl->SetManager(m_pManager, this, m_pManager != nullptr);
    if (m_pManager != nullptr && pControl->IsVisible())
        m_pManager->InitControls(pControl, this);
    NeedUpdate();
    return true;
}

bool CContainerUI::Remove(CControlUI* pControl, bool bDoNotDestroy)
{
    const int index = GetItemIndex(pControl);
    return index >= 0 && RemoveAt(index, bDoNotDestroy);
}

bool CContainerUI::RemoveAt(int iIndex, bool bDoNotDestroy)
{
    if (iIndex < 0 || iIndex >= GetCount())
        return false;
    std::unique_ptr<CControlUI> removed = std::move(m_items[static_cast<std::size_t>(iIndex)]);
    m_items.erase(m_items.begin() + iIndex);
    NeedUpdate();
    if (bDoNotDestroy) {
        if (m_pManager != nullptr)
            m_pManager->ReapObjects(removed.get());
        removed->SetManager(nullptr, nullptr, false);
        removed.release();
    } else if (m_pManager != nullptr) {
        m_pManager->AddDelayedCleanup(std::move(removed));
    }
    return true;
}

void CContainerUI::RemoveAll()
{
    while (!m_items.empty())
        RemoveAt(GetCount() - 1);
    m_iScrollY = 0;
    NeedUpdate();
}

void CContainerUI::SetInset(RECT rcInset)
{
    m_rcInset = rcInset;
    NeedUpdate();
}

void CContainerUI::SetChildPadding(int iPadding)
{
    m_iChildPadding = iPadding;
    NeedUpdate();
}

CControlUI* CContainerUI::FindSubControl(LPCTSTR pstrSubControlName)
{
    if (m_pManager != nullptr)
        return m_pManager->FindSubControlByName(this, pstrSubControlName);
    // Not attached yet: search the tree directly.
    for (const auto& item : m_items) {
        if (item->GetName() == pstrSubControlName)
            return item.get();
        if (auto* container = static_cast<CContainerUI*>(item->GetInterface(DUI_CTR_CONTAINER))) {
            if (CControlUI* found = container->FindSubControl(pstrSubControlName))
                return found;
        }
    }
    return nullptr;
}

void CContainerUI::SetVisible(bool bVisible)
{
    CControlUI::SetVisible(bVisible);
}

void CContainerUI::SetInternVisible(bool bVisible)
{
    CControlUI::SetInternVisible(bVisible);
}

void CContainerUI::SetManager(CPaintManagerUI* pManager, CControlUI* pParent, bool bInit)
{
    for (const auto& item : m_items)
        item->SetManager(pManager, this, bInit);
    CControlUI::SetManager(pManager, pParent, bInit);
}

CControlUI* CContainerUI::FindControl(FINDCONTROLPROC Proc, LPVOID pData, UINT uFlags)
{
    if (!IsSearchedBy(pData, uFlags))
        return nullptr;
    if ((uFlags & UIFIND_HITTEST) != 0) {
        const POINT* pt = static_cast<const POINT*>(pData);
        // The scroll bar belongs to the container itself.
        if (m_bVScroll && GetScrollRange() > 0 && pt->x >= m_rcItem.right - kScrollBarWidth) {
            return m_bMouseEnabled ? Proc(this, pData) : nullptr;
        }
        if (!m_bMouseChildEnabled)
            return m_bMouseEnabled ? Proc(this, pData) : nullptr;
    }
    if ((uFlags & UIFIND_ME_FIRST) != 0) {
        if (CControlUI* me = CControlUI::FindControl(Proc, pData, uFlags))
            return me;
    }
    if ((uFlags & UIFIND_TOP_FIRST) != 0) {
        for (auto it = m_items.rbegin(); it != m_items.rend(); ++it) {
            if (CControlUI* found = (*it)->FindControl(Proc, pData, uFlags))
                return found;
        }
    } else {
        for (const auto& item : m_items) {
            if (CControlUI* found = item->FindControl(Proc, pData, uFlags))
                return found;
        }
    }
    if ((uFlags & UIFIND_ME_FIRST) == 0)
        return CControlUI::FindControl(Proc, pData, uFlags);
    return nullptr;
}

void CContainerUI::ArrangeChildren()
{
    RECT area = m_rcItem;
    area.left += m_rcInset.left;
    area.top += m_rcInset.top;
    area.right -= m_rcInset.right;
    area.bottom -= m_rcInset.bottom;
    if (m_bVScroll) {
        // Measure first without the bar; if the children overflow, leave room
        // for it and arrange again.
        m_iContentHeight = m_layout->Arrange(*this, area, m_iScrollY);
        if (m_iContentHeight > area.bottom - area.top) {
            area.right -= kScrollBarWidth;
            m_iScrollY = std::max(0, std::min(m_iScrollY, m_iContentHeight - (area.bottom - area.top)));
            m_iContentHeight = m_layout->Arrange(*this, area, m_iScrollY);
        } else if (m_iScrollY != 0) {
            m_iScrollY = 0;
            m_iContentHeight = m_layout->Arrange(*this, area, 0);
        }
        m_iScrollY = std::max(0, std::min(m_iScrollY, GetScrollRange()));
    } else {
        m_iContentHeight = m_layout->Arrange(*this, area, 0);
    }
    PlaceFloatingChildren();
}

void CContainerUI::PlaceFloatingChildren()
{
    for (const auto& item : m_items) {
        if (!item->IsFloat() || !item->IsVisible())
            continue;
        const SIZE xy = item->GetFixedXY();
        const int width = item->GetFixedWidth();
        const int height = item->GetFixedHeight();
        const int left = xy.cx >= 0 ? m_rcItem.left + xy.cx : m_rcItem.right + xy.cx - width;
        const int top = xy.cy >= 0 ? m_rcItem.top + xy.cy : m_rcItem.bottom + xy.cy - height;
        item->SetPos(RECT{left, top, left + width, top + height}, false);
    }
}

void CContainerUI::SetPos(RECT rc, bool bNeedInvalidate)
{
    CControlUI::SetPos(rc, bNeedInvalidate);
    ArrangeChildren();
}

SIZE CContainerUI::EstimateSize(SIZE szAvailable)
{
    return CControlUI::EstimateSize(szAvailable);
}

void CContainerUI::DoEvent(TEventUI& event)
{
    if (HandleScrollEvent(event))
        return;
    CControlUI::DoEvent(event);
}

void CContainerUI::DoPaint(RenderContext& ctx, const RECT& rcPaint)
{
    if (!RectsIntersect(rcPaint, m_rcItem))
        return;
    const bool rounded = m_cxyBorderRound.cx > 0 && m_cxyBorderRound.cy > 0;
    ctx.PushClip(m_rcItem, rounded ? m_cxyBorderRound : SIZE{0, 0});
    PaintBkColor(ctx);
    PaintBkImage(ctx);
    PaintStatusImage(ctx);
    PaintText(ctx);
    const RECT childPaint = IntersectRects(rcPaint, m_rcItem);
    for (const auto& item : m_items) {
        if (!item->IsVisible() || !ctx.IsVisible(item->GetPos()) ||
            !RectsIntersect(childPaint, item->GetPos())) {
            continue;
        }
        item->DoPaint(ctx, childPaint);
    }
    PaintScrollBar(ctx);
    ctx.PopClip();
    PaintBorder(ctx);
}

void CContainerUI::SetAttribute(LPCTSTR pstrName, LPCTSTR pstrValue)
{
    using Setter = AttributeSetter<CContainerUI>;
    static const std::unordered_map<std::wstring, Setter> table = {
        {L"inset",
         [](CContainerUI& c, const wchar_t* n, const wchar_t* v) { c.SetInset(attr::ParseRect(n, v)); }},
        {L"childpadding", [](CContainerUI& c, const wchar_t* n,
                             const wchar_t* v) { c.SetChildPadding(attr::ParseInt(n, v)); }},
        {L"childalign", [](CContainerUI& c, const wchar_t* n,
                           const wchar_t* v) { c.m_uChildAlign = attr::ParseHorizontalAlign(n, v); }},
        {L"childvalign", [](CContainerUI& c, const wchar_t* n,
                            const wchar_t* v) { c.m_uChildVAlign = attr::ParseVerticalAlign(n, v); }},
        {L"mousechild", [](CContainerUI& c, const wchar_t* n,
                           const wchar_t* v) { c.SetMouseChildEnabled(attr::ParseBool(n, v)); }},
        {L"vscrollbar", [](CContainerUI& c, const wchar_t* n,
                           const wchar_t* v) { c.EnableScrollBar(attr::ParseBool(n, v)); }},
    };
    if (ApplyFromTable(table, *this, pstrName, pstrValue))
        return;
    CControlUI::SetAttribute(pstrName, pstrValue);
}

} // namespace DuiLib
