#include "toolkit/render/render_context.h"

#include <pango/pangocairo.h>

#include <algorithm>
#include <cmath>

#include "toolkit/core/attributes.h"
#include "toolkit/render/fonts.h"
#include "toolkit/render/images.h"
#include "toolkit/render/text_measure.h"

namespace DuiLib {

namespace {

void SetSource(cairo_t* cr, DWORD color, bool ignoreAlpha)
{
    const double a = ignoreAlpha ? 1.0 : ((color >> 24) & 0xFF) / 255.0;
    cairo_set_source_rgba(cr, ((color >> 16) & 0xFF) / 255.0, ((color >> 8) & 0xFF) / 255.0,
                          (color & 0xFF) / 255.0, a);
}

bool Invisible(DWORD color)
{
    return (color >> 24) == 0;
}

// A layout for drawing or measuring; the font is set at its logical size.
PangoLayout* MakeLayout(PangoContext* context, const std::wstring& text, const HFONT__& font, UINT style,
                        int width, double scale)
{
    PangoLayout* layout = pango_layout_new(context);
    PangoFontDescription* description = pango_font_description_copy(font.description);
    pango_font_description_set_absolute_size(description, font.pixelSize / scale * PANGO_SCALE);
    pango_layout_set_font_description(layout, description);
    pango_font_description_free(description);
    const std::string utf8 = attr::Narrow(text);
    pango_layout_set_text(layout, utf8.c_str(), static_cast<int>(utf8.size()));
    if (font.underline) {
        PangoAttrList* attrs = pango_attr_list_new();
        pango_attr_list_insert(attrs, pango_attr_underline_new(PANGO_UNDERLINE_SINGLE));
        pango_layout_set_attributes(layout, attrs);
        pango_attr_list_unref(attrs);
    }
    const bool singleLine = (style & DT_SINGLELINE) != 0 || (style & DT_WORDBREAK) == 0;
    if (width > 0) {
        pango_layout_set_width(layout, width * PANGO_SCALE);
        if (singleLine) {
            pango_layout_set_ellipsize(layout, (style & DT_END_ELLIPSIS) ? PANGO_ELLIPSIZE_END
                                                                         : PANGO_ELLIPSIZE_NONE);
        } else {
            pango_layout_set_wrap(layout, PANGO_WRAP_WORD_CHAR);
        }
    }
    if (singleLine)
        pango_layout_set_single_paragraph_mode(layout, TRUE);
    if (style & DT_CENTER) {
        pango_layout_set_alignment(layout, PANGO_ALIGN_CENTER);
    } else if (style & DT_RIGHT) {
        pango_layout_set_alignment(layout, PANGO_ALIGN_RIGHT);
    }
    return layout;
}

void ConfigureTextContext(PangoContext* context)
{
    cairo_font_options_t* options = cairo_font_options_create();
    cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_SLIGHT);
    pango_cairo_context_set_font_options(context, options);
    cairo_font_options_destroy(options);
    pango_context_set_round_glyph_positions(context, FALSE);
}

// How far to move a line whose glyphs start at `inkTop` and are `inkHeight`
// tall so that none of them is cut by the box: the line box of a script
// with marks above and below its letters (Thai) is taller than most labels
// give it, while its glyphs fit. Moves by whole device pixels, so that the
// glyphs are drawn exactly as they would be unmoved.
double InkShift(double inkTop, double inkHeight, const RECT& box, double scale)
{
    // Hinting and anti-aliasing reach up to a device pixel past the outlines.
    inkTop -= 1.0 / scale;
    inkHeight += 2.0 / scale;
    const double top = box.top;
    const double bottom = box.bottom;
    if (inkHeight > bottom - top)
        return (top + bottom) / 2.0 - (inkTop + inkHeight / 2.0); // cut evenly
    double shift = 0;
    if (inkTop < top)
        shift = top - inkTop;
    else if (inkTop + inkHeight > bottom)
        shift = bottom - (inkTop + inkHeight);
    if (shift == 0)
        return 0;
    const double whole = std::copysign(std::ceil(std::fabs(shift) * scale), shift) / scale;
    const bool wholeFits = inkTop + whole >= top && inkTop + inkHeight + whole <= bottom;
    return wholeFits ? whole : shift;
}

} // namespace

bool RectIsEmpty(const RECT& r)
{
    return r.right <= r.left || r.bottom <= r.top;
}

