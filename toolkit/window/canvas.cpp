#include "toolkit/window/canvas.h"

#include <cairo.h>

namespace DuiLib {

cairo_t* BeginCanvasFrame(cairo_surface_t*& canvas, int width, int height, bool* remade)
{
    const bool resize = !canvas || cairo_image_surface_get_width(canvas) != width ||
                        cairo_image_surface_get_height(canvas) != height;
    if (resize) {
        if (canvas)
            cairo_surface_destroy(canvas);
        canvas = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height);
    }
    if (remade)
        *remade = resize;
    cairo_t* cr = cairo_create(canvas);
    cairo_set_operator(cr, CAIRO_OPERATOR_CLEAR);
    cairo_paint(cr);
    cairo_set_operator(cr, CAIRO_OPERATOR_OVER);
    return cr;
}

} // namespace DuiLib
