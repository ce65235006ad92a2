// The category list and the panel beside it: rows, selection, the panel's
// lines and button, and what the button does.
#include "platform/logger.h"
#include "window/backup_list_ui.h"
#include "window/detail_pages.h"
#include "window/error_wnd.h"
#include "window/operation_records.h"
#include "window/size_texts.h"
#include "window/space_list_ui.h"
#include "window/space_mgm_wnd.h"
#include "window/space_rows.h"
#include "window/toolkit_texts.h"
#include "window/usage_bar.h"
#include "window/window_log.h"

using namespace DuiLib;

namespace {

constexpr const wchar_t* kSelectedRowColor = L"#FFE8F0FF";
constexpr const wchar_t* kRowColor = L"#FFFFFFFF";
// Room beside the caption of `opr_btn`, in logical pixels.
constexpr int kOperationButtonPadding = 20;

} // namespace

void SpaceMgmWnd::InitMap()
{
    m_spaceInfoMap.clear();
    m_spaceInfoMap = BuildSpaceInfoMap(ToolkitTexts());
}

std::wstring SpaceMgmWnd::WhetherToAdds(int count)
{
    return StripesUnit(ToolkitTexts(), count);
}

std::wstring SpaceMgmWnd::WhetherToAddItem(CloudSpaceType type, int count)
{
    return ItemUnit(ToolkitTexts(), type, count);
}

void SpaceMgmWnd::FillSpaceList()
{
    CSpaceListViewUI* list = m_spacePage.GetSpaceList();
    if (list == nullptr)
        return;
    list->RemoveAll();
    const WindowTexts texts = ToolkitTexts();
    for (const std::shared_ptr<CloudSpaceItem>& item : m_viewModel->model->items) {
        CDialogBuilder builder;
        std::unique_ptr<CControlUI> built(builder.Create(L"SpaceMgm/SpaceItem.xml", nullptr, this, &m_pm));
        auto* row = dynamic_cast<CSpaceItemUI*>(built.get());
        if (row == nullptr)
            continue;
        SpaceInfo info = m_spaceInfoMap[item->type];
        ListBoxItemOperation(item);
        info = MakeRowInfo(info, *item, *m_viewModel->model->detail, texts);
        row->SetSpaceInfo(info);
        list->Add(built.release());
    }
}

void SpaceMgmWnd::ListBoxItemOperation(std::shared_ptr<CloudSpaceItem> item)
{
    if (!item || item == m_currentItem)
        return;
    m_currentItem = item;
    if (std::shared_ptr<CloudSpaceDetailShow> detail = MakeDetailShow(*item, ToolkitTexts()))
        m_viewModel->model->detail = detail;
    m_viewModel->defaultType = 1;
}

void SpaceMgmWnd::OnSpaceListSelect(const TNotifyUI& msg)
{
    CSpaceListViewUI* list = m_spacePage.GetSpaceList();
    if (list == nullptr || list->GetCount() == 0)
        return;
    const int selected = static_cast<int>(msg.wParam);
    for (int i = 0; i < list->GetCount(); ++i) {
        auto* row = dynamic_cast<CSpaceItemUI*>(list->GetItemAt(i));
        if (row == nullptr)
            continue;
        if (i == selected) {
            const SpaceInfo info = row->GetSpaceInfo();
            ShowItemPage(info);
            row->SetBkColor(Str2Clr(kSelectedRowColor));
        } else {
            row->SetBkColor(Str2Clr(kRowColor));
        }
    }
}

void SpaceMgmWnd::ShowItemPage(const SpaceInfo& info)
{
    if (m_btnOpr != nullptr) {
        if (info.szBtnText.empty()) {
            m_btnOpr->SetVisible(false);
        } else {
            m_btnOpr->SetVisible(true);
            m_btnOpr->SetText(info.szBtnText.c_str());
            // Without its "#" the colour has no alpha byte, as text colours want.
            if (auto* label = static_cast<CLabelUI*>(m_btnOpr->GetInterface(DUI_CTR_LABEL)))
                label->SetTextColor(Str2Clr(info.szBtnColor.c_str()));
            SizeOperationButton(info.szBtnText);
        }
    }
    CControlUI* info1 = m_pm.FindControl(L"itemInfo1");
    CControlUI* info2 = m_pm.FindControl(L"itemInfo2");
    CControlUI* sizeInfo = m_pm.FindControl(L"UseSpaceSizeInfo");
    SetUIVisiable(1, sizeInfo);
    if (info1 != nullptr) {
        info1->SetText(info.szInfo1.c_str());
        info1->SetVisible(!info.szInfo1.empty());
    }
    if (info2 != nullptr) {
        info2->SetText(info.szInfo2.c_str());
        info2->SetVisible(!info.szInfo2.empty());
    }
    WindowLog(Logger::_INFO, __LINE__, "SpaceMgmWnd::ShowItemPage",
              L"szItemName = " + info.szItemName + L", szRemark = " + info.szRemark + L", szItemSize = " +
                  info.szItemSize + L", szInfo1 = " + info.szInfo1 + L", szInfo2 = " + info.szInfo2);
    if (info.type == CloudBackUp) {
        SetUIVisiable(0, sizeInfo);
        AddBackupItem();
    } else {
        SetUIVisiable(0, m_backupPage.GetBackupList());
    }
    OutputOprLog(info);
}

