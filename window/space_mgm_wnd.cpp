// The frame of the space window: construction, the skin, messages, clicks
// and the check of its resources.
#include "window/space_mgm_wnd.h"

#include "window/backup_list_ui.h"
#include "window/load_sequence.h"
#include "window/operation_records.h"
#include "window/resource_check.h"
#include "window/space_list_ui.h"
#include "window/space_rows.h"
#include "window/toolkit_texts.h"
#include "window/usage_bar.h"
#include "window/window_log.h"

using namespace DuiLib;

namespace {

template <class T> T* FindAs(CPaintManagerUI& pm, const wchar_t* name, const wchar_t* interfaceName)
{
    CControlUI* control = pm.FindControl(name);
    return control != nullptr ? static_cast<T*>(control->GetInterface(interfaceName)) : nullptr;
}

} // namespace

SpaceMgmWnd::SpaceMgmWnd(HWND hParent, std::shared_ptr<CloudSpaceManagementViewModel> viewModel)
    : m_hParent(hParent)
{
    m_spacePage.SetPaintManager(&m_pm);
    m_backupPage.SetPaintManager(&m_pm);
    m_backupPage.SetWindow(this);
    AddVirtualWnd(kSpacePageName, &m_spacePage);
    AddVirtualWnd(kBackupPageName, &m_backupPage);
    m_hMainWnd = nullptr;
    m_viewModel = viewModel;
}

SpaceMgmWnd::~SpaceMgmWnd()
{
    RemoveVirtualWnd(kSpacePageName);
    RemoveVirtualWnd(kBackupPageName);
}

void SpaceMgmWnd::SetMainWnd(HWND hWnd)
{
    m_hMainWnd = hWnd;
}

LPCTSTR SpaceMgmWnd::GetWindowClassName() const
{
    return L"SpaceMgmWnd";
}

CDuiString SpaceMgmWnd::GetSkinFile()
{
    return m_skinFile;
}

CDuiString SpaceMgmWnd::GetSkinFolder()
{
    return L"Res//skin";
}

CControlUI* SpaceMgmWnd::CreateControl(LPCTSTR pstrClass)
{
    if (CompareNoCase(pstrClass, kSpaceListClass) == 0)
        return new CSpaceListViewUI;
    if (CompareNoCase(pstrClass, kSpaceItemClass) == 0)
        return new CSpaceItemUI;
    if (CompareNoCase(pstrClass, kBackupListClass) == 0)
        return new CBackupListViewUI;
    if (CompareNoCase(pstrClass, kBackupItemClass) == 0)
        return new CBackupItemUI;
    return nullptr;
}

std::string SpaceMgmWnd::GetCreateError() const
{
    if (!GetSurfaceError().empty())
        return GetSurfaceError();
    if (GetSkinError())
        return GetSkinError()->ToString();
    return m_resourceError.value_or("");
}

