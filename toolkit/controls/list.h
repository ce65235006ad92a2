#pragma once
// CListUI: a vertically scrolling list of rows with one selected row.
// CListContainerElementUI: a row that holds any controls, laid out left to
// right. IListOwnerUI and IListItemUI are the two sides of their contract.
//
// Selection raises "itemselect" with wParam the new index and lParam the
// old one (-1 for none). Clicking a row selects it and raises "itemclick"
// first. Removing the selected row leaves the list without a selection and
// raises nothing; UnSelectAllItems raises nothing either.
//
// Keyboard: the list is a tab stop. While it or one of its rows has the
// focus, Up and Down select the previous and next selectable row, Home and
// End the first and last, each raising "itemselect" as a click does; the
// list's border then takes the focus border colour.

#include "toolkit/controls/container.h"

namespace DuiLib {

class IListItemUI;

// Colours the owner gives its rows; 0 paints nothing.
struct TListInfoUI
{
    DWORD dwBkColor = 0;
    DWORD dwHotBkColor = 0;
    DWORD dwSelectedBkColor = 0;
    DWORD dwDisabledBkColor = 0;
    DWORD dwLineColor = 0;
};

class IListOwnerUI
{
public:
    virtual ~IListOwnerUI() = default;
    virtual TListInfoUI* GetListInfo() = 0;
    virtual int GetCurSel() const = 0;
    // Selects row iIndex (or none for -1). Returns false if that row cannot
    // be selected. Raises "itemselect" when the selection changed and
    // bTriggerEvent is set; bTakeFocus also gives the row the focus.
    virtual bool SelectItem(int iIndex, bool bTakeFocus = false, bool bTriggerEvent = true) = 0;
    virtual void DoEvent(TEventUI& event) = 0;
};

class IListItemUI
{
public:
    virtual ~IListItemUI() = default;
    virtual int GetIndex() const = 0;
    virtual void SetIndex(int iIndex) = 0;
    virtual IListOwnerUI* GetOwner() = 0;
    virtual void SetOwner(CControlUI* pOwner) = 0;
    virtual bool IsSelected() const = 0;
    // Marks the row; asks the owner to select it when bSelect is set and
    // the owner does not already have it selected.
    virtual bool Select(bool bSelect = true, bool bTriggerEvent = true) = 0;
};

class CListUI : public CVerticalLayoutUI, public IListOwnerUI
{
public:
    CListUI();
    LPCTSTR GetClass() const override;
    LPVOID GetInterface(LPCTSTR pstrName) override;

    bool Add(CControlUI* pControl) override;
    bool AddAt(CControlUI* pControl, int iIndex) override;
    bool Remove(CControlUI* pControl, bool bDoNotDestroy = false) override;
    bool RemoveAt(int iIndex, bool bDoNotDestroy = false) override;
    void RemoveAll() override;

    UINT GetControlFlags() const override;
    bool ShowsFocusRing() const override;

    TListInfoUI* GetListInfo() override;
    int GetCurSel() const override;
    bool SelectItem(int iIndex, bool bTakeFocus = false, bool bTriggerEvent = true) override;
    bool UnSelectItem(int iIndex);
    void UnSelectAllItems();
    void EnsureVisible(int iIndex);
    // The first row from iIndex on (or back) that can be selected: a list
    // item, visible and enabled; -1 when there is none.
    int FindSelectable(int iIndex, bool bForward = true) const;
    void DoEvent(TEventUI& event) override;
    void SetAttribute(LPCTSTR pstrName, LPCTSTR pstrValue) override;

protected:
    void ReindexFrom(int iIndex);
    // The row a navigation key leads to, or -1 for a key the list ignores.
    int RowForKey(TCHAR key) const;

    int m_iCurSel = -1;
    TListInfoUI m_ListInfo;
};

class CListContainerElementUI : public CHorizontalLayoutUI, public IListItemUI
{
public:
    CListContainerElementUI();
    LPCTSTR GetClass() const override;
    LPVOID GetInterface(LPCTSTR pstrName) override;
    UINT GetControlFlags() const override;

    int GetIndex() const override;
    void SetIndex(int iIndex) override;
    IListOwnerUI* GetOwner() override;
    void SetOwner(CControlUI* pOwner) override;
    bool IsSelected() const override;
    bool Select(bool bSelect = true, bool bTriggerEvent = true) override;
    bool IsHot() const { return m_bHot; }

    bool Activate() override;
    void DoEvent(TEventUI& event) override;
    void PaintBkColor(RenderContext& ctx) override;

protected:
    int m_iIndex = -1;
    bool m_bSelected = false;
    bool m_bHot = false;
    IListOwnerUI* m_pOwner = nullptr;
};

} // namespace DuiLib
