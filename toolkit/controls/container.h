#pragma once
// Containers: IContainerUI, the owner of child controls, and CContainerUI,
// which places them through a LayoutStrategy and can scroll vertically.

#include <memory>
#include <vector>

#include "toolkit/controls/control.h"

namespace DuiLib {

class CContainerUI;

class IContainerUI
{
public:
    virtual ~IContainerUI() = default;
    virtual CControlUI* GetItemAt(int iIndex) const = 0;
    virtual int GetItemIndex(CControlUI* pControl) const = 0;
    virtual bool SetItemIndex(CControlUI* pControl, int iIndex) = 0;
    virtual int GetCount() const = 0;
    // Add and AddAt take ownership of the control.
    virtual bool Add(CControlUI* pControl) = 0;
    virtual bool AddAt(CControlUI* pControl, int iIndex) = 0;
    // Remove, RemoveAt and RemoveAll destroy the removed controls (after the
    // event being handled, so a control may remove its own row).
    virtual bool Remove(CControlUI* pControl, bool bDoNotDestroy = false) = 0;
    virtual bool RemoveAt(int iIndex, bool bDoNotDestroy = false) = 0;
    virtual void RemoveAll() = 0;
};

// How a container places its children. The container calls Arrange after
// its own rectangle changed or a child asked for a new layout; Estimate
// answers how large the children want the container to be.
class LayoutStrategy
{
public:
    virtual ~LayoutStrategy() = default;
    // Places every visible child inside `area` (the container's rectangle
    // less its inset and scroll bar), shifted up by `scrollY`; returns the
    // height the children take, for scrolling.
    virtual int Arrange(CContainerUI& owner, const RECT& area, int scrollY) = 0;
    // The size the children need along the layout's direction inside
    // `available` (0 in a dimension where children do not decide).
    virtual SIZE Estimate(CContainerUI& owner, SIZE available) = 0;
};

// Every child gets the whole area (less its padding), or its fixed size.
class StackLayout : public LayoutStrategy
{
public:
    int Arrange(CContainerUI& owner, const RECT& area, int scrollY) override;
    SIZE Estimate(CContainerUI& owner, SIZE available) override;
};

// Children top to bottom. Fixed heights are kept; children with no fixed
// height share what remains equally. Widths are fixed or the full width.
class VerticalStackLayout : public LayoutStrategy
{
public:
    int Arrange(CContainerUI& owner, const RECT& area, int scrollY) override;
    SIZE Estimate(CContainerUI& owner, SIZE available) override;
};

// Children left to right, the same rules turned by 90 degrees.
class HorizontalStackLayout : public LayoutStrategy
{
public:
    int Arrange(CContainerUI& owner, const RECT& area, int scrollY) override;
    SIZE Estimate(CContainerUI& owner, SIZE available) override;
};

class CContainerUI : public CControlUI, public IContainerUI
{
public:
    CContainerUI();
    explicit CContainerUI(std::unique_ptr<LayoutStrategy> layout);
    ~CContainerUI() override;

    LPCTSTR GetClass() const override;
    LPVOID GetInterface(LPCTSTR pstrName) override;

    CControlUI* GetItemAt(int iIndex) const override;
    int GetItemIndex(CControlUI* pControl) const override;
    bool SetItemIndex(CControlUI* pControl, int iIndex) override;
    int GetCount() const override;
    bool Add(CControlUI* pControl) override;
    bool AddAt(CControlUI* pControl, int iIndex) override;
    bool Remove(CControlUI* pControl, bool bDoNotDestroy = false) override;
    bool RemoveAt(int iIndex, bool bDoNotDestroy = false) override;
    void RemoveAll() override;

    RECT GetInset() const { return m_rcInset; }
    void SetInset(RECT rcInset);
    int GetChildPadding() const { return m_iChildPadding; }
    void SetChildPadding(int iPadding);
    // Alignment of children narrower (or shorter) than the area: "left",
    // "center", "right" and "top", "vcenter", "bottom".
    UINT GetChildAlign() const { return m_uChildAlign; }
    UINT GetChildVAlign() const { return m_uChildVAlign; }
    bool IsMouseChildEnabled() const { return m_bMouseChildEnabled; }
    void SetMouseChildEnabled(bool bEnable = true) { m_bMouseChildEnabled = bEnable; }

