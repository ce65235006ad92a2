#pragma once
// Fonts of the toolkit: a pango font description with the size in device
// pixels. HFONT handles given to the window are pointers to these.

#include <memory>
#include <string>

#include "platform/win32_gdi.h"

typedef struct _PangoFontDescription PangoFontDescription;

struct HFONT__
{
    std::wstring family;
    int pixelSize = 12; // device pixels, DPI scale already applied
    bool bold = false;
    bool italic = false;
    bool underline = false;
    PangoFontDescription* description = nullptr;

    HFONT__(std::wstring familyName, int pixels, bool isBold, bool isItalic, bool isUnderline);
    ~HFONT__();
    HFONT__(const HFONT__&) = delete;
    HFONT__& operator=(const HFONT__&) = delete;
};

// A measuring device context: only the selected font matters.
struct HDC__
{
    HFONT defaultFont = nullptr;
    HFONT selected = nullptr;
};

namespace DuiLib {

// The font a fresh device context starts with, like the system font of a
// new Windows DC; one per thread.
HFONT DefaultContextFont();

using FontPtr = std::unique_ptr<HFONT__>;

// Families that together cover Latin, Cyrillic, Thai and CJK text; a skin
// font name is tried first and these fill in the missing scripts.
const wchar_t* FallbackFontFamilies();

FontPtr MakeFont(const std::wstring& family, int pixelSize, bool bold, bool italic, bool underline);

} // namespace DuiLib
