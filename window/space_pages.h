#pragma once
// The two virtual windows of the space window. Controls whose `virtualwnd`
// is "SpacePage" or "BackupPage" have their notifications routed here by the
// window's notify pump once the window itself has seen them.
#include "toolkit/duilib.h"

class SpaceMgmWnd;
class CSpaceListViewUI;
class CBackupListViewUI;

inline constexpr const wchar_t* kSpacePageName = L"SpacePage";
inline constexpr const wchar_t* kBackupPageName = L"BackupPage";

// The category list. Selection is handled by SpaceMgmWnd::Notify; the page
// only takes the notification.
class CSpacePage : public DuiLib::CNotifyPump
{
public:
    void SetPaintManager(DuiLib::CPaintManagerUI* pm) { m_pm = pm; }
    void SetSpaceList(CSpaceListViewUI* list) { m_spaceList = list; }
    CSpaceListViewUI* GetSpaceList() const { return m_spaceList; }

    DUI_DECLARE_MESSAGE_MAP()
    virtual void OnItemSelect(DuiLib::TNotifyUI& msg);

private:
    DuiLib::CPaintManagerUI* m_pm = nullptr;
    CSpaceListViewUI* m_spaceList = nullptr;
};

// The device list of the cloud backup panel: a click on a row's `btn_del`
// asks for confirmation and deletes that device's backup.
class CBackupPage : public DuiLib::CNotifyPump
{
public:
    void SetPaintManager(DuiLib::CPaintManagerUI* pm) { m_pm = pm; }
    void SetWindow(SpaceMgmWnd* window) { m_window = window; }
    void SetBackupList(CBackupListViewUI* list) { m_backupList = list; }
    void SetUpdateButton(DuiLib::CControlUI* button) { m_updateBtn = button; }
    CBackupListViewUI* GetBackupList() const { return m_backupList; }
    DuiLib::CControlUI* GetUpdateButton() const { return m_updateBtn; }

    DUI_DECLARE_MESSAGE_MAP()
    virtual void OnClick(DuiLib::TNotifyUI& msg);

private:
    DuiLib::CPaintManagerUI* m_pm = nullptr;
    SpaceMgmWnd* m_window = nullptr;
    CBackupListViewUI* m_backupList = nullptr;
    DuiLib::CControlUI* m_updateBtn = nullptr;
};
