#pragma once
// Basic DuiLib vocabulary: character types, colours, notifications and the
// small interfaces through which windows observe their controls.
//
// The toolkit is single-threaded: controls, the paint manager and the
// builder belong to the thread that created their window and must only be
// touched there. Other threads hand work to a window with PostMessageW or
// SendMessageW.

#include <cstdint>

#include "platform/win32.h"
#include "toolkit/core/dui_string.h"

namespace DuiLib {

using LPVOID = void*;
using TCHAR = wchar_t;

class CControlUI;

// Notification types the toolkit raises; a window compares msg.sType with them.
#define DUI_MSGTYPE_WINDOWINIT L"windowinit"
#define DUI_MSGTYPE_CLICK L"click"
#define DUI_MSGTYPE_ITEMSELECT L"itemselect"
#define DUI_MSGTYPE_ITEMCLICK L"itemclick"
#define DUI_MSGTYPE_SELECTCHANGED L"selectchanged"
#define DUI_MSGTYPE_SETFOCUS L"setfocus"
#define DUI_MSGTYPE_KILLFOCUS L"killfocus"
#define DUI_MSGTYPE_TIMER L"timer"
#define DUI_MSGTYPE_SCROLL L"scroll"

// Interface names answered by GetInterface.
#define DUI_CTR_CONTROL L"Control"
#define DUI_CTR_CONTAINER L"Container"
#define DUI_CTR_ICONTAINER L"IContainer"
#define DUI_CTR_VERTICALLAYOUT L"VerticalLayout"
#define DUI_CTR_HORIZONTALLAYOUT L"HorizontalLayout"
#define DUI_CTR_TABLAYOUT L"TabLayout"
#define DUI_CTR_LABEL L"Label"
#define DUI_CTR_TEXT L"Text"
#define DUI_CTR_BUTTON L"Button"
#define DUI_CTR_PROGRESS L"Progress"
#define DUI_CTR_LIST L"List"
#define DUI_CTR_ILIST L"IList"
#define DUI_CTR_ILISTOWNER L"IListOwner"
#define DUI_CTR_LISTITEM L"ListItem"
#define DUI_CTR_LISTCONTAINERELEMENT L"ListContainerElement"

// One notification from a control to the window's notifiers.
struct TNotifyUI
{
    CDuiString sType;
    CDuiString sVirtualWnd; // the `virtualwnd` of the sender or its nearest ancestor
    CControlUI* pSender = nullptr;
    DWORD dwTimestamp = 0;
    POINT ptMouse{0, 0};
    WPARAM wParam = 0;
    LPARAM lParam = 0;
};

class INotifyUI
{
public:
    virtual ~INotifyUI() = default;
    virtual void Notify(TNotifyUI& msg) = 0;
};

// A message filter sees every window message before the controls do.
// Setting bHandled to true stops the message there and `return` becomes its
// result.
class IMessageFilterUI
{
public:
    virtual ~IMessageFilterUI() = default;
    virtual LRESULT MessageHandler(UINT uMsg, WPARAM wParam, LPARAM lParam, bool& bHandled) = 0;
};

// Lets a window supply texts for controls built from a skin.
class IQueryControlText
{
public:
    virtual ~IQueryControlText() = default;
    virtual LPCTSTR QueryControlText(LPCTSTR lpstrId, LPCTSTR lpstrType) = 0;
};

// Input and state events delivered to a control by the paint manager.
enum EventType
{
    UIEVENT_MOUSEMOVE = 1,
    UIEVENT_MOUSELEAVE,
    UIEVENT_MOUSEENTER,
    UIEVENT_BUTTONDOWN,
    UIEVENT_BUTTONUP,
    UIEVENT_SCROLLWHEEL,
    UIEVENT_KEYDOWN,
    UIEVENT_SETFOCUS,
    UIEVENT_KILLFOCUS,
    UIEVENT_TIMER,
};

struct TEventUI
{
    int Type = 0;
    CControlUI* pSender = nullptr;
    DWORD dwTimestamp = 0;
    POINT ptMouse{0, 0};
    TCHAR chKey = 0;
    WORD wKeyState = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
};

// Control state bits used while painting buttons and list items.
enum : UINT
{
    UISTATE_FOCUSED = 0x01,
    UISTATE_SELECTED = 0x02,
    UISTATE_DISABLED = 0x04,
    UISTATE_HOT = 0x08,
    UISTATE_PUSHED = 0x10,
    UISTATE_CAPTURED = 0x40,
};

// What CControlUI::GetControlFlags answers: a tab stop takes part in Tab
// navigation and takes the focus when clicked.
enum : UINT
{
    UIFLAG_TABSTOP = 0x01,
};

// Flags for CControlUI::FindControl.
enum : UINT
{
    UIFIND_ALL = 0x00000000,
    UIFIND_VISIBLE = 0x00000001,
    UIFIND_ENABLED = 0x00000002,
    UIFIND_HITTEST = 0x00000004,
    UIFIND_TOP_FIRST = 0x00000008,
    UIFIND_ME_FIRST = 0x80000000,
};

using FINDCONTROLPROC = CControlUI* (*)(CControlUI*, LPVOID);

} // namespace DuiLib
