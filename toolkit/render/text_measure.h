#pragma once
// Measures text with pango on this thread's measuring context, the same
// metrics the paint code uses, so widths computed by the window match what
// is drawn.

#include <string>

#include "platform/win32.h"

struct HFONT__;
typedef struct _PangoContext PangoContext;
typedef struct _PangoLayout PangoLayout;

namespace DuiLib {

// This thread's pango context for measuring (pango objects are not
// thread-safe); same font options as painting.
PangoContext* MeasuringContext();

// Size of `text` on one line in `font`, in the font's own pixels (device
// pixels for paint manager fonts). Empty text has width 0 and the line
// height of the font.
SIZE MeasureSingleLine(const HFONT__& font, const std::wstring& text);

// The logical extents of `layout` in whole pixels, rounded up; releases the
// layout.
SIZE TakeLayoutSize(PangoLayout* layout);

} // namespace DuiLib
