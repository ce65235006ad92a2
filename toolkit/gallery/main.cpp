// toolkit-gallery [--png FILE] [--tab N] [--lang LANG] [--dpi N] [--rows N] [--root DIR]
//
// Without --png: opens the gallery in an SDL2 window (when a display exists)
// and runs it modally until closed. With --png: renders it offscreen, writes
// the PNG and exits.

#include <cairo.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "toolkit/gallery/gallery_window.h"
#include "toolkit/window/native_surface.h"

using namespace DuiLib;

namespace {

const char kUsage[] =
    "usage: toolkit-gallery [--png FILE] [--tab N] [--lang LANG] [--dpi N] [--rows N] [--root DIR]\n";

} // namespace

int main(int argc, char** argv)
{
    std::string png;
    std::string lang = "en-US";
    std::string root = SPACEMGM_SOURCE_DIR;
    int tab = 0;
    int dpi = 96;
    int rows = 24;
    for (int i = 1; i < argc; i += 2) {
        const std::string key = argv[i];
        if (key == "--help" || key == "-h") {
            std::printf("%s", kUsage);
            return 0;
        }
        if (i + 1 >= argc) {
            std::fprintf(stderr, "toolkit-gallery: %s needs a value\n%s", key.c_str(), kUsage);
            return 2;
        }
        const char* value = argv[i + 1];
        if (key == "--png")
            png = value;
        else if (key == "--tab")
            tab = std::atoi(value);
        else if (key == "--lang")
            lang = value;
        else if (key == "--dpi")
            dpi = std::atoi(value);
        else if (key == "--rows")
            rows = std::atoi(value);
        else if (key == "--root")
            root = value;
        else {
            std::fprintf(stderr, "toolkit-gallery: unknown option %s\n%s", key.c_str(), kUsage);
            return 2;
        }
    }
    CPaintManagerUI::SetInstancePath(attr::Widen(root).c_str());
    CResourceManager::GetInstance()->SetLanguage(attr::Widen(lang).c_str());
    CDPI::SetProcessDPI(dpi);
    if (!png.empty()) {
        SetDefaultSurfaceKind(SurfaceKind::Offscreen);
    } else if (DefaultSurfaceKind() == SurfaceKind::Offscreen) {
        // A modal loop on an invisible surface could never be closed.
        std::fprintf(stderr, "toolkit-gallery: no display to show the window on; use --png FILE\n");
        return 2;
    }

    gallery::GalleryWindow window(rows);
    if (window.Create(nullptr, L"Toolkit gallery", 0, 0, 0, 0, 0, 0) == nullptr) {
        std::fprintf(stderr, "toolkit-gallery: %s\n",
                     window.GetSkinError() ? window.GetSkinError()->ToString().c_str()
                                           : "cannot create the window");
        return 1;
    }
    window.CenterWindow();
    if (png.empty()) {
        const UINT code = window.ShowModal();
        std::printf("gallery: closed %u\n", code);
        std::fflush(stdout);
        return 0;
    }
    window.SelectTab(tab);
    window.pm().UpdateLayoutIfNeeded();
    const SIZE client = window.pm().GetClientSize();
    const CDPI* scale = window.pm().GetDPIObj();
    cairo_surface_t* surface =
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, scale->Scale(client.cx), scale->Scale(client.cy));
    cairo_t* cr = cairo_create(surface);
    window.pm().Render(cr);
    cairo_destroy(cr);
    const bool written = cairo_surface_write_to_png(surface, png.c_str()) == CAIRO_STATUS_SUCCESS;
    cairo_surface_destroy(surface);
    ::DestroyWindow(window.GetHWND());
    if (!written) {
        std::fprintf(stderr, "toolkit-gallery: cannot write %s\n", png.c_str());
        return 1;
    }
    return 0;
}

// fontconfig and libdbus (under SDL) keep caches until exit behind hidden
// pointers, which a sanitizer build would report as leaks.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig.so\nleak:libdbus-1.so\n";
}
