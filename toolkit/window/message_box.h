#pragma once
// UIIMessageBox::PopMessageBox: a modal question with a title, a detail
// text and one or two buttons, shown over its parent.
//
// Returns 1 for the first button, 2 for the second, 0 when cancelled with
// Escape or the close button. Keyboard: Tab moves between the buttons,
// Enter and Space press the focused one (the first button has the focus at
// the start), Escape cancels when `escapeCancels` is set.

#include "platform/win32.h"
#include "toolkit/core/dui_string.h"

namespace DuiLib {

class UIIMessageBox
{
public:
    // buttonCount: 1 shows only the first button, 2 both.
    // icon: an image path relative to the skin folder, or null for none.
    // centerOnParent: centre over hParent (else on the screen).
    // escapeCancels: Escape closes the box with 0.
    // showClose: a close button in the title row, which also gives 0.
    static int PopMessageBox(HWND hParent, LPCTSTR title, LPCTSTR detail, LPCTSTR firstButton,
                             LPCTSTR secondButton, int buttonCount = 2, LPCTSTR icon = nullptr,
                             bool centerOnParent = true, bool escapeCancels = true, bool showClose = false);

    // The box currently shown on this thread, or null; for tests and
    // automation, which drive it like a user would.
    static HWND GetActiveBox();
};

} // namespace DuiLib
