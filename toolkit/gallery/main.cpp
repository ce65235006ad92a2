// toolkit-gallery [--png FILE] [--tab N] [--lang LANG] [--dpi N] [--rows N] [--root DIR]
//                 [--focus NAME] [--dump-controls FILE]
//
// Without --png: opens the gallery in an SDL2 window (when a display exists)
// and runs it modally until closed. With --png: renders it offscreen, writes
// the PNG and exits. --focus gives a control the keyboard focus first (to
// show its focus ring); --dump-controls keeps the window's control dump in
// FILE (written once, with --png).

#include <cairo.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "toolkit/gallery/gallery_window.h"
#include "toolkit/window/native_surface.h"

using namespace DuiLib;

namespace {

const char kUsage[] = "usage: toolkit-gallery [--png FILE] [--tab N] [--lang LANG] [--dpi N] [--rows N] "
                      "[--root DIR]\n"
                      "                       [--focus NAME] [--dump-controls FILE]\n";

struct Options
{
    std::string png;
    std::string lang = "en-US";
    std::string root = SPACEMGM_SOURCE_DIR;
    std::string focus;
    std::string dump;
    int tab = 0;
    int dpi = 96;
    int rows = 24;
};

// Reads the command line; returns an exit code when the program should end
// at once (after --help or a bad option), -1 otherwise.
int ParseOptions(int argc, char** argv, Options& options)
{
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
            options.png = value;
        else if (key == "--tab")
            options.tab = std::atoi(value);
        else if (key == "--lang")
            options.lang = value;
        else if (key == "--dpi")
            options.dpi = std::atoi(value);
        else if (key == "--rows")
            options.rows = std::atoi(value);
        else if (key == "--root")
            options.root = value;
        else if (key == "--focus")
            options.focus = value;
        else if (key == "--dump-controls")
            options.dump = value;
        else {
            std::fprintf(stderr, "toolkit-gallery: unknown option %s\n%s", key.c_str(), kUsage);
            return 2;
        }
    }
    return -1;
}

// Renders the window offscreen into `png` (and its dump); the exit code.
int RenderToFiles(gallery::GalleryWindow& window, const Options& options)
{
    window.pm().UpdateLayoutIfNeeded();
    const SIZE client = window.pm().GetClientSize();
    const CDPI* scale = window.pm().GetDPIObj();
    cairo_surface_t* surface =
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, scale->Scale(client.cx), scale->Scale(client.cy));
    cairo_t* cr = cairo_create(surface);
    window.pm().Render(cr);
    cairo_destroy(cr);
    const bool written = cairo_surface_write_to_png(surface, options.png.c_str()) == CAIRO_STATUS_SUCCESS;
    cairo_surface_destroy(surface);
    std::string error;
    const bool dumped =
        options.dump.empty() || WriteFileWhole(options.dump, ControlTreeText(window.pm()), &error);
    ::DestroyWindow(window.GetHWND());
    if (!written) {
        std::fprintf(stderr, "toolkit-gallery: cannot write %s\n", options.png.c_str());
        return 1;
    }
    if (!dumped) {
        std::fprintf(stderr, "toolkit-gallery: %s\n", error.c_str());
        return 1;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    Options options;
    if (const int code = ParseOptions(argc, argv, options); code >= 0)
        return code;
    CPaintManagerUI::SetInstancePath(attr::Widen(options.root).c_str());
    CResourceManager::GetInstance()->SetLanguage(attr::Widen(options.lang).c_str());
    CDPI::SetProcessDPI(options.dpi);
    if (!options.png.empty()) {
        SetDefaultSurfaceKind(SurfaceKind::Offscreen);
    } else if (DefaultSurfaceKind() == SurfaceKind::Offscreen) {
        // A modal loop on an invisible surface could never be closed.
        std::fprintf(stderr, "toolkit-gallery: no display to show the window on; use --png FILE\n");
        return 2;
    }

    gallery::GalleryWindow window(options.rows);
    if (window.Create(nullptr, L"Toolkit gallery", 0, 0, 0, 0, 0, 0) == nullptr) {
        if (!window.GetSurfaceError().empty()) {
            // As with no display at all: there is nowhere to show the window.
            std::fprintf(stderr, "toolkit-gallery: %s\n", window.GetSurfaceError().c_str());
            return 2;
        }
        std::fprintf(stderr, "toolkit-gallery: %s\n",
                     window.GetSkinError() ? window.GetSkinError()->ToString().c_str()
                                           : "cannot create the window");
        return 1;
    }
    window.CenterWindow();
    window.SelectTab(options.tab);
    if (!options.focus.empty() && !window.FocusControl(attr::Widen(options.focus).c_str())) {
        std::fprintf(stderr, "toolkit-gallery: no control named %s to focus\n", options.focus.c_str());
        return 2;
    }
    if (!options.png.empty())
        return RenderToFiles(window, options);
    if (!options.dump.empty())
        window.pm().SetControlDumpPath(attr::Widen(options.dump).c_str());
    const UINT code = window.ShowModal();
    std::printf("gallery: closed %u\n", code);
    std::fflush(stdout);
    return 0;
}

// fontconfig and libdbus (under SDL) keep caches until exit behind hidden
// pointers, which a sanitizer build would report as leaks.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig.so\nleak:libdbus-1.so\n";
}
