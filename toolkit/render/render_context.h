#pragma once
// The one paint path of the toolkit: drawing primitives on a cairo context
// in logical (unscaled) coordinates. The DPI scale is applied once, as the
// context's transformation; fonts keep their sizes in device pixels and are
// drawn at size / scale so text comes out at its device size.

#include <string>
#include <vector>

#include "platform/win32_gdi.h"

typedef struct _cairo cairo_t;

namespace DuiLib {

class Image;

// Which corners of a rounded rectangle are rounded.
enum class RoundCorners
{
    All = 0,
    Left = 1,
    Right = 2
};

class RenderContext
{
public:
    RenderContext(cairo_t* cr, double scale);
    ~RenderContext();
    RenderContext(const RenderContext&) = delete;
    RenderContext& operator=(const RenderContext&) = delete;

    cairo_t* cairo() const { return m_cr; }
    double scale() const { return m_scale; }

    // Colours are 0xAARRGGBB. A fill or border colour with alpha 0 draws
    // nothing; text ignores alpha, as GDI text does.
    void FillRect(const RECT& rect, DWORD color);
    void FillRoundRect(const RECT& rect, DWORD color, SIZE round, RoundCorners corners = RoundCorners::All);
    void DrawBorder(const RECT& rect, int width, DWORD color, SIZE round);
    void DrawText(const RECT& rect, const std::wstring& text, const HFONT__& font, DWORD color, UINT style);
    void DrawImage(const RECT& rect, const Image& image, int alpha = 255);

    // Restricts drawing to the rectangle (rounded if `round` is not 0,0)
    // until the matching PopClip.
    void PushClip(const RECT& rect, SIZE round = SIZE{0, 0}, RoundCorners corners = RoundCorners::All);
    void PopClip();
    // False when nothing of `rect` can show inside the current clip.
    bool IsVisible(const RECT& rect) const;

private:
    void AddRoundPath(const RECT& rect, SIZE round, RoundCorners corners);
    cairo_t* m_cr;
    double m_scale;
    std::vector<RECT> m_clips;
};

// True when the rectangles overlap by at least one pixel.
bool RectsIntersect(const RECT& a, const RECT& b);
RECT IntersectRects(const RECT& a, const RECT& b);
bool RectIsEmpty(const RECT& r);

// Size a text would take when drawn with DrawText's rules for `style`
// within `maxWidth` logical pixels (0 = unbounded), in logical pixels.
SIZE MeasureText(const std::wstring& text, const HFONT__& font, UINT style, int maxWidth, double scale);

} // namespace DuiLib
