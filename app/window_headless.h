// The window on the offscreen surface: waits until the load has ended and
// the bar stands still, selects a row as a click would, writes the PNG and
// the control dump.
#pragma once

#include "app/window_options.h"
#include "window/space_mgm_wnd.h"

namespace app {

// `window` is created, not yet shown. The exit code (kWindowExit*); the
// window is destroyed on return.
int RunHeadless(SpaceMgmWnd& window, const WindowOptions& options);

} // namespace app
