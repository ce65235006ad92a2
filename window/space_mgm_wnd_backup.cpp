// The cloud backup panel: the device list and the deletion of one device's
// backup, with the cloud backup row corrected by hand instead of a new load.
#include "platform/logger.h"
#include "window/backup_list_ui.h"
#include "window/backup_rows.h"
#include "window/error_wnd.h"
#include "window/operation_records.h"
#include "window/size_texts.h"
#include "window/space_list_ui.h"
#include "window/space_mgm_wnd.h"
#include "window/toolkit_texts.h"
#include "window/window_log.h"

using namespace DuiLib;

std::string SpaceMgmWnd::FormatSize(std::string sizeText)
{
    return TidySizeText(std::move(sizeText), ToolkitLanguage());
}

void SpaceMgmWnd::AddBackupItem()
{
    CBackupListViewUI* list = m_backupPage.GetBackupList();
    if (list == nullptr)
        return;
    list->SetVisible(true);
    list->RemoveAll();
    const WindowTexts texts = ToolkitTexts();
    const std::vector<BackUpModel> backups = m_viewModel->model->backups;
    for (const BackUpModel& model : backups) {
        const std::wstring name = BackupRowName(model, texts);
        const std::wstring size = BackupRowSize(model);
        CDialogBuilder builder;
        std::unique_ptr<CControlUI> built(builder.Create(L"SpaceMgm/BackupItem.xml", nullptr, this, &m_pm));
        auto* row =
            built != nullptr ? static_cast<CContainerUI*>(built->GetInterface(DUI_CTR_CONTAINER)) : nullptr;
        if (row == nullptr)
            continue;
        if (CControlUI* nameLabel = row->FindSubControl(L"itemName"))
            nameLabel->SetText(name.c_str());
        if (CControlUI* sizeLabel = row->FindSubControl(L"itemSize"))
            sizeLabel->SetText(size.c_str());
        list->Add(built.release());
    }
}

void SpaceMgmWnd::DeleteBackupItem(const unsigned long long& index)
{
    std::vector<BackUpModel>& backups = m_viewModel->model->backups;
    if (index >= backups.size())
        return;
    const int64_t size = backups[index].size;
    const std::string deviceName = backups[index].deviceName;
    if (m_viewModel->DeleteBackUp(backups[index]) != DeleteSuccess) {
        ShowErrorWnd(m_hWnd, ToolkitText(L"IDS_SPACEMANAGEMENT_DELETE_FAILED"));
        return;
    }
    WindowLog(Logger::_INFO, __LINE__, "SpaceMgmWnd::DeleteBackupItem", "delete cloud backup item success.");
    Logger::OutputOperationLog(kEventDeleteBackup, kOperationTypeSpace, kActionDelete,
                               DeletedBackupValues(size, deviceName));
    AddBackupItem();
    CBackupListViewUI* backupList = m_backupPage.GetBackupList();
    if (backupList != nullptr && backupList->GetCount() > 0)
        RefreshBackupInfo(size);
    else
        RemoveBackupCategory();
}

void SpaceMgmWnd::RemoveBackupCategory()
{
    CSpaceListViewUI* list = m_spacePage.GetSpaceList();
    if (list == nullptr)
        return;
    if (list->GetCount() == 1) {
        list->RemoveAll();
        ShowPage(PageEmpty);
        return;
    }
    int index = -1;
    if (FindSpaceRow(CloudBackUp, &index) != nullptr)
        list->RemoveAt(index);
    list->UnSelectAllItems();
    list->SelectItem(0, false);
}

void SpaceMgmWnd::RefreshBackupInfo(const long long& deletedSize)
{
    CSpaceItemUI* row = FindSpaceRow(CloudBackUp);
    if (row == nullptr)
        return;
    SpaceInfo info = row->GetSpaceInfo();
    std::shared_ptr<CloudSpaceItem> item;
    for (const std::shared_ptr<CloudSpaceItem>& candidate : m_viewModel->model->items) {
        if (candidate && candidate->type == CloudBackUp) {
            item = candidate;
            break;
        }
    }
    if (!item)
        return;
    RefreshBackupRow(*item, info, deletedSize, ToolkitTexts());
    row->SetSpaceInfo(info);
}
