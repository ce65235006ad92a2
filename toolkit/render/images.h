#pragma once
// Images a skin refers to: PNG files through cairo and SVG files through
// librsvg, loaded once per paint manager and drawn scaled to a rectangle.
//
// Rendering an SVG document costs far more than copying its pixels, and a
// window draws the same icons at the same size in every frame; so an SVG is
// rendered once per device size and sub-pixel position and its pixels are
// kept. OVER is associative, so the kept pixels composite to what rendering
// into the frame gives.

#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

typedef struct _cairo cairo_t;
typedef struct _cairo_surface cairo_surface_t;
typedef struct _RsvgHandle RsvgHandle;

namespace DuiLib {

class Image
{
public:
    static std::shared_ptr<Image> Load(const std::string& path);
    ~Image();
    Image(const Image&) = delete;
    Image& operator=(const Image&) = delete;

    double width() const { return m_width; }
    double height() const { return m_height; }
    // Draws the whole image into the rectangle, scaled to fill it.
    void Draw(cairo_t* cr, double x, double y, double width, double height, double alpha) const;

private:
    struct SurfaceRelease
    {
        void operator()(cairo_surface_t* surface) const;
    };
    using SurfacePtr = std::unique_ptr<cairo_surface_t, SurfaceRelease>;
    // Where an SVG lands in device pixels: the whole pixels it covers, and
    // the document's exact offset and size inside them.
    struct DevicePlacement
    {
        int left = 0;
        int top = 0;
        int width = 0;
        int height = 0;
        double offsetX = 0;
        double offsetY = 0;
        double scaledWidth = 0;
        double scaledHeight = 0;
        bool operator==(const DevicePlacement& other) const;
    };
    struct Raster
    {
        DevicePlacement placement;
        SurfacePtr pixels;
    };

    Image() = default;
    void DrawSvg(cairo_t* cr, double x, double y, double width, double height, double alpha) const;
    // The SVG rendered for `placement`, made on first use; null if no
    // surface could be made.
    cairo_surface_t* RasterFor(const DevicePlacement& placement) const;

    cairo_surface_t* m_bitmap = nullptr;
    RsvgHandle* m_svg = nullptr;
    double m_width = 0;
    double m_height = 0;
    // A few placements at once: an icon drawn at two sizes, or at two
    // sub-pixel offsets at a fractional scale, keeps both.
    mutable std::mutex m_rastersMutex;
    mutable std::vector<Raster> m_rasters;
};

// A drawing instruction parsed from a DuiLib image string: either a plain
// path or  file='a.svg' dest='l,t,r,b' fade='200' .
struct ImageSpec
{
    std::wstring file;
    bool hasDest = false;
    int dest[4] = {0, 0, 0, 0};
    int fade = 255;
    // Returns false for a malformed string.
    static bool Parse(const std::wstring& text, ImageSpec& out);
};

class ImageCache
{
public:
    // Resolves `file` against `folder` and loads it once; null when the file
    // is missing or unreadable.
    std::shared_ptr<Image> Get(const std::wstring& folder, const std::wstring& file);

private:
    std::map<std::string, std::shared_ptr<Image>> m_images;
};

} // namespace DuiLib
