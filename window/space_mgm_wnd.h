#pragma once
// SpaceMgmWnd: the cloud space management window. The host creates the view
// model, calls SetCloudbackupTipParam on it, constructs this window, creates
// it and shows it modally; when the modal loop ends it reads the exit code
// (1: closed by the user, 0: a jump), `m_jumpMessage` and `m_jumpParam`.
//
// Threads. Everything here belongs to the window thread, with three
// exceptions, each handed over to that thread:
//  - the network watcher (one per window, started by InitWindow, joined by
//    OnFinalMessage) calls ShowInfoPage or ShowFailedPage when the network
//    comes or goes; both run themselves on the window thread through
//    CPaintManagerUI::RunOnWindowThread and wait for it there;
//  - a load thread (one per ShowInfoPage, detached, never counted nor
//    cancelled) only posts its three messages and reads the view model and
//    the quota singleton; loads take turns (window/load_sequence.h);
//  - the error toast closes itself from the timer engine's thread by posting.
// OnFinalMessage answers the watcher's hand-overs while it joins it, so that
// neither thread waits for the other.
#include <array>
#include <atomic>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

#include "space_data/cloud_space_view_model.h"
#include "toolkit/duilib.h"
#include "window/space_pages.h"
#include "window/space_window_types.h"

class CSpaceListViewUI;
class CSpaceItemUI;

class SpaceMgmWnd : public DuiLib::WindowImplBaseEx
{
public:
    SpaceMgmWnd(HWND hParent, std::shared_ptr<CloudSpaceManagementViewModel> viewModel);
    ~SpaceMgmWnd() override;

    void SetMainWnd(HWND hWnd);
    // Starts a load on a thread of its own and centres the window again. Any
    // thread may call it.
    void ShowInfoPage();
    // The failed panel beside a built list, else the failed page. Any thread
    // may call it.
    void ShowFailedPage();
    void DeleteBackupItem(const unsigned long long& index);

    // WM_SPACE_SHOW_CLOUD: takes the SpaceDisplayData* in `lParam` over.
    long long OnShowCloudSpace(unsigned long long wParam, long long lParam, int& bHandled);
    // WM_TIMER: one frame of the bar animation.
    long long OnTimer(unsigned int uMsg, unsigned long long wParam, long long lParam, int& bHandled);
    void SetProgressColor(DuiLib::CProgressUI* ctrl, int width, unsigned long color);
    void SetProgress(DuiLib::CProgressUI* ctrl, int value, int width);
    void SetFirstProgress(DuiLib::CProgressUI* ctrl, int& length);
    void SetUIVisiable(const int& show, DuiLib::CControlUI* ctrl);

    // The load steps; UpdateProgress runs on a load thread.
    static void UpdateProgress(HWND hWnd);
    static void LoadData(void* param);

    // Size and unit texts in the current language (window/size_texts.h).
    std::string FormatSize(std::string sizeText);
    std::wstring WhetherToAdds(int count);
    std::wstring WhetherToAddItem(CloudSpaceType type, int count);

    // Whether the bar's animation timer is set (from the load's numbers
    // until the last frame); for automation that waits for a still window.
    bool IsBarAnimating() const { return m_barTimerSet; }

    // Why Create returned null: the skin, an image or a language file that
    // could not be used, as one line naming the file, or no window could be
    // opened (SDL2 not loaded). Empty otherwise.
    std::string GetCreateError() const;

protected:
    LPCTSTR GetWindowClassName() const override;
    LRESULT HandleMessage(UINT uMsg, WPARAM wParam, LPARAM lParam) override;
    void OnFinalMessage(HWND hWnd) override;
    void InitWindow() override;
    DuiLib::CDuiString GetSkinFile() override;
    DuiLib::CDuiString GetSkinFolder() override;
    void Notify(DuiLib::TNotifyUI& msg) override;
    DuiLib::CControlUI* CreateControl(LPCTSTR pstrClass) override;

private:
    // One quota group's controls (window/usage_bar.h names them).
    struct SegmentControls
    {
        DuiLib::CProgressUI* bar = nullptr;
        DuiLib::CControlUI* swatch = nullptr;
        DuiLib::CControlUI* legendRow = nullptr;
        DuiLib::CLabelUI* legendText = nullptr;
    };

