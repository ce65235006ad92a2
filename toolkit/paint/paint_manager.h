#pragma once
// CPaintManagerUI: one per window. Owns the control tree, the fonts, the
// images and the default attributes of a skin; finds controls by name and by
// point; turns window messages into control events; raises notifications;
// lays out and paints the tree into the window's surface.
//
// Everything here runs on the window's thread. Coordinates of window
// messages are client device pixels; controls live in logical units.

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "platform/win32_gdi.h"
#include "toolkit/controls/control.h"
#include "toolkit/core/dpi.h"
#include "toolkit/core/ui_base.h"
#include "toolkit/paint/control_dump_file.h"
#include "toolkit/paint/control_timers.h"
#include "toolkit/paint/window_thread_gate.h"
#include "toolkit/render/fonts.h"
#include "toolkit/render/images.h"

typedef struct _cairo cairo_t;

namespace DuiLib {

// Where a paint manager's pixels go: an offscreen image or an SDL window.
class PaintTarget
{
public:
    virtual ~PaintTarget() = default;
    // A cairo context on a canvas of the given device size, cleared to
    // transparent; null if no canvas can be made.
    virtual cairo_t* BeginPaint(int width, int height) = 0;
    // Ends the paint begun by BeginPaint and shows the result.
    virtual void EndPaint(cairo_t* cr) = 0;
};

class CPaintManagerUI
{
public:
    CPaintManagerUI();
    ~CPaintManagerUI();
    CPaintManagerUI(const CPaintManagerUI&) = delete;
    CPaintManagerUI& operator=(const CPaintManagerUI&) = delete;

    void Init(HWND hWnd, LPCTSTR pstrName = nullptr);
    HWND GetPaintWindow() const { return m_hWndPaint; }
    CDuiString GetName() const { return m_sName; }
    // A measuring device context whose selected font starts as the
    // context's default font.
    HDC GetPaintDC();
    void SetPaintTarget(PaintTarget* target) { m_target = target; }

    // The folder that holds Res/ (with a trailing slash).
    static void SetInstancePath(LPCTSTR pStrPath);
    static CDuiString GetInstancePath();
    // The skin folder: relative skin files and images are looked up here.
    static void SetResourcePath(LPCTSTR pStrPath);
    static CDuiString GetResourcePath();

    // Makes the tree the window's content; the manager owns it from now on.
    bool AttachDialog(CControlUI* pControl);
    bool InitControls(CControlUI* pControl, CControlUI* pParent = nullptr);
    CControlUI* GetRoot() const { return m_root.get(); }

    CControlUI* FindControl(POINT pt) const;
    CControlUI* FindControl(LPCTSTR pstrName) const;
    CControlUI* FindSubControlByPoint(CControlUI* pParent, POINT pt) const;
    CControlUI* FindSubControlByName(CControlUI* pParent, LPCTSTR pstrName) const;
    CControlUI* FindSubControlByClass(CControlUI* pParent, LPCTSTR pstrClass, int iIndex = 0) const;

    bool AddNotifier(INotifyUI* pControl);
    bool RemoveNotifier(INotifyUI* pControl);
    // Gives the notification to every notifier, in the order they were
    // added. bAsync defers it to the next turn of the message loop.
    void SendNotify(TNotifyUI& Msg, bool bAsync = false);
    void SendNotify(CControlUI* pControl, LPCTSTR pstrMessage, WPARAM wParam = 0, LPARAM lParam = 0,
                    bool bAsync = false);

    bool AddPreMessageFilter(IMessageFilterUI* pFilter);
    bool RemovePreMessageFilter(IMessageFilterUI* pFilter);
    bool AddMessageFilter(IMessageFilterUI* pFilter);
    bool RemoveMessageFilter(IMessageFilterUI* pFilter);
    // Filters registered with AddPreMessageFilter see the message first;
    // true means one of them took it and lRes is its result.
    bool PreMessageHandler(UINT uMsg, WPARAM wParam, LPARAM lParam, LRESULT& lRes);
    // Input, paint, size and control timers; true when the message was
    // consumed and lRes holds the result.
    bool MessageHandler(UINT uMsg, WPARAM wParam, LPARAM lParam, LRESULT& lRes);