void SpaceMgmWnd::SizeOperationButton(const std::wstring& text)
{
    auto* label = static_cast<CLabelUI*>(m_btnOpr->GetInterface(DUI_CTR_LABEL));
    HFONT font = m_pm.GetFont(label != nullptr ? label->GetFont() : -1);
    // The context is not released: it lives as long as the thread.
    HDC hdc = ::GetDC(m_hWnd);
    HGDIOBJ oldFont = ::SelectObject(hdc, font);
    SIZE extent{0, 0};
    ::GetTextExtentPoint32W(hdc, text.c_str(), static_cast<int>(text.size()), &extent);
    ::SelectObject(hdc, oldFont);
    if (CControlUI* parent = m_btnOpr->GetParent())
        parent->SetFixedWidth(CResourceManagerEx::RestoreScale(extent.cx) + kOperationButtonPadding);
}

void SpaceMgmWnd::OutputOprLog(const SpaceInfo& info)
{
    Logger::OutputOperationLog(SelectionEvent(info.type), kOperationTypeSpace, kActionSelect,
                               SelectionValues(info));
}

CSpaceItemUI* SpaceMgmWnd::FindSpaceRow(CloudSpaceType type, int* index) const
{
    CSpaceListViewUI* list = m_spacePage.GetSpaceList();
    for (int i = 0; list != nullptr && i < list->GetCount(); ++i) {
        auto* row = dynamic_cast<CSpaceItemUI*>(list->GetItemAt(i));
        if (row != nullptr && row->GetSpaceInfo().type == type) {
            if (index != nullptr)
                *index = i;
            return row;
        }
    }
    return nullptr;
}

void SpaceMgmWnd::OnOperationButton()
{
    CSpaceListViewUI* list = m_spacePage.GetSpaceList();
    if (list == nullptr)
        return;
    const int index = list->GetCurSel();
    auto* row = dynamic_cast<CSpaceItemUI*>(list->GetItemAt(index));
    if (row == nullptr)
        return;
    const SpaceInfo info = row->GetSpaceInfo();
    const PanelAction action = PanelActionFor(info.type);
    if (action.kind == PanelAction::Kind::Jump) {
        WindowLog(Logger::_INFO, __LINE__, "SpaceMgmWnd::Notify", action.logText);
        Logger::OutputOperationLog(kEventGoToModule, kOperationTypeSpace, kActionJump, JumpValues(info.type));
        m_jumpMessage = kJumpModule;
        m_jumpParam = action.jumpParam;
        Close(kExitJump);
    } else if (action.kind == PanelAction::Kind::DeleteAll) {
        DeleteAllOfCategory(info, index, action.logText);
    }
}

void SpaceMgmWnd::DeleteAllOfCategory(const SpaceInfo& info, int index, const char* successText)
{
    const std::wstring deleteCaption = ToolkitText(L"IDS_SPACEMANAGEMENT_DELETE");
    const std::wstring cancelCaption = ToolkitText(L"IDS_SPACEMANAGEMENT_CANCLE");
    const std::wstring title = ToolkitText(L"IDS_SPACEMANAGEMENT_DELETEALL_TITLE");
    const std::wstring detail = ToolkitText(L"IDS_SPACEMANAGEMENT_DELETEALL_DETAIL");
    const int answer =
        UIIMessageBox::PopMessageBox(m_hWnd, title.c_str(), detail.c_str(), deleteCaption.c_str(),
                                     cancelCaption.c_str(), 2, nullptr, true, true, false);
    if (answer != 1)
        return;
    if (m_viewModel->DeleteMessage(info.type) != DeleteSuccess) {
        ShowErrorWnd(m_hWnd, ToolkitText(L"IDS_SPACEMANAGEMENT_DELETE_FAILED"));
        return;
    }
    WindowLog(Logger::_INFO, __LINE__, "SpaceMgmWnd::Notify", successText);
    Logger::OutputOperationLog(kEventDeleteAll, kOperationTypeSpace, kActionDelete, DeleteAllValues(info));
    CSpaceListViewUI* list = m_spacePage.GetSpaceList();
    list->RemoveAt(index);
    if (list->GetCount() > 0) {
        list->UnSelectAllItems();
        list->SelectItem(0, false);
    } else {
        ShowPage(PageEmpty);
    }
}
