#pragma once
// The canvas every surface paints a frame on: an ARGB image the size of the
// window, cleared to transparent before each frame.

typedef struct _cairo_surface cairo_surface_t;
typedef struct _cairo cairo_t;

namespace DuiLib {

// Makes `canvas` `width` x `height` (a new image when it is null or of
// another size; the old one is released) and returns a context on it,
// cleared and set to draw over. The caller destroys the context. `remade`,
// when given, tells whether a new image was made, so that what a surface
// keeps per size (a texture) can follow.
cairo_t* BeginCanvasFrame(cairo_surface_t*& canvas, int width, int height, bool* remade = nullptr);

} // namespace DuiLib
