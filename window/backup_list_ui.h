#pragma once
// The device list of the cloud backup panel: `BackupList` (skin element
// "ListViewB") and its rows (`SpaceMgm/BackupItem.xml`, element "ListItemB").
// A row holds no data: its index in the list is its index in
// `model.backups`.
#include "toolkit/duilib.h"

class CBackupItemUI : public DuiLib::CListContainerElementUI
{
public:
    ~CBackupItemUI() override;
    LPCTSTR GetClass() const override;
};

class CBackupListViewUI : public DuiLib::CListUI, public DuiLib::IDialogBuilderCallback
{
public:
    ~CBackupListViewUI() override;
    LPCTSTR GetClass() const override;
    DuiLib::LPVOID GetInterface(LPCTSTR pstrName) override;
    DuiLib::CControlUI* CreateControl(LPCTSTR pstrClass) override;
};

inline constexpr const wchar_t* kBackupListClass = L"ListViewB";
inline constexpr const wchar_t* kBackupItemClass = L"ListItemB";
