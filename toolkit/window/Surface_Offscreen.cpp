// Offscreen surface: frames go to a cairo image kept in memory, so tests
// and headless runs can read pixels or write a PNG.

#include <cairo.h>

#include "toolkit/window/canvas.h"
#include "toolkit/window/native_surface.h"

namespace DuiLib {

namespace {

// The virtual screen offscreen windows are centred on.
constexpr SIZE kOffscreenScreen{1920, 1080};

class OffscreenSurface : public NativeSurface
{
public:
    ~OffscreenSurface() override
    {
        if (m_canvas)
            cairo_surface_destroy(m_canvas);
    }

    cairo_t* BeginPaint(int width, int height) override
    {
        if (width <= 0 || height <= 0)
            return nullptr;
        return BeginCanvasFrame(m_canvas, width, height);
    }

    void EndPaint(cairo_t* cr) override
    {
        cairo_destroy(cr);
        cairo_surface_flush(m_canvas);
    }

    void SetGeometry(const RECT&) override {}
    void Show(bool show) override { m_shown = show; }
    bool IsShown() const override { return m_shown; }
    void SetTitle(const std::wstring&) override {}
    SIZE ScreenSize() const override { return kOffscreenScreen; }
    cairo_surface_t* LastFrame() const override { return m_canvas; }

private:
    cairo_surface_t* m_canvas = nullptr;
    bool m_shown = false;
};

} // namespace

std::unique_ptr<NativeSurface> CreateOffscreenSurface()
{
    return std::make_unique<OffscreenSurface>();
}

} // namespace DuiLib
