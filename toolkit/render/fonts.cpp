#include "toolkit/render/fonts.h"

#include <pango/pango.h>

#include "toolkit/core/attributes.h"

HFONT__::HFONT__(std::wstring familyName, int pixels, bool isBold, bool isItalic, bool isUnderline)
    : family(std::move(familyName)), pixelSize(pixels), bold(isBold), italic(isItalic), underline(isUnderline)
{
    description = pango_font_description_new();
    std::wstring families = family.empty() ? std::wstring() : family + L",";
    families += DuiLib::FallbackFontFamilies();
    pango_font_description_set_family(description, DuiLib::attr::Narrow(families).c_str());
    pango_font_description_set_absolute_size(description, static_cast<double>(pixelSize) * PANGO_SCALE);
    pango_font_description_set_weight(description, bold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
    pango_font_description_set_style(description, italic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
}

HFONT__::~HFONT__()
{
    pango_font_description_free(description);
}

namespace DuiLib {

const wchar_t* FallbackFontFamilies()
{
    return L"Noto Sans,DejaVu Sans,Noto Sans Thai,Noto Sans CJK SC,sans-serif";
}

HFONT DefaultContextFont()
{
    thread_local FontPtr font = MakeFont(L"", 16, false, false, false);
    return font.get();
}

FontPtr MakeFont(const std::wstring& family, int pixelSize, bool bold, bool italic, bool underline)
{
    return std::make_unique<HFONT__>(family, pixelSize < 1 ? 1 : pixelSize, bold, italic, underline);
}

} // namespace DuiLib