LRESULT SpaceMgmWnd::HandleMessage(UINT uMsg, WPARAM wParam, LPARAM lParam)
{
    LRESULT lRes = 0;
    int handled = 1;
    switch (uMsg) {
    case WM_SPACE_LOAD_BEGIN:
        ShowPage(PageLoading);
        break;
    case WM_SPACE_LOAD_END:
        onLoadDataEnd();
        LoadSequence::Instance().Consumed();
        break;
    case WM_SPACE_SHOW_CLOUD:
        OnShowCloudSpace(wParam, lParam, handled);
        break;
    case WM_TIMER:
        lRes = OnTimer(uMsg, wParam, lParam, handled);
        break;
    case WM_LBUTTONDOWN: {
        // The control under the pointer is looked up and its name read;
        // nothing more is done with it.
        const POINT pt{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
        if (CControlUI* control = m_pm.FindControl(pt))
            (void)control->GetName();
        break;
    }
    default:
        break;
    }
    if (m_pm.PreMessageHandler(uMsg, wParam, lParam, lRes))
        return lRes;
    const LRESULT result = WindowImplBaseEx::HandleMessage(uMsg, wParam, lParam);
    // A resource InitWindow could not use fails the creation, as a broken
    // skin does, so the creator gets no half-built window.
    if (uMsg == WM_CREATE && m_resourceError)
        return -1;
    return result;
}

void SpaceMgmWnd::Notify(TNotifyUI& msg)
{
    if (msg.sType == DUI_MSGTYPE_WINDOWINIT) {
        AdjustTypeInfo();
    } else if (msg.sType == DUI_MSGTYPE_ITEMSELECT) {
        if (msg.pSender != nullptr && msg.pSender == m_spacePage.GetSpaceList())
            OnSpaceListSelect(msg);
    } else if (msg.sType == DUI_MSGTYPE_CLICK) {
        if (HandleClick(msg))
            return;
    }
    WindowImplBaseEx::Notify(msg);
}

bool SpaceMgmWnd::HandleClick(TNotifyUI& msg)
{
    CControlUI* sender = msg.pSender;
    if (sender == nullptr)
        return false;
    if (sender == m_btnClose) {
        Close(kExitClosed);
        return true;
    }
    if (sender == m_btnRefresh || sender == m_btnRefreshRight) {
        ShowInfoPage();
        return true;
    }
    if (sender == m_btnOpr) {
        OnOperationButton();
    } else if (sender == m_backupPage.GetUpdateButton()) {
        WindowLog(Logger::_INFO, __LINE__, "SpaceMgmWnd::Notify", "Upgrading Cloud Storage Space.");
        m_jumpMessage = kJumpUpgrade;
        m_jumpParam = 0;
        Close(kExitJump);
    }
    return false;
}

void SpaceMgmWnd::InitWindow()
{
    if (!CheckResources())
        return;
    FindControls();
    SetSpaceInfoText();
    InitMap();
    StartNetworkWatch();
    ShowInfoPage();
}

bool SpaceMgmWnd::CheckResources()
{
    std::vector<std::wstring> rowIcons;
    for (const SpaceRowTemplate& row : SpaceRowTemplates())
        rowIcons.push_back(row.picture);
    std::optional<std::string> problem = CheckLanguages(ToolkitLanguage());
    if (!problem)
        problem = CheckTreeImages(m_pm.GetRoot(), m_pm, m_skinFile);
    if (!problem)
        problem = CheckSkinFile(L"SpaceMgm/SpaceItem.xml", this);
    if (!problem)
        problem = CheckSkinFile(L"SpaceMgm/BackupItem.xml", this);
    if (!problem)
        problem = CheckSkinFile(L"Gallery/Error/ErrorWnd.xml", nullptr);
    if (!problem)
        problem = CheckImages(rowIcons, m_pm, "a row icon of the category list");
    if (problem)
        m_resourceError = *problem;
    return !problem;
}

void SpaceMgmWnd::FindControls()
{
    m_btnClose = m_pm.FindControl(L"btn_close");
    m_btnOpr = m_pm.FindControl(L"opr_btn");
    m_btnRefresh = m_pm.FindControl(L"refresh_btn");
    m_btnRefreshRight = m_pm.FindControl(L"refresh_btn_r");
    m_spacePage.SetSpaceList(FindAs<CSpaceListViewUI>(m_pm, L"SpaceList", kSpaceListClass));
    m_backupPage.SetBackupList(FindAs<CBackupListViewUI>(m_pm, L"BackupList", kBackupListClass));
    m_backupPage.SetUpdateButton(m_pm.FindControl(L"update_btn"));

    const auto& segments = BarSegments();
    for (std::size_t i = 0; i < segments.size(); ++i) {
        m_segments[i].bar = FindAs<CProgressUI>(m_pm, segments[i].bar, DUI_CTR_PROGRESS);
        m_segments[i].swatch = m_pm.FindControl(segments[i].swatch);
        m_segments[i].legendRow = m_pm.FindControl(segments[i].legendRow);
        m_segments[i].legendText = FindAs<CLabelUI>(m_pm, segments[i].legendText, DUI_CTR_LABEL);
    }
    m_fullBar = FindAs<CProgressUI>(m_pm, kFullBar, DUI_CTR_PROGRESS);
    m_barLayout = m_pm.FindControl(L"pro_space_layout");
    m_spaceInfoLabel = FindAs<CLabelUI>(m_pm, L"lb_space_info", DUI_CTR_LABEL);
    m_spaceFullTips = m_pm.FindControl(L"spaceFullTips");
    m_blockDisplay = m_pm.FindControl(L"hor_block_display");
    m_typeImage = m_pm.FindControl(L"hor_type_image");
    m_typeOffset = m_pm.FindControl(L"hor_type_offset");
}

void SpaceMgmWnd::OnFinalMessage(HWND hWnd)
{
    StopNetworkWatch();
    WindowImplBaseEx::OnFinalMessage(hWnd);
}

unsigned long SpaceMgmWnd::Str2Clr(const wchar_t* text)
{
    return ColorFromText(text);
}
