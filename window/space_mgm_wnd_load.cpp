// Loads and pages: the load thread, its messages, and which page shows.
#include <chrono>
#include <system_error>

#include "foundation/network_checker.h"
#include "platform/operation_manage_service.h"
#include "space_data/cloud_space_query.h"
#include "window/display_handover.h"
#include "window/load_sequence.h"
#include "window/page_logic.h"
#include "window/space_list_ui.h"
#include "window/space_mgm_wnd.h"
#include "window/window_log.h"

using namespace DuiLib;

namespace {

CTabLayoutUI* FindTab(CPaintManagerUI& pm, const wchar_t* name)
{
    CControlUI* control = pm.FindControl(name);
    return control != nullptr ? static_cast<CTabLayoutUI*>(control->GetInterface(DUI_CTR_TABLAYOUT))
                              : nullptr;
}

} // namespace

bool SpaceMgmWnd::HandedToWindowThread(void (SpaceMgmWnd::*member)())
{
    if (m_pm.IsWindowThread())
        return false;
    // The window's handle, geometry and controls belong to its thread; a
    // window that is going away does nothing more.
    m_pm.RunOnWindowThread([this, member] {
        if (m_hWnd != nullptr)
            (this->*member)();
    });
    return true;
}

void SpaceMgmWnd::ShowInfoPage()
{
    if (HandedToWindowThread(&SpaceMgmWnd::ShowInfoPage))
        return;
    std::lock_guard<std::mutex> lock(m_loadMutex);
    auto param = std::make_unique<SpaceLoadParam>();
    param->hWnd = m_hWnd;
    param->viewModel = m_viewModel;
    if (StartLoadThread(std::move(param)))
        CenterWindow();
}

bool SpaceMgmWnd::StartLoadThread(std::unique_ptr<SpaceLoadParam> param)
{
    LoadSequence::Instance().Announce();
    try {
        std::thread([load = std::move(param)]() mutable { RunLoad(std::move(load)); }).detach();
        return true;
    } catch (const std::system_error&) {
        LoadSequence::Instance().Withdraw();
        return false;
    }
}

void SpaceMgmWnd::RunLoad(std::unique_ptr<SpaceLoadParam> param)
{
    const HWND hWnd = param->hWnd;
    ::PostMessageW(hWnd, WM_SPACE_LOAD_BEGIN, 0, 0);
    LoadTurn turn;
    UpdateProgress(hWnd);
    param->viewModel->GetCloudInfo();
    if (::IsWindow(hWnd) && ::PostMessageW(hWnd, WM_SPACE_LOAD_END, 0, 0))
        LoadSequence::Instance().WaitUntilConsumed(hWnd);
    DisplayHandover::Instance().ReleaseUntaken(hWnd);
    param.reset();
}

void SpaceMgmWnd::LoadData(void* param)
{
    auto* load = static_cast<SpaceLoadParam*>(param);
    if (load == nullptr)
        return;
    LoadSequence::Instance().Announce();
    ::PostMessageW(load->hWnd, WM_SPACE_LOAD_BEGIN, 0, 0);
    LoadTurn turn;
    UpdateProgress(load->hWnd);
    load->viewModel->GetCloudInfo();
    DisplayHandover::Instance().ReleaseUntaken(load->hWnd);
}

void SpaceMgmWnd::UpdateProgress(HWND hWnd)
{
    WindowLog(Logger::_INFO, __LINE__, "SpaceMgmWnd::UpdateProgress", "UpdateProgress");
    COperationManageService::GetInstance()->GetSpaceOMConfig();
    CloudSpaceQuery* query = CloudSpaceQuery::GetInstance();
    query->Task();
    auto data = std::make_unique<SpaceDisplayData>();
    data->colorInfo = query->GetColorInfo();
    data->lengthOfItems = query->GetLengthOfItems(1.0f);
    data->storageOfType = query->GetStorageOfType();
    query->UpdateDisplayData(data->used, data->total);
    if (data->total == "0 B") {
        WindowLog(Logger::_ERROR, __LINE__, "SpaceMgmWnd::UpdateProgress", "UpdateDisplayData Error!");
        return;
    }
    // The window owns the record once the post has succeeded.
    DisplayHandover::Instance().Post(hWnd, std::move(data));
}

void SpaceMgmWnd::onLoadDataEnd()
{
    const bool networkAlive = NetworkChecker::networkAlive;
    const bool hasItems = !m_viewModel->model->items.empty();
    const PageType page = PageAfterLoad(networkAlive, hasItems);
    if (!networkAlive)
        WindowLog(Logger::_ERROR, __LINE__, "SpaceMgmWnd::onLoadDataEnd", "Network error.");
    ShowPage(page);
    if (page != PageContent)
        return;
    ShowRightPage(PageContent);
    FillSpaceList();
    if (CSpaceListViewUI* list = m_spacePage.GetSpaceList())
        list->SelectItem(0, true);
    m_bLoaded = true;
}

void SpaceMgmWnd::ShowPage(const PageType& page)
{
    if (CTabLayoutUI* tab = FindTab(m_pm, L"tab_switch"))
        tab->SelectItem(page);
}

void SpaceMgmWnd::ShowRightPage(const PageType& page)
{
    if (CTabLayoutUI* tab = FindTab(m_pm, L"tab_right"))
        tab->SelectItem(RightPageIndex(page));
}

void SpaceMgmWnd::ShowFailedPage()
{
    if (HandedToWindowThread(&SpaceMgmWnd::ShowFailedPage))
        return;
    if (FailureViewFor(m_bLoaded) == FailureView::RightPanel)
        ShowRightPage(PageFailed);
    else
        ShowPage(PageFailed);
}

void SpaceMgmWnd::StartNetworkWatch()
{
    const bool alive = NetworkChecker::ProbeNetwork();
    if (NetworkChecker::networkAlive != alive)
        NetworkChecker::networkAlive = alive;
    WindowLog(Logger::_DEBUG, __LINE__, "NetworkChecker::CheckNetwork",
              std::string("Network status is ") + (alive ? "OK." : "exception."));
    m_watcherDone = false;
    m_networkThread = std::thread([this] {
        NetworkChecker::CheckNetwork([this] { ShowInfoPage(); }, [this] { ShowFailedPage(); });
        m_watcherDone = true;
    });
}

void SpaceMgmWnd::StopNetworkWatch()
{
    if (!m_networkThread.joinable())
        return;
    NetworkChecker::stopChecking = true;
    // The watcher may be waiting on this thread inside ShowInfoPage or
    // ShowFailedPage: answer it until it has ended, then join.
    while (!m_watcherDone) {
        ::GetQueueWaitTimeout();
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    m_networkThread.join();
}
