// SVG images keep their rendered pixels per device placement; what a frame
// shows must be what rendering the document into it shows.
#include <cairo.h>
#include <gtest/gtest.h>
#include <librsvg/rsvg.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <string>

#include "toolkit/render/images.h"

namespace {

const std::string kIcon = std::string(SPACEMGM_SOURCE_DIR) + "/Res/skin/Gallery/Toolkit/icon_cloud.svg";
constexpr int kSize = 120;
constexpr uint32_t kBackground = 0xFF336699;

// One canvas filled with an opaque colour, its transform set by `transform`.
struct Canvas
{
    Canvas()
        : surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, kSize, kSize)), cr(cairo_create(surface))
    {
        cairo_set_source_rgb(cr, 0x33 / 255.0, 0x66 / 255.0, 0x99 / 255.0);
        cairo_paint(cr);
    }
    ~Canvas()
    {
        cairo_destroy(cr);
        cairo_surface_destroy(surface);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    uint32_t Pixel(int x, int y)
    {
        cairo_surface_flush(surface);
        const unsigned char* row =
            cairo_image_surface_get_data(surface) + y * cairo_image_surface_get_stride(surface);
        uint32_t pixel = 0;
        std::memcpy(&pixel, row + x * 4, sizeof pixel);
        return pixel;
    }

    cairo_surface_t* surface;
    cairo_t* cr;
};

// The document rendered straight into the canvas, as the image did before
// it kept pixels.
void RenderDirectly(cairo_t* cr, double x, double y, double w, double h, double alpha)
{
    RsvgHandle* svg = rsvg_handle_new_from_file(kIcon.c_str(), nullptr);
    ASSERT_NE(svg, nullptr);
    RsvgRectangle viewport{x, y, w, h};
    cairo_push_group(cr);
    rsvg_handle_render_document(svg, cr, &viewport, nullptr);
    cairo_pop_group_to_source(cr);
    cairo_paint_with_alpha(cr, alpha);
    g_object_unref(svg);
}

int ChannelDifference(uint32_t a, uint32_t b)
{
    int worst = 0;
    for (int shift = 0; shift < 32; shift += 8)
        worst = std::max(
            worst, std::abs(static_cast<int>((a >> shift) & 0xFF) - static_cast<int>((b >> shift) & 0xFF)));
    return worst;
}

struct Comparison
{
    int worstDifference = 0;
    int drawnPixels = 0; // pixels the icon changed in the reference
};

Comparison Compare(Canvas& drawn, Canvas& reference)
{
    Comparison result;
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
            result.worstDifference =
                std::max(result.worstDifference, ChannelDifference(drawn.Pixel(x, y), reference.Pixel(x, y)));
            if (reference.Pixel(x, y) != kBackground)
                ++result.drawnPixels;
        }
    }
    return result;
}

// Draws the image on two canvases, the first time rendering the document,
// the second from the pixels it kept, and the document directly on a third,
// all under the same transform; the worse of the two comparisons.
Comparison DrawTwiceAgainstDirect(DuiLib::Image& image, const std::function<void(cairo_t*)>& transform,
                                  double x, double y, double w, double h, double alpha)
{
    Canvas first;
    Canvas second;
    Canvas reference;
    for (Canvas* canvas : {&first, &second, &reference})
        transform(canvas->cr);
    image.Draw(first.cr, x, y, w, h, alpha);
    image.Draw(second.cr, x, y, w, h, alpha);
    RenderDirectly(reference.cr, x, y, w, h, alpha);
    Comparison result = Compare(first, reference);
    result.worstDifference = std::max(result.worstDifference, Compare(second, reference).worstDifference);
    return result;
}

void NoTransform(cairo_t*) {}

} // namespace

TEST(SvgImage, KeptPixelsMatchTheDocumentRenderedIntoTheFrame)
{
    const auto image = DuiLib::Image::Load(kIcon);
    ASSERT_NE(image, nullptr);
    const Comparison result = DrawTwiceAgainstDirect(*image, NoTransform, 10, 20, 28, 28, 1.0);
    EXPECT_GT(result.drawnPixels, 300);
    EXPECT_LE(result.worstDifference, 1);
}

TEST(SvgImage, AtAFractionalScaleAndOffsetTheKeptPixelsKeepTheSubPixelPosition)
{
    const auto image = DuiLib::Image::Load(kIcon);
    ASSERT_NE(image, nullptr);
    const auto scale = [](cairo_t* cr) { cairo_scale(cr, 1.5, 1.5); };
    const Comparison result = DrawTwiceAgainstDirect(*image, scale, 7.3, 11.7, 28, 28, 1.0);
    EXPECT_GT(result.drawnPixels, 700);
    EXPECT_LE(result.worstDifference, 1);
}

TEST(SvgImage, AFadedImageIsFadedAsTheDocumentWouldBe)
{
    const auto image = DuiLib::Image::Load(kIcon);
    ASSERT_NE(image, nullptr);
    const Comparison result = DrawTwiceAgainstDirect(*image, NoTransform, 4, 4, 40, 40, 0.5);
    EXPECT_GT(result.drawnPixels, 600);
    EXPECT_LE(result.worstDifference, 1);
}

TEST(SvgImage, DrawnAtANewSizeItIsRenderedAgainNotStretched)
{
    const auto image = DuiLib::Image::Load(kIcon);
    ASSERT_NE(image, nullptr);
    Canvas small;
    image->Draw(small.cr, 0, 0, 12, 12, 1.0);
    const Comparison result = DrawTwiceAgainstDirect(*image, NoTransform, 2, 3, 96, 96, 1.0);
    EXPECT_GT(result.drawnPixels, 5000);
    EXPECT_LE(result.worstDifference, 1);
}

TEST(SvgImage, ARotatedCanvasGetsTheDocumentRendered)
{
    const auto image = DuiLib::Image::Load(kIcon);
    ASSERT_NE(image, nullptr);
    const auto rotate = [](cairo_t* cr) {
        cairo_translate(cr, 60, 60);
        cairo_rotate(cr, 0.5);
    };
    const Comparison result = DrawTwiceAgainstDirect(*image, rotate, -20, -20, 40, 40, 1.0);
    EXPECT_GT(result.drawnPixels, 600);
    EXPECT_LE(result.worstDifference, 1);
}
