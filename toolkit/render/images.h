#pragma once
// Images a skin refers to: PNG files through cairo and SVG files through
// librsvg, loaded once per paint manager and drawn scaled to a rectangle.

#include <map>
#include <memory>
#include <string>

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
    Image() = default;
    cairo_surface_t* m_bitmap = nullptr;
    RsvgHandle* m_svg = nullptr;
    double m_width = 0;
    double m_height = 0;
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
