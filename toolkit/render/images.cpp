#include "toolkit/render/images.h"

#include <cairo.h>

#include <cctype>
#include <cmath>
#include <librsvg/rsvg.h>

#include "toolkit/core/attributes.h"

namespace DuiLib {

namespace {

bool EndsWith(const std::string& text, const char* suffix)
{
    const std::string s(suffix);
    if (text.size() < s.size())
        return false;
    std::string tail = text.substr(text.size() - s.size());
    for (auto& ch : tail)
        ch = static_cast<char>(std::tolower(static_cast<unsigned char>(ch)));
    return tail == s;
}

// Kept renderings per image; beyond this the oldest goes first.
constexpr std::size_t kMaxRasters = 4;

} // namespace

void Image::SurfaceRelease::operator()(cairo_surface_t* surface) const
{
    cairo_surface_destroy(surface);
}

bool Image::DevicePlacement::operator==(const DevicePlacement& other) const
{
    return width == other.width && height == other.height && offsetX == other.offsetX &&
           offsetY == other.offsetY && scaledWidth == other.scaledWidth && scaledHeight == other.scaledHeight;
}

std::shared_ptr<Image> Image::Load(const std::string& path)
{
    std::shared_ptr<Image> image(new Image());
    if (EndsWith(path, ".svg")) {
        GError* error = nullptr;
        image->m_svg = rsvg_handle_new_from_file(path.c_str(), &error);
        if (image->m_svg == nullptr) {
            if (error)
                g_error_free(error);
            return nullptr;
        }
        gdouble w = 0;
        gdouble h = 0;
        if (!rsvg_handle_get_intrinsic_size_in_pixels(image->m_svg, &w, &h)) {
            RsvgRectangle viewport{0, 0, 0, 0};
            RsvgRectangle ink{};
            RsvgRectangle logical{};
            rsvg_handle_get_geometry_for_layer(image->m_svg, nullptr, &viewport, &ink, &logical, nullptr);
            w = logical.width;
            h = logical.height;
        }
        image->m_width = w;
        image->m_height = h;
        return image;
    }
    image->m_bitmap = cairo_image_surface_create_from_png(path.c_str());
    if (cairo_surface_status(image->m_bitmap) != CAIRO_STATUS_SUCCESS)
        return nullptr;
    image->m_width = cairo_image_surface_get_width(image->m_bitmap);
    image->m_height = cairo_image_surface_get_height(image->m_bitmap);
    return image;
}

Image::~Image()
{
    if (m_bitmap)
        cairo_surface_destroy(m_bitmap);
    if (m_svg)
        g_object_unref(m_svg);
}

void Image::Draw(cairo_t* cr, double x, double y, double width, double height, double alpha) const
{
    if (width <= 0 || height <= 0)
        return;
    if (m_svg) {
        DrawSvg(cr, x, y, width, height, alpha);
        return;
    }
    if (m_bitmap && m_width > 0 && m_height > 0) {
        cairo_save(cr);
        cairo_translate(cr, x, y);
        cairo_scale(cr, width / m_width, height / m_height);
        cairo_set_source_surface(cr, m_bitmap, 0, 0);
        cairo_pattern_set_filter(cairo_get_source(cr), CAIRO_FILTER_GOOD);
        cairo_paint_with_alpha(cr, alpha);
        cairo_restore(cr);
    }
}

void Image::DrawSvg(cairo_t* cr, double x, double y, double width, double height, double alpha) const
{
    cairo_matrix_t matrix;
    cairo_get_matrix(cr, &matrix);
    double left = x;
    double top = y;
    double right = x + width;
    double bottom = y + height;
    cairo_user_to_device(cr, &left, &top);
    cairo_user_to_device(cr, &right, &bottom);
    const bool axisAligned = matrix.xy == 0 && matrix.yx == 0 && right > left && bottom > top;
    cairo_surface_t* raster = nullptr;
    DevicePlacement placement;
    if (axisAligned) {
        placement.left = static_cast<int>(std::floor(left));
        placement.top = static_cast<int>(std::floor(top));
        placement.width = static_cast<int>(std::ceil(right)) - placement.left;
        placement.height = static_cast<int>(std::ceil(bottom)) - placement.top;
        placement.offsetX = left - placement.left;
        placement.offsetY = top - placement.top;
        placement.scaledWidth = right - left;
        placement.scaledHeight = bottom - top;
        raster = RasterFor(placement);
    }
    cairo_save(cr);
    if (raster != nullptr) {
        cairo_identity_matrix(cr);
        cairo_set_source_surface(cr, raster, placement.left, placement.top);
        cairo_paint_with_alpha(cr, alpha);
    } else {
        // Rotated or skewed: no pixels to keep, the document is rendered.
        RsvgRectangle viewport{x, y, width, height};
        cairo_push_group(cr);
        rsvg_handle_render_document(m_svg, cr, &viewport, nullptr);
        cairo_pop_group_to_source(cr);
        cairo_paint_with_alpha(cr, alpha);
    }
    cairo_restore(cr);
}

cairo_surface_t* Image::RasterFor(const DevicePlacement& placement) const
{
    std::lock_guard<std::mutex> lock(m_rastersMutex);
    for (const Raster& raster : m_rasters) {
        if (raster.placement == placement)
            return raster.pixels.get();
    }
    SurfacePtr pixels(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, placement.width, placement.height));
    if (cairo_surface_status(pixels.get()) != CAIRO_STATUS_SUCCESS)
        return nullptr;
    cairo_t* cr = cairo_create(pixels.get());
    RsvgRectangle viewport{placement.offsetX, placement.offsetY, placement.scaledWidth,
                           placement.scaledHeight};
    rsvg_handle_render_document(m_svg, cr, &viewport, nullptr);
    cairo_destroy(cr);
    cairo_surface_flush(pixels.get());
    if (m_rasters.size() >= kMaxRasters)
        m_rasters.erase(m_rasters.begin());
    m_rasters.push_back(Raster{placement, std::move(pixels)});
    return m_rasters.back().pixels.get();
}

bool ImageSpec::Parse(const std::wstring& text, ImageSpec& out)
{
    out = ImageSpec();
    if (text.find(L'=') == std::wstring::npos) {
        out.file = text;
        return true;
    }
    bool ok = true;
    const bool wellFormed =
        attr::ForEachInList(text.c_str(), [&](const std::wstring& key, const std::wstring& value) {
            try {
                if (key == L"file" || key == L"res") {
                    out.file = value;
                } else if (key == L"dest") {
                    const RECT r = attr::ParseRect(L"dest", value.c_str());
                    out.dest[0] = r.left;
                    out.dest[1] = r.top;
                    out.dest[2] = r.right;
                    out.dest[3] = r.bottom;
                    out.hasDest = true;
                } else if (key == L"fade") {
                    out.fade = attr::ParseInt(L"fade", value.c_str());
                } else {
                    ok = false;
                }
            } catch (const AttributeError&) {
                ok = false;
            }
        });
    return wellFormed && ok && !out.file.empty();
}

std::shared_ptr<Image> ImageCache::Get(const std::wstring& folder, const std::wstring& file)
{
    std::string path = attr::Narrow(file);
    if (path.empty())
        return nullptr;
    if (path[0] != '/') {
        std::string base = attr::Narrow(folder);
        if (!base.empty() && base.back() != '/')
            base += '/';
        path = base + path;
    }
    const auto found = m_images.find(path);
    if (found != m_images.end())
        return found->second;
    auto image = Image::Load(path);
    m_images.emplace(path, image);
    return image;
}

} // namespace DuiLib
