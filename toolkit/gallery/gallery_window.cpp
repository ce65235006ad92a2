#include "toolkit/gallery/gallery_window.h"

#include <cstdio>

namespace gallery {

using namespace DuiLib;

namespace {

const wchar_t* const kIcons[] = {L"Gallery/Toolkit/icon_cloud.svg", L"Gallery/Toolkit/icon_photo.svg",
                                 L"Gallery/Toolkit/icon_message.svg"};

std::string Utf8(const CDuiString& text)
{
    return attr::Narrow(text.str());
}

} // namespace

void GalleryWindow::InitWindow()
{
    FillList();
}

void GalleryWindow::FillList()
{
    auto* list = dynamic_cast<CListUI*>(m_pm.FindControl(L"gallery_list"));
    if (list == nullptr)
        return;
    auto* res = CResourceManager::GetInstance();
    for (int i = 0; i < m_rows; ++i) {
        CDialogBuilder builder;
        CControlUI* row = builder.Create(L"Gallery/Toolkit/GalleryRow.xml", nullptr, this, &m_pm);
        if (row == nullptr)
            return;
        CDuiString name;
        name.Format(res->GetText(L"IDS_TOOLKIT_GALLERY_ROW"), i + 1);
        CDuiString remark;
        remark.Format(L"%d files", (i * 37) % 400 + 1);
        CDuiString size;
        size.Format(L"%d.%d GB", (i * 7) % 20, (i * 3) % 10);
        m_pm.FindSubControlByName(row, L"itemName")->SetText(name);
        m_pm.FindSubControlByName(row, L"itemRemark")->SetText(remark);
        m_pm.FindSubControlByName(row, L"itemSize")->SetText(size);
        m_pm.FindSubControlByName(row, L"itemPic")->SetBkImage(kIcons[i % 3]);
        list->Add(row);
    }
    if (m_rows > 0)
        list->SelectItem(0, false, false);
}

void GalleryWindow::SelectTab(int index)
{
    auto* tabs = dynamic_cast<CTabLayoutUI*>(m_pm.FindControl(L"gallery_tabs"));
    if (tabs == nullptr)
        return;
    tabs->SelectItem(index);
    const wchar_t* const buttons[] = {L"tab_btn_controls", L"tab_btn_list", L"tab_btn_text"};
    for (int i = 0; i < 3; ++i) {
        auto* button = dynamic_cast<CButtonUI*>(m_pm.FindControl(buttons[i]));
        if (button == nullptr)
            continue;
        const bool on = i == index;
        button->SetBkColor(on ? 0xFF0A59F7 : 0xFFE9EBEF);
        button->SetHotBkColor(on ? 0xFF2B6FF8 : 0xFFDADDE2);
        button->SetPushedBkColor(on ? 0xFF0847C6 : 0xFFCBCFD6);
        button->SetTextColor(on ? 0xFFFFFFFF : 0xFF1A1A1A);
        // The focus ring must stand out from the button's own colour.
        button->SetFocusBorderColor(on ? 0xFF082A6E : 0xFF0A59F7);
    }
}

bool GalleryWindow::FocusControl(LPCTSTR name)
{
    CControlUI* control = m_pm.FindControl(name);
    if (control == nullptr)
        return false;
    control->SetFocus();
    return m_pm.GetFocus() == control;
}

void GalleryWindow::ReportReady()
{
    if (m_reported)
        return;
    m_reported = true;
    const RECT window = GetWindowRect();
    std::printf("gallery: ready %ld %ld %ld %ld\n", static_cast<long>(window.left),
                static_cast<long>(window.top), static_cast<long>(window.right - window.left),
                static_cast<long>(window.bottom - window.top));
    const wchar_t* const named[] = {L"btn_primary", L"btn_close", L"tab_btn_list"};
    for (const wchar_t* name : named) {
        CControlUI* control = m_pm.FindControl(name);
        if (control == nullptr)
            continue;
        const RECT& r = control->GetPos();
        const CDPI* dpi = m_pm.GetDPIObj();
        std::printf("gallery: control %s %d %d\n", attr::Narrow(name).c_str(),
                    static_cast<int>(window.left) + dpi->Scale((r.left + r.right) / 2),
                    static_cast<int>(window.top) + dpi->Scale((r.top + r.bottom) / 2));
    }
    std::fflush(stdout);
}

void GalleryWindow::Notify(TNotifyUI& msg)
{
    if (msg.sType == DUI_MSGTYPE_WINDOWINIT)
        ReportReady();
    if (msg.sType == DUI_MSGTYPE_CLICK && msg.pSender != nullptr) {
        const CDuiString name = msg.pSender->GetName();
        std::printf("gallery: click %s\n", Utf8(name).c_str());
        std::fflush(stdout);
        if (name == L"btn_close") {
            Close(1);
            return;
        }
        if (name == L"tab_btn_controls")
            SelectTab(0);
        if (name == L"tab_btn_list")
            SelectTab(1);
        if (name == L"tab_btn_text")
            SelectTab(2);
        if (name == L"btn_danger") {
            auto* res = CResourceManager::GetInstance();
            CDuiString detail;
            detail.Format(res->GetText(L"IDS_TOOLKIT_GALLERY_CONFIRM_DETAIL"), L"Mate 60 Pro");
            const int answer =
                UIIMessageBox::PopMessageBox(m_hWnd, res->GetText(L"IDS_TOOLKIT_GALLERY_CONFIRM_TITLE"),
                                             detail, res->GetText(L"IDS_TOOLKIT_GALLERY_CONFIRM_DELETE"),
                                             res->GetText(L"IDS_TOOLKIT_GALLERY_CONFIRM_CANCEL"));
            std::printf("gallery: message box %d\n", answer);
            std::fflush(stdout);
        }
        if (CControlUI* status = m_pm.FindControl(L"status")) {
            CDuiString text;
            text.Format(CResourceManager::GetInstance()->GetText(L"IDS_TOOLKIT_GALLERY_CLICKED"),
                        msg.pSender->GetText().GetData());
            status->SetText(text);
        }
        if (auto* progress = dynamic_cast<CProgressUI*>(m_pm.FindControl(L"progress"));
            progress && name == L"btn_primary") {
            progress->SetValue((progress->GetValue() + 12) % 101);
        }
    }
    if (msg.sType == DUI_MSGTYPE_ITEMSELECT) {
        std::printf("gallery: itemselect %d\n", static_cast<int>(msg.wParam));
        std::fflush(stdout);
    }
    WindowImplBaseEx::Notify(msg);
}

} // namespace gallery