    // Frame (space_mgm_wnd.cpp, space_mgm_wnd_load.cpp).
    bool CheckResources();
    void FindControls();
    // From another thread: runs `member` on the window thread, waits for it
    // and returns true; on the window thread returns false.
    bool HandedToWindowThread(void (SpaceMgmWnd::*member)());
    void StartNetworkWatch();
    void StopNetworkWatch();
    bool StartLoadThread(std::unique_ptr<SpaceLoadParam> param);
    static void RunLoad(std::unique_ptr<SpaceLoadParam> param);
    void onLoadDataEnd();
    void ShowPage(const PageType& page);
    void ShowRightPage(const PageType& page);
    bool HandleClick(DuiLib::TNotifyUI& msg);

    // Bar and legend (space_mgm_wnd_bar.cpp).
    void ApplyFullSegment(unsigned long color);
    void ApplyGroupSegment(std::size_t index, unsigned long color);
    void UpdateLegendRows();
    void AnimateBar(int frame);
    void SetSpaceInfoText();
    void AdjustTypeInfo();
    unsigned long Str2Clr(const wchar_t* text);
    int& LengthOf(std::size_t segmentIndex);

    // List and panel (space_mgm_wnd_list.cpp).
    void FillSpaceList();
    void OnSpaceListSelect(const DuiLib::TNotifyUI& msg);
    void ListBoxItemOperation(std::shared_ptr<CloudSpaceItem> item);
    void ShowItemPage(const SpaceInfo& info);
    void SizeOperationButton(const std::wstring& text);
    void OutputOprLog(const SpaceInfo& info);
    void OnOperationButton();
    void DeleteAllOfCategory(const SpaceInfo& info, int index, const char* successText);
    void InitMap();
    CSpaceItemUI* FindSpaceRow(CloudSpaceType type, int* index = nullptr) const;

    // Backup panel (space_mgm_wnd_backup.cpp).
    void AddBackupItem();
    void RefreshBackupInfo(const long long& deletedSize);
    void RemoveBackupCategory();

    HWND m_hParent = nullptr;
    const wchar_t* m_skinFile = L"SpaceMgm/SpaceMgmWnd.xml";
    HWND m_hMainWnd = nullptr;
    std::shared_ptr<CloudSpaceManagementViewModel> m_viewModel;
    std::shared_ptr<CloudSpaceItem> m_currentItem;
    bool m_bLoaded = false;
    std::thread m_networkThread;

public:
    // The window's answer to the host, read after the modal loop, between
    // two values kept for the host that the module never reads.
    bool m_hostFlag = false;
    int32_t m_jumpMessage = 0;
    int64_t m_jumpParam = 0;
    int32_t m_hostValue = 64;

private:
    DuiLib::CControlUI* m_btnClose = nullptr;
    DuiLib::CControlUI* m_btnOpr = nullptr;
    DuiLib::CControlUI* m_btnRefresh = nullptr;
    DuiLib::CControlUI* m_btnRefreshRight = nullptr;
    CSpacePage m_spacePage;
    CBackupPage m_backupPage;
    std::map<CloudSpaceType, SpaceInfo> m_spaceInfoMap;
    std::mutex m_loadMutex;
    bool m_animating = false;

    std::array<SegmentControls, 5> m_segments;
    DuiLib::CProgressUI* m_fullBar = nullptr;
    DuiLib::CControlUI* m_barLayout = nullptr; // pro_space_layout: looked up, not otherwise used
    DuiLib::CLabelUI* m_spaceInfoLabel = nullptr;
    DuiLib::CControlUI* m_spaceFullTips = nullptr;
    DuiLib::CControlUI* m_blockDisplay = nullptr;
    DuiLib::CControlUI* m_typeImage = nullptr;
    DuiLib::CControlUI* m_typeOffset = nullptr;

    float m_scale = 1.0f;
    int m_backupLength = 0;
    int m_driveLength = 0;
    int m_photosLength = 0;
    int m_otherLength = 0;
    int m_familyLength = 0;
    int m_fullLength = 0;
    std::map<std::string, unsigned long long> m_colorInfo;
    std::map<std::string, long> m_lengthOfItems;
    std::map<std::string, unsigned long long> m_storageOfType;
    std::string m_used;
    std::string m_total;
    int m_roundLimit = 5;
    SIZE m_round{5, 5};
    int m_minWidth = 2;
    bool m_firstSegmentSet = false;

    // SPACE_BAR_TIMER is set: from OnShowCloudSpace to the last frame.
    bool m_barTimerSet = false;
    // Why creation failed, when InitWindow found a resource it cannot use.
    std::optional<std::string> m_resourceError;
    // Set by the watcher thread when CheckNetwork has returned.
    std::atomic<bool> m_watcherDone{true};
};
