#pragma once
// The gallery window: the sample skin with its list filled, its tab bar
// working, and every click and selection reported on standard output (the
// smoke test reads those lines). Keyboard: Tab and Shift+Tab move the focus
// ring, Enter and Space press the focused button, the arrows move the list,
// Escape presses the close button.

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
    // Gives the named control the keyboard focus; false when it cannot
    // have it (missing, hidden or disabled).
    bool FocusControl(LPCTSTR name);

protected:
    LPCTSTR GetWindowClassName() const override { return L"ToolkitGallery"; }
    DuiLib::CDuiString GetSkinFolder() override { return L"Res/skin/"; }
    DuiLib::CDuiString GetSkinFile() override { return L"Gallery/Toolkit/Gallery.xml"; }

private:
    void FillList();
    void ReportReady();

    int m_rows;
    bool m_reported = false;
};

} // namespace gallery
