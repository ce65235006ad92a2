#include "toolkit/controls/container.h"

#include <algorithm>
#include <unordered_map>

#include "toolkit/paint/paint_manager.h"

namespace DuiLib {

namespace {

constexpr int kWheelStep = 40; // logical pixels per wheel notch
constexpr DWORD kThumbColor = 0x66000000;

UINT ParseHorizontalAlign(const wchar_t* name, const wchar_t* value)
{
    const std::wstring v = value;
    if (v == L"left")
        return DT_LEFT;
    if (v == L"center")
        return DT_CENTER;
    if (v == L"right")
        return DT_RIGHT;
    throw AttributeError(AttributeError::Kind::BadValue, name, value);
}

UINT ParseVerticalAlign(const wchar_t* name, const wchar_t* value)
{
    const std::wstring v = value;
    if (v == L"top")
        return DT_TOP;
    if (v == L"vcenter" || v == L"center")
        return DT_VCENTER;
    if (v == L"bottom")
        return DT_BOTTOM;
    throw AttributeError(AttributeError::Kind::BadValue, name, value);
}

} // namespace

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

void CContainerUI::EnableScrollBar(bool bEnableVertical)
{
    if (m_bVScroll == bEnableVertical)
        return;
    m_bVScroll = bEnableVertical;
    if (!m_bVScroll)
        m_iScrollY = 0;
    NeedUpdate();
}

int CContainerUI::GetScrollRange() const
{
    const int viewport = (m_rcItem.bottom - m_rcItem.top) - m_rcInset.top - m_rcInset.bottom;
    return std::max(0, m_iContentHeight - viewport);
}

void CContainerUI::SetScrollPos(int y)
{
    if (!m_bVScroll)
        return;
    y = std::max(0, std::min(y, GetScrollRange()));
    if (y == m_iScrollY)
        return;
    m_iScrollY = y;
    ArrangeChildren();
    Invalidate();
    if (m_pManager != nullptr)
        m_pManager->SendNotify(this, DUI_MSGTYPE_SCROLL, static_cast<WPARAM>(y));
}

void CContainerUI::LineUp()
{
    SetScrollPos(m_iScrollY - kWheelStep);
}

void CContainerUI::LineDown()
{
    SetScrollPos(m_iScrollY + kWheelStep);
}

void CContainerUI::EnsureVisible(CControlUI* pControl)
{
    if (!m_bVScroll || pControl == nullptr)
        return;
    const RECT& r = pControl->GetPos();
    const int viewTop = m_rcItem.top + m_rcInset.top;
    const int viewBottom = m_rcItem.bottom - m_rcInset.bottom;
    if (r.top < viewTop) {
        SetScrollPos(m_iScrollY - (viewTop - r.top));
    } else if (r.bottom > viewBottom) {
        SetScrollPos(m_iScrollY + (r.bottom - viewBottom));
    }
}

RECT CContainerUI::GetScrollThumbRect() const
{
    const int range = GetScrollRange();
    if (!m_bVScroll || range <= 0)
        return RECT{0, 0, 0, 0};
    const int trackTop = m_rcItem.top + m_rcInset.top;
    const int trackHeight = (m_rcItem.bottom - m_rcInset.bottom) - trackTop;
    const int thumbHeight = std::max(20, trackHeight * trackHeight / std::max(1, m_iContentHeight));
    const int thumbTop = trackTop + (trackHeight - thumbHeight) * m_iScrollY / range;
    return RECT{m_rcItem.right - kScrollBarWidth, thumbTop, m_rcItem.right - 2, thumbTop + thumbHeight};
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
    if ((uFlags & UIFIND_VISIBLE) != 0 && !IsVisible())
        return nullptr;
    if ((uFlags & UIFIND_ENABLED) != 0 && !IsEnabled())
        return nullptr;
    if ((uFlags & UIFIND_HITTEST) != 0) {
        const POINT* pt = static_cast<const POINT*>(pData);
        if (pt->x < m_rcItem.left || pt->x >= m_rcItem.right || pt->y < m_rcItem.top ||
            pt->y >= m_rcItem.bottom) {
            return nullptr;
        }
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
    if (m_bVScroll && GetScrollRange() > 0) {
        if (event.Type == UIEVENT_SCROLLWHEEL) {
            const short delta = GET_WHEEL_DELTA_WPARAM(event.wParam);
            const int notches = delta / WHEEL_DELTA != 0 ? delta / WHEEL_DELTA : (delta > 0 ? 1 : -1);
            SetScrollPos(m_iScrollY - notches * kWheelStep);
            return;
        }
        if (event.Type == UIEVENT_BUTTONDOWN && event.pSender == this) {
            const RECT thumb = GetScrollThumbRect();
            if (event.ptMouse.y >= thumb.top && event.ptMouse.y < thumb.bottom) {
                m_bScrollDragging = true;
                m_iDragStartY = event.ptMouse.y;
                m_iDragStartScroll = m_iScrollY;
            } else {
                const int page = (m_rcItem.bottom - m_rcItem.top) - m_rcInset.top - m_rcInset.bottom;
                SetScrollPos(m_iScrollY + (event.ptMouse.y < thumb.top ? -page : page));
            }
            return;
        }
        if (event.Type == UIEVENT_MOUSEMOVE && m_bScrollDragging) {
            const RECT thumb = GetScrollThumbRect();
            const int track = (m_rcItem.bottom - m_rcInset.bottom) - (m_rcItem.top + m_rcInset.top) -
                              (thumb.bottom - thumb.top);
            if (track > 0) {
                SetScrollPos(m_iDragStartScroll +
                             (event.ptMouse.y - m_iDragStartY) * GetScrollRange() / track);
            }
            return;
        }
        if (event.Type == UIEVENT_BUTTONUP && m_bScrollDragging) {
            m_bScrollDragging = false;
            return;
        }
    }
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

void CContainerUI::PaintScrollBar(RenderContext& ctx)
{
    const RECT thumb = GetScrollThumbRect();
    if (RectIsEmpty(thumb))
        return;
    ctx.FillRoundRect(thumb, kThumbColor, SIZE{6, 6});
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
                           const wchar_t* v) { c.m_uChildAlign = ParseHorizontalAlign(n, v); }},
        {L"childvalign", [](CContainerUI& c, const wchar_t* n,
                            const wchar_t* v) { c.m_uChildVAlign = ParseVerticalAlign(n, v); }},
        {L"mousechild", [](CContainerUI& c, const wchar_t* n,
                           const wchar_t* v) { c.SetMouseChildEnabled(attr::ParseBool(n, v)); }},
        {L"vscrollbar", [](CContainerUI& c, const wchar_t* n,
                           const wchar_t* v) { c.EnableScrollBar(attr::ParseBool(n, v)); }},
    };
    if (ApplyFromTable(table, *this, pstrName, pstrValue))
        return;
    CControlUI::SetAttribute(pstrName, pstrValue);
}

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
