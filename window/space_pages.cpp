#include "window/space_pages.h"

#include "window/backup_list_ui.h"
#include "window/space_mgm_wnd.h"
#include "window/toolkit_texts.h"

using namespace DuiLib;

DUI_BEGIN_MESSAGE_MAP(CSpacePage)
DUI_ON_MSGTYPE(DUI_MSGTYPE_ITEMSELECT, CSpacePage::OnItemSelect)
DUI_END_MESSAGE_MAP()

void CSpacePage::OnItemSelect(TNotifyUI&) {}

DUI_BEGIN_MESSAGE_MAP(CBackupPage)
DUI_ON_MSGTYPE(DUI_MSGTYPE_CLICK, CBackupPage::OnClick)
DUI_END_MESSAGE_MAP()

void CBackupPage::OnClick(TNotifyUI& msg)
{
    if (msg.pSender == nullptr || m_pm == nullptr || m_window == nullptr ||
        CompareNoCase(msg.pSender->GetName().GetData(), L"btn_del") != 0) {
        return;
    }
    CControlUI* row = msg.pSender->GetParent() != nullptr ? msg.pSender->GetParent()->GetParent() : nullptr;
    CControlUI* name = m_pm->FindSubControlByName(row, L"itemName");
    const std::wstring deleteCaption = ToolkitText(L"IDS_SPACEMANAGEMENT_DELETE");
    const std::wstring cancelCaption = ToolkitText(L"IDS_SPACEMANAGEMENT_CANCLE");
    const std::wstring title = ToolkitText(L"IDS_SPACEMANAGEMENT_DELETEBACKUP_TITLE");
    const CDuiString deviceName = name != nullptr ? name->GetText() : CDuiString();
    CDuiString detail;
    detail.Format(ToolkitText(L"IDS_SPACEMANAGEMENT_DELETEBACKUP_DETAIL").c_str(), deviceName.GetData());

    const int answer = UIIMessageBox::PopMessageBox(m_window->GetHWND(), title.c_str(), detail.GetData(),
                                                    deleteCaption.c_str(), cancelCaption.c_str(), 2, nullptr,
                                                    true, true, false);
    CControlUI* listControl = m_pm->FindControl(L"BackupList");
    auto* list = listControl != nullptr
                     ? static_cast<IContainerUI*>(listControl->GetInterface(DUI_CTR_ICONTAINER))
                     : nullptr;
    const int index = list != nullptr ? list->GetItemIndex(row) : -1;
    if (index != -1 && answer == 1)
        m_window->DeleteBackupItem(static_cast<unsigned long long>(index));
}
