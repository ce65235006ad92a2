#pragma once
// What a toolkit window is drawn on: an offscreen image (tests, headless
// runs) or an SDL2 window when a display exists. Both take the paint
// manager's frames through PaintTarget; geometry is in device pixels,
// relative to a virtual screen.

#include <memory>
#include <string>

#include "platform/win32.h"
#include "toolkit/paint/paint_manager.h"

typedef struct _cairo_surface cairo_surface_t;

namespace DuiLib {

enum class SurfaceKind
{
    Offscreen,
    Sdl
};

// The kind new windows get: set explicitly, or from SPACEMGM_TOOLKIT_BACKEND
// ("offscreen" / "sdl"), or SDL when DISPLAY or WAYLAND_DISPLAY is set and
// SDL video starts.
void SetDefaultSurfaceKind(SurfaceKind kind);
SurfaceKind DefaultSurfaceKind();

class NativeSurface : public PaintTarget
{
public:
    // Position and size of the window on the screen.
    virtual void SetGeometry(const RECT& rect) = 0;
    virtual void Show(bool show) = 0;
    virtual bool IsShown() const = 0;
    virtual void SetTitle(const std::wstring& title) = 0;
    // Size of the screen the window is on.
    virtual SIZE ScreenSize() const = 0;
    // The last frame painted, or null before the first paint.
    virtual cairo_surface_t* LastFrame() const = 0;
};

// Makes a surface for the window `hWnd`; falls back to offscreen when SDL
// video cannot open a window. Null when an SDL surface is asked for and the
// SDL2 library cannot be loaded; `error` then names the library and the
// loader's reason. An offscreen surface never loads SDL2.
std::unique_ptr<NativeSurface> CreateNativeSurface(HWND hWnd, SurfaceKind kind, std::string* error = nullptr);

// Offscreen surfaces: a canvas kept in memory.
std::unique_ptr<NativeSurface> CreateOffscreenSurface();
// SDL surfaces: null when SDL2 or its video is not available.
std::unique_ptr<NativeSurface> CreateSdlSurface(HWND hWnd);

} // namespace DuiLib
