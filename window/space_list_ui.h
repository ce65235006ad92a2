#pragma once
// The category list: `SpaceList` (skin element "ListViewS") and its rows
// (`SpaceMgm/SpaceItem.xml`, element "ListItemS"), each holding the
// SpaceInfo it shows.
#include "toolkit/duilib.h"
#include "window/space_window_types.h"

class CSpaceItemUI : public DuiLib::CListContainerElementUI
{
public:
    ~CSpaceItemUI() override;
    LPCTSTR GetClass() const override;

    // Copies `info` and shows its name, icon, count and size in the row's
    // `itemName`, `itemPic`, `itemRemark` and `itemSize`.
    void SetSpaceInfo(const SpaceInfo& info);
    const SpaceInfo& GetSpaceInfo() const { return m_spaceInfo; }

private:
    SpaceInfo m_spaceInfo;
};

class CSpaceListViewUI : public DuiLib::CListUI, public DuiLib::IDialogBuilderCallback
{
public:
    ~CSpaceListViewUI() override;
    LPCTSTR GetClass() const override;
    DuiLib::LPVOID GetInterface(LPCTSTR pstrName) override;
    DuiLib::CControlUI* CreateControl(LPCTSTR pstrClass) override;
};

// Skin element names of the list and its rows.
inline constexpr const wchar_t* kSpaceListClass = L"ListViewS";
inline constexpr const wchar_t* kSpaceItemClass = L"ListItemS";
