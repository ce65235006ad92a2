// `spacemgm window` (and `spacemgm` alone): the host's side of showing the
// space window. Creates the view model, wires the host's backup window to
// it, creates SpaceMgmWnd and either runs it modally in a real window,
// printing its answer ("exit 1", "exit 0 jump 3222 2"), or, with --png, on
// the offscreen surface until it is still, writing the picture and the
// control dump.
#pragma once

#include "app/window_options.h"

namespace app {

// The exit code of the program (kWindowExit*).
int RunWindowCommand(const WindowOptions& options);

} // namespace app
