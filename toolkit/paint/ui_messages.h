#pragma once
// Window messages private to the toolkit, in the range WM_USER..0x7FFF
// above anything the module's windows use.

#include "platform/win32.h"

namespace DuiLib {

// Delivers notifications sent with bAsync and runs delayed clean-up.
constexpr UINT UIMSG_ASYNC_NOTIFY = 0x7FF0;
// MoveWindow: lParam points to the new RECT in device pixels.
constexpr UINT UIMSG_MOVEWINDOW = 0x7FF1;
// GetClientRect / GetWindowRect: lParam points to the RECT to fill.
constexpr UINT UIMSG_GETCLIENTRECT = 0x7FF2;
constexpr UINT UIMSG_GETWINDOWRECT = 0x7FF3;
// CPaintManagerUI::RunOnWindowThread: lParam points to the function to run.
constexpr UINT UIMSG_RUN_ON_WINDOW_THREAD = 0x7FF4;
// CWindowWnd::CenterWindow asked from another thread.
constexpr UINT UIMSG_CENTERWINDOW = 0x7FF5;

} // namespace DuiLib