    // Vertical scrolling: enabled by the `vscrollbar` attribute.
    bool IsVScrollEnabled() const { return m_bVScroll; }
    void EnableScrollBar(bool bEnableVertical = true);
    int GetScrollPos() const { return m_iScrollY; }
    int GetScrollRange() const;
    void SetScrollPos(int y);
    void LineUp();
    void LineDown();
    // Scrolls the least needed to show the child's whole rectangle.
    void EnsureVisible(CControlUI* pControl);
    RECT GetScrollThumbRect() const;

    CControlUI* FindSubControl(LPCTSTR pstrSubControlName);

    void SetVisible(bool bVisible = true) override;
    void SetInternVisible(bool bVisible = true) override;
    void SetManager(CPaintManagerUI* pManager, CControlUI* pParent, bool bInit = true) override;
    CControlUI* FindControl(FINDCONTROLPROC Proc, LPVOID pData, UINT uFlags) override;
    void SetPos(RECT rc, bool bNeedInvalidate = true) override;
    SIZE EstimateSize(SIZE szAvailable) override;
    void DoEvent(TEventUI& event) override;
    void DoPaint(RenderContext& ctx, const RECT& rcPaint) override;
    void SetAttribute(LPCTSTR pstrName, LPCTSTR pstrValue) override;

    LayoutStrategy& layout() { return *m_layout; }
    // Children as the layout sees them.
    const std::vector<std::unique_ptr<CControlUI>>& items() const { return m_items; }

protected:
    void ArrangeChildren();
    // Floating children stand where their fixed position puts them, out of
    // the layout and the scrolling.
    void PlaceFloatingChildren();
    virtual void PaintScrollBar(RenderContext& ctx);
    // Wheel, thumb drag and track clicks of the scroll bar; true when the
    // event was the scroll bar's.
    bool HandleScrollEvent(TEventUI& event);

    std::vector<std::unique_ptr<CControlUI>> m_items;
    std::unique_ptr<LayoutStrategy> m_layout;
    RECT m_rcInset{0, 0, 0, 0};
    int m_iChildPadding = 0;
    UINT m_uChildAlign = DT_LEFT;
    UINT m_uChildVAlign = DT_TOP;
    bool m_bMouseChildEnabled = true;
    bool m_bVScroll = false;
    int m_iScrollY = 0;
    int m_iContentHeight = 0;
    bool m_bScrollDragging = false;
    int m_iDragStartY = 0;
    int m_iDragStartScroll = 0;
};

class CVerticalLayoutUI : public CContainerUI
{
public:
    CVerticalLayoutUI();
    LPCTSTR GetClass() const override;
    LPVOID GetInterface(LPCTSTR pstrName) override;
};

class CHorizontalLayoutUI : public CContainerUI
{
public:
    CHorizontalLayoutUI();
    LPCTSTR GetClass() const override;
    LPVOID GetInterface(LPCTSTR pstrName) override;
};

// Shows one child at a time: the selected page.
class CTabLayoutUI : public CContainerUI
{
public:
    LPCTSTR GetClass() const override;
    LPVOID GetInterface(LPCTSTR pstrName) override;

    bool Add(CControlUI* pControl) override;
    bool AddAt(CControlUI* pControl, int iIndex) override;
    bool Remove(CControlUI* pControl, bool bDoNotDestroy = false) override;
    void RemoveAll() override;
    int GetCurSel() const { return m_iCurSel; }
    // Shows page iIndex and hides the others; false for an index out of
    // range. Raises "tabselect" (wParam new, lParam old) when it changed.
    // Called from another thread, it runs on the window's thread and waits.
    virtual bool SelectItem(int iIndex);
    bool SelectItem(CControlUI* pControl);
    void SetAttribute(LPCTSTR pstrName, LPCTSTR pstrValue) override;
    void DoInit() override;

private:
    int m_iCurSel = -1;
    int m_iInitialSel = -1;
};

// Width of the vertical scroll bar in logical pixels.
constexpr int kScrollBarWidth = 8;

} // namespace DuiLib