    // Fonts by index. `nSize` is in logical pixels; the font's own size is in
    // device pixels at this manager's DPI.
    HFONT AddFont(int id, LPCTSTR pStrFontName, int nSize, bool bBold, bool bUnderline, bool bItalic,
                  bool bShared = false);
    // The font with that index; the default font for -1 or an unknown index.
    HFONT GetFont(int id);
    void SetDefaultFont(LPCTSTR pStrFontName, int nSize, bool bBold, bool bUnderline, bool bItalic,
                        bool bShared = false);
    DWORD GetDefaultFontColor() const { return m_dwDefaultFontColor; }
    void SetDefaultFontColor(DWORD dwColor) { m_dwDefaultFontColor = dwColor; }

    CDPI* GetDPIObj() { return &m_dpi; }
    // Changes the DPI; fonts are remade at the new size.
    void SetDPI(int iDPI);
    int GetDPI() const { return m_dpi.GetDPI(); }

    // Window properties from the skin's <Window> element, logical units.
    SIZE GetInitSize() const { return m_szInitWindowSize; }
    void SetInitSize(int cx, int cy);
    SIZE GetRoundCorner() const { return m_szRoundCorner; }
    void SetRoundCorner(int cx, int cy) { m_szRoundCorner = SIZE{cx, cy}; }
    SIZE GetMinInfo() const { return m_szMinWindow; }
    void SetMinInfo(int cx, int cy) { m_szMinWindow = SIZE{cx, cy}; }
    RECT GetCaptionRect() const { return m_rcCaption; }
    void SetCaptionRect(RECT rc) { m_rcCaption = rc; }
    // Client area in logical units; the root fills it.
    SIZE GetClientSize() const { return m_szClient; }
    void SetClientSize(int cx, int cy);

    void AddDefaultAttributeList(LPCTSTR pStrControlName, LPCTSTR pStrControlAttrList, bool bShared = false);
    LPCTSTR GetDefaultAttributeList(LPCTSTR pStrControlName) const;

    std::shared_ptr<Image> GetImage(LPCTSTR file);

    CControlUI* GetFocus() const { return m_pFocus; }
    void SetFocus(CControlUI* pControl);
    // Moves the focus to the next (or previous) control that takes part in
    // Tab navigation (UIFLAG_TABSTOP, visible, enabled), in tree order,
    // wrapping around. A focused control that is no tab stop itself counts
    // as its nearest ancestor that is one (a row as its list).
    bool SetNextTabControl(bool bForward = true);

    void Invalidate();
    void Invalidate(const RECT& rcItem);
    void NeedUpdate();
    bool IsUpdateNeeded() const { return m_bUpdateNeeded; }
    void UpdateLayoutIfNeeded();
    // Lays out if needed and paints the window into the target; the first
    // paint raises "windowinit" first.
    void Paint();
    // Paints the whole tree into `cr` (device pixels) regardless of what is
    // invalid; used by targets and tests.
    void Render(cairo_t* cr);
    // With a path, the window's control dump (control_dump.h) is written
    // there after the next frame and rewritten after every frame whose dump
    // changed, so that scripts can read a live window. Empty: no file.
    void SetControlDumpPath(LPCTSTR pstrPath);
    CDuiString GetControlDumpPath() const;

    // Removed controls are destroyed once the current message is handled,
    // so that a control may remove itself (or its row) from its own event.
    void AddDelayedCleanup(std::unique_ptr<CControlUI> pControl);
    // Forgets every reference to `pControl` and its descendants.
    void ReapObjects(CControlUI* pControl);

