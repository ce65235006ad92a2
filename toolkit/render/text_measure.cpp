#include "toolkit/render/text_measure.h"

#include <pango/pangocairo.h>

#include <cmath>

#include "toolkit/core/attributes.h"
#include "toolkit/render/fonts.h"

namespace DuiLib {

PangoContext* MeasuringContext()
{
    struct Holder
    {
        PangoContext* context = nullptr;
        Holder()
        {
            context = pango_font_map_create_context(pango_cairo_font_map_get_default());
            cairo_font_options_t* options = cairo_font_options_create();
            cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
            cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
            cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_SLIGHT);
            pango_cairo_context_set_font_options(context, options);
            // Unrounded positions keep widths proportional to the font size,
            // so sizes computed at one DPI hold at another.
            pango_context_set_round_glyph_positions(context, FALSE);
            cairo_font_options_destroy(options);
        }
        ~Holder() { g_object_unref(context); }
    };
    thread_local Holder holder;
    return holder.context;
}

SIZE MeasureSingleLine(const HFONT__& font, const std::wstring& text)
{
    PangoLayout* layout = pango_layout_new(MeasuringContext());
    pango_layout_set_font_description(layout, font.description);
    const std::string utf8 = attr::Narrow(text);
    pango_layout_set_text(layout, utf8.c_str(), static_cast<int>(utf8.size()));
    return TakeLayoutSize(layout);
}

SIZE TakeLayoutSize(PangoLayout* layout)
{
    PangoRectangle logical{};
    pango_layout_get_extents(layout, nullptr, &logical);
    g_object_unref(layout);
    SIZE size;
    size.cx = static_cast<LONG>(std::ceil(static_cast<double>(logical.width) / PANGO_SCALE));
    size.cy = static_cast<LONG>(std::ceil(static_cast<double>(logical.height) / PANGO_SCALE));
    return size;
}

} // namespace DuiLib
