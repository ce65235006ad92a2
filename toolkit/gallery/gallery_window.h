#pragma once
// The gallery window: the sample skin with its list filled, its tab bar
// working, and every click reported on standard output (the smoke test
// reads those lines).

#include "toolkit/duilib.h"

namespace gallery {

class GalleryWindow : public DuiLib::WindowImplBaseEx
{
public:
    explicit GalleryWindow(int rows) : m_rows(rows) {}

    void InitWindow() override;
    void Notify(DuiLib::TNotifyUI& msg) override;
    DuiLib::CPaintManagerUI& pm() { return m_pm; }
    // Shows page `index` and highlights its tab button.
    void SelectTab(int index);

protected:
    LPCTSTR GetWindowClassName() const override { return L"ToolkitGallery"; }
    DuiLib::CDuiString GetSkinFolder() override { return L"Res/skin/"; }
    DuiLib::CDuiString GetSkinFile() override { return L"Gallery/Toolkit/Gallery.xml"; }
    LRESULT HandleCustomMessage(UINT uMsg, WPARAM wParam, LPARAM lParam, BOOL& bHandled) override;

private:
    void FillList();
    void ReportReady();

    int m_rows;
    bool m_reported = false;
};

} // namespace gallery
