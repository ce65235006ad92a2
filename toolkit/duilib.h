#pragma once
// The toolkit in one include: everything the window code uses from
// namespace DuiLib, plus the Win32 surface and text measuring it calls.

#include "platform/win32.h"
#include "platform/win32_gdi.h"
#include "toolkit/controls/button.h"
#include "toolkit/controls/container.h"
#include "toolkit/controls/control.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/list.h"
#include "toolkit/controls/progress.h"
#include "toolkit/core/dpi.h"
#include "toolkit/core/dui_string.h"
#include "toolkit/core/resource_manager.h"
#include "toolkit/core/ui_base.h"
#include "toolkit/paint/control_dump.h"
#include "toolkit/paint/dialog_builder.h"
#include "toolkit/paint/notify_pump.h"
#include "toolkit/paint/paint_manager.h"
#include "toolkit/win32/message_queue.h"
#include "toolkit/window/message_box.h"
#include "toolkit/window/window_impl_base.h"
#include "toolkit/window/window_wnd.h"
