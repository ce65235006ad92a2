#pragma once
// The control tree of a window as JSON, for scripts and tests that read a
// live window instead of its pixels. The format is described in
// docs/control-dump.md:
//
//   {"window": "<class name>", "controls": <root>}
//
// where each control is {"name", "class", "text", "visible", "shown", "x",
// "y", "width", "height", "children"} in that order, with "selected" on tab
// layouts and lists, "value"/"min"/"max" on progress bars and
// "foreColor"/"bkColor" where set, before "children". Positions are client
// pixels of the window at its scale.

#include <string>

namespace DuiLib {

class CPaintManagerUI;

// The dump of `manager`'s tree as UTF-8 JSON text, one control to a line,
// indented by depth ("controls" is null without a tree).
std::string ControlTreeText(CPaintManagerUI& manager);

// Writes `text` to `path` so that a reader sees either the old file or the
// whole new one (written beside it, then renamed). False with a one-line
// reason in `error` when that fails.
bool WriteFileWhole(const std::string& path, const std::string& text, std::string* error);

} // namespace DuiLib