bool RectsIntersect(const RECT& a, const RECT& b)
{
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

RECT IntersectRects(const RECT& a, const RECT& b)
{
    RECT r;
    r.left = std::max(a.left, b.left);
    r.top = std::max(a.top, b.top);
    r.right = std::min(a.right, b.right);
    r.bottom = std::min(a.bottom, b.bottom);
    if (RectIsEmpty(r))
        r = RECT{0, 0, 0, 0};
    return r;
}

RenderContext::RenderContext(cairo_t* cr, double scale) : m_cr(cr), m_scale(scale > 0 ? scale : 1.0)
{
    cairo_save(m_cr);
    cairo_scale(m_cr, m_scale, m_scale);
}

RenderContext::~RenderContext()
{
    while (!m_clips.empty())
        PopClip();
    cairo_restore(m_cr);
}

void RenderContext::AddRoundPath(const RECT& rect, SIZE round, RoundCorners corners)
{
    const double x = rect.left;
    const double y = rect.top;
    const double w = rect.right - rect.left;
    const double h = rect.bottom - rect.top;
    // DuiLib gives the corner as the size of the ellipse, so radii are half.
    const double rx = std::min(round.cx / 2.0, w / 2.0);
    const double ry = std::min(round.cy / 2.0, h / 2.0);
    if (rx <= 0 || ry <= 0) {
        cairo_rectangle(m_cr, x, y, w, h);
        return;
    }
    const bool left = corners != RoundCorners::Right;
    const bool right = corners != RoundCorners::Left;
    auto corner = [&](double cx, double cy, double from, double to) {
        cairo_save(m_cr);
        cairo_translate(m_cr, cx, cy);
        cairo_scale(m_cr, rx, ry);
        cairo_arc(m_cr, 0, 0, 1, from, to);
        cairo_restore(m_cr);
    };
    cairo_new_sub_path(m_cr);
    if (right) {
        corner(x + w - rx, y + ry, -M_PI / 2, 0);
        corner(x + w - rx, y + h - ry, 0, M_PI / 2);
    } else {
        cairo_line_to(m_cr, x + w, y);
        cairo_line_to(m_cr, x + w, y + h);
    }
    if (left) {
        corner(x + rx, y + h - ry, M_PI / 2, M_PI);
        corner(x + rx, y + ry, M_PI, 3 * M_PI / 2);
    } else {
        cairo_line_to(m_cr, x, y + h);
        cairo_line_to(m_cr, x, y);
    }
    cairo_close_path(m_cr);
}

void RenderContext::FillRect(const RECT& rect, DWORD color)
{
    if (Invisible(color) || RectIsEmpty(rect))
        return;
    SetSource(m_cr, color, false);
    cairo_rectangle(m_cr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top);
    cairo_fill(m_cr);
}

void RenderContext::FillRoundRect(const RECT& rect, DWORD color, SIZE round, RoundCorners corners)
{
    if (Invisible(color) || RectIsEmpty(rect))
        return;
    SetSource(m_cr, color, false);
    AddRoundPath(rect, round, corners);
    cairo_fill(m_cr);
}

void RenderContext::DrawBorder(const RECT& rect, int width, DWORD color, SIZE round)
{
    if (Invisible(color) || width <= 0 || RectIsEmpty(rect))
        return;
    const double inset = width / 2.0;
    SetSource(m_cr, color, false);
    cairo_set_line_width(m_cr, width);
    RECT inner = rect;
    cairo_save(m_cr);
    cairo_translate(m_cr, inset, inset);
    inner.right -= width;
    inner.bottom -= width;
    AddRoundPath(inner, round, RoundCorners::All);
    cairo_restore(m_cr);
    cairo_stroke(m_cr);
}

void RenderContext::DrawText(const RECT& rect, const std::wstring& text, const HFONT__& font, DWORD color,
                             UINT style)
{
    if (text.empty() || RectIsEmpty(rect))
        return;
    PangoContext* context = pango_cairo_create_context(m_cr);
    ConfigureTextContext(context);
    const int width = rect.right - rect.left;
    PangoLayout* layout = MakeLayout(context, text, font, style, width, m_scale);
    PangoRectangle ink{};
    PangoRectangle logical{};
    pango_layout_get_extents(layout, &ink, &logical);
    const double textHeight = static_cast<double>(logical.height) / PANGO_SCALE;
    const double boxHeight = rect.bottom - rect.top;
    double y = rect.top;
    if (style & DT_VCENTER) {
        y += (boxHeight - textHeight) / 2.0;
    } else if (style & DT_BOTTOM) {
        y += boxHeight - textHeight;
    }
    if ((style & DT_SINGLELINE) != 0 || (style & DT_WORDBREAK) == 0)
        y += InkShift(y + static_cast<double>(ink.y) / PANGO_SCALE,
                      static_cast<double>(ink.height) / PANGO_SCALE, rect, m_scale);
    cairo_save(m_cr);
    cairo_rectangle(m_cr, rect.left, rect.top, width, boxHeight);
    cairo_clip(m_cr);
    SetSource(m_cr, color, true);
    cairo_move_to(m_cr, rect.left, y);
    pango_cairo_show_layout(m_cr, layout);
    cairo_restore(m_cr);
    g_object_unref(layout);
    g_object_unref(context);
}

void RenderContext::DrawImage(const RECT& rect, const Image& image, int alpha)
{
    if (RectIsEmpty(rect) || alpha <= 0)
        return;
    image.Draw(m_cr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
               std::min(alpha, 255) / 255.0);
}

void RenderContext::PushClip(const RECT& rect, SIZE round, RoundCorners corners)
{
    cairo_save(m_cr);
    AddRoundPath(rect, round, corners);
    cairo_clip(m_cr);
    m_clips.push_back(m_clips.empty() ? rect : IntersectRects(m_clips.back(), rect));
}

void RenderContext::PopClip()
{
    if (m_clips.empty())
        return;
    m_clips.pop_back();
    cairo_restore(m_cr);
}

bool RenderContext::IsVisible(const RECT& rect) const
{
    if (RectIsEmpty(rect))
        return false;
    return m_clips.empty() || RectsIntersect(m_clips.back(), rect);
}

SIZE MeasureText(const std::wstring& text, const HFONT__& font, UINT style, int maxWidth, double scale)
{
    PangoContext* context = MeasuringContext();
    return TakeLayoutSize(MakeLayout(context, text, font, style, maxWidth, scale > 0 ? scale : 1.0));
}

} // namespace DuiLib
