#include <atomic>
#include <cstdlib>
#include <cstring>

#include "toolkit/window/native_surface.h"
#include "toolkit/window/sdl_library.h"

namespace DuiLib {

namespace {

// -1: not chosen yet; otherwise a SurfaceKind.
std::atomic<int> g_kind{-1};

SurfaceKind FromEnvironment()
{
    const char* backend = std::getenv("SPACEMGM_TOOLKIT_BACKEND");
    if (backend != nullptr && std::strcmp(backend, "offscreen") == 0)
        return SurfaceKind::Offscreen;
    if (backend != nullptr && std::strcmp(backend, "sdl") == 0)
        return SurfaceKind::Sdl;
    const char* display = std::getenv("DISPLAY");
    const char* wayland = std::getenv("WAYLAND_DISPLAY");
    const bool hasDisplay = (display != nullptr && *display != 0) || (wayland != nullptr && *wayland != 0);
    return hasDisplay ? SurfaceKind::Sdl : SurfaceKind::Offscreen;
}

} // namespace

void SetDefaultSurfaceKind(SurfaceKind kind)
{
    g_kind.store(static_cast<int>(kind));
}

SurfaceKind DefaultSurfaceKind()
{
    const int kind = g_kind.load();
    return kind < 0 ? FromEnvironment() : static_cast<SurfaceKind>(kind);
}

std::unique_ptr<NativeSurface> CreateNativeSurface(HWND hWnd, SurfaceKind kind, std::string* error)
{
    if (kind == SurfaceKind::Sdl) {
        std::string loadError;
        if (LoadSdl(&loadError) == nullptr) {
            if (error != nullptr)
                *error = "cannot open a window: " + loadError;
            return nullptr;
        }
        if (auto surface = CreateSdlSurface(hWnd))
            return surface;
    }
    return CreateOffscreenSurface();
}

} // namespace DuiLib
