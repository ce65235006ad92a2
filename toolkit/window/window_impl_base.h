#pragma once
// WindowImplBase: a CWindowWnd whose content comes from a skin file. On
// WM_CREATE it builds the skin (GetSkinFolder/GetSkinFile) into m_pm, sizes
// the window to the skin's size and calls InitWindow; notifications reach
// Notify, which routes them through the notify pump.
//
// WindowImplBaseEx follows the process DPI: its paint manager takes the DPI
// current when the window is created, and sizes scale with it.

#include "toolkit/paint/dialog_builder.h"
#include "toolkit/paint/notify_pump.h"
#include "toolkit/paint/paint_manager.h"
#include "toolkit/window/window_wnd.h"

namespace DuiLib {

class WindowImplBase : public CWindowWnd,
                       public CNotifyPump,
                       public INotifyUI,
                       public IMessageFilterUI,
                       public IDialogBuilderCallback,
                       public IQueryControlText
{
public:
    WindowImplBase();
    ~WindowImplBase() override;

    // Called once the skin is built and attached, before the window shows.
    virtual void InitWindow();
    void OnFinalMessage(HWND hWnd) override;
    // Routes the notification through the message map and virtual windows.
    void Notify(TNotifyUI& msg) override;
    // Skin error of the last WM_CREATE, if building the skin failed.
    const std::optional<SkinError>& GetSkinError() const { return m_skinError; }
    CPaintManagerUI& GetPaintManager() { return m_pm; }

    DUI_DECLARE_MESSAGE_MAP()
    virtual void OnClick(TNotifyUI& msg);

protected:
    // Folder of the skin relative to the instance path; empty keeps the
    // current resource path.
    virtual CDuiString GetSkinFolder() = 0;
    virtual CDuiString GetSkinFile() = 0;
    LPCTSTR GetWindowClassName() const override = 0;

    CControlUI* CreateControl(LPCTSTR pstrClass) override;
    LPCTSTR QueryControlText(LPCTSTR lpstrId, LPCTSTR lpstrType) override;
    // Pre-message filter: Enter and Escape go to ResponseDefaultKeyEvent,
    // which takes the key when it answers non-zero.
    LRESULT MessageHandler(UINT uMsg, WPARAM wParam, LPARAM lParam, bool& bHandled) override;
    // Enter: 0, so the focused control gets it (a focused button clicks).
    // Escape: raises the "click" a mouse click would on the close button,
    // the control named "btn_close" or else "closebtn", when there is one
    // that is shown and enabled; the key is taken either way.
    virtual LRESULT ResponseDefaultKeyEvent(WPARAM wParam);

    LRESULT HandleMessage(UINT uMsg, WPARAM wParam, LPARAM lParam) override;
    // Messages the base does not know; set bHandled to stop them.
    virtual LRESULT HandleCustomMessage(UINT uMsg, WPARAM wParam, LPARAM lParam, BOOL& bHandled);
    virtual LRESULT OnCreate(UINT uMsg, WPARAM wParam, LPARAM lParam, BOOL& bHandled);
    virtual LRESULT OnClose(UINT uMsg, WPARAM wParam, LPARAM lParam, BOOL& bHandled);
    virtual LRESULT OnDestroy(UINT uMsg, WPARAM wParam, LPARAM lParam, BOOL& bHandled);
    // DPI the paint manager gets at creation.
    virtual int InitialDPI() const;

    CPaintManagerUI m_pm;

private:
    std::optional<SkinError> m_skinError;
};

class WindowImplBaseEx : public WindowImplBase
{
protected:
    int InitialDPI() const override;
};

} // namespace DuiLib