    // Timers owned by controls: WM_TIMER reaches the control as
    // UIEVENT_TIMER with wParam = nTimerID.
    bool SetTimer(CControlUI* pControl, UINT nTimerID, UINT uElapse);
    bool KillTimer(CControlUI* pControl, UINT nTimerID);
    void KillTimer(CControlUI* pControl);

    // Runs `work` on the window's thread: at once when called there,
    // otherwise through SendMessageW, waiting for it. Returns false (and
    // runs nothing) when the window is gone or being destroyed: from
    // WM_DESTROY on, other threads get false at once, so a window may join
    // a thread that calls here while it closes.
    bool RunOnWindowThread(const std::function<void()>& work);
    bool IsWindowThread() const;

    // True while `pControl` is in this manager's tree.
    bool IsInTree(const CControlUI* pControl) const;

private:
    void RunDelayedCleanup();
    // "windowinit" goes out once, when the window is first painted: after
    // InitWindow, before anything is shown.
    void SendWindowInitOnce();

    // Input dispatch (paint_manager_input.cpp): one member per message.
    bool HandleOwnMessage(UINT uMsg, WPARAM wParam, LPARAM lParam, LRESULT& lRes);
    void DeliverAsyncNotify();
    void OnSize(LPARAM lParam);
    void OnMouseMove(WPARAM wParam, LPARAM lParam);
    void OnButtonDown(WPARAM wParam, LPARAM lParam);
    void OnButtonUp(WPARAM wParam, LPARAM lParam);
    void OnMouseWheel(WPARAM wParam, LPARAM lParam);
    bool OnKeyDown(WPARAM wParam, LPARAM lParam);
    bool OnTimer(WPARAM wParam, LPARAM lParam);
    void DispatchEvent(CControlUI* control, int type, POINT pt, WPARAM wParam = 0, LPARAM lParam = 0,
                       TCHAR key = 0);
    POINT ToLogical(LPARAM lParam) const;
    void UpdateHover(CControlUI* hover, POINT pt);

    struct FontEntry
    {
        std::wstring family;
        int size = 12;
        bool bold = false;
        bool underline = false;
        bool italic = false;
        FontPtr font;
    };
    FontPtr MakeScaled(const FontEntry& entry) const;
    FontEntry MakeEntry(LPCTSTR family, int size, bool bold, bool underline, bool italic) const;
    void RebuildFonts();

    HWND m_hWndPaint = nullptr;
    CDuiString m_sName;
    PaintTarget* m_target = nullptr;
    HDC__ m_paintDC;
    std::unique_ptr<CControlUI> m_root;
    std::vector<INotifyUI*> m_notifiers;
    std::vector<IMessageFilterUI*> m_preFilters;
    std::vector<IMessageFilterUI*> m_filters;
    std::vector<TNotifyUI> m_asyncNotify;
    std::map<int, FontEntry> m_fonts;
    FontEntry m_defaultFont;
    DWORD m_dwDefaultFontColor = 0xFF000000;
    CDPI m_dpi;
    SIZE m_szInitWindowSize{0, 0};
    SIZE m_szRoundCorner{0, 0};
    SIZE m_szMinWindow{0, 0};
    RECT m_rcCaption{0, 0, 0, 0};
    SIZE m_szClient{0, 0};
    std::map<std::wstring, std::wstring> m_defaultAttributes;
    ImageCache m_images;
    CControlUI* m_pFocus = nullptr;
    CControlUI* m_pEventHover = nullptr;
    CControlUI* m_pEventClick = nullptr;
    bool m_bUpdateNeeded = true;
    bool m_bFirstLayout = true;
    bool m_bPaintPosted = false;
    RECT m_rcInvalid{0, 0, 0, 0};
    int m_handlerDepth = 0;
    std::vector<std::unique_ptr<CControlUI>> m_delayedCleanup;
    ControlTimerTable m_timers;
    WindowThreadGate m_gate;
    ControlDumpFile m_dumpFile;
};

} // namespace DuiLib
