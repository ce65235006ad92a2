#include <cairo.h>
#include <gtest/gtest.h>

#include <fstream>

#include "harness/ui_harness.h"
#include "toolkit/window/native_surface.h"

using namespace uitest;

namespace {

class RenderTest : public ::testing::Test
{
protected:
    void SetUp() override { UseOffscreenToolkit(); }
};

} // namespace

TEST_F(RenderTest, BackgroundColoursLandWhereTheLayoutPutsThem)
{
    SkinWindow w(LR"(<Window size="200,100"><HorizontalLayout bkcolor="#FFFFFFFF">
        <Control name="red" width="50" bkcolor="#FFFF0000" />
        <Control name="blue" width="50" bkcolor="#FF0000FF" padding="10,10,0,10" />
        </HorizontalLayout></Window>)");
    ASSERT_TRUE(Open(w));
    Snapshot shot(w.pm());
    EXPECT_EQ(shot.Pixel(25, 50), 0xFFFF0000u);
    EXPECT_EQ(shot.Pixel(85, 50), 0xFF0000FFu);
    EXPECT_EQ(shot.Pixel(85, 5), 0xFFFFFFFFu);  // above the padded control
    EXPECT_EQ(shot.Pixel(55, 50), 0xFFFFFFFFu); // its left padding
    EXPECT_EQ(shot.Pixel(150, 50), 0xFFFFFFFFu);
    EXPECT_TRUE(shot.WritePng(OutputPath("colours.png")));
    w.Close(0);
    Pump(10);
}

TEST_F(RenderTest, TextIsDrawnInsideItsLabelOnly)
{
    SkinWindow w(LR"(<Window size="300,100"><VerticalLayout bkcolor="#FFFFFFFF">
        <Label name="text" height="40" text="Cloud space Облако ข้อมูล 云空间" textcolor="#FF000000" padding="20,30,0,0" />
        <Control /></VerticalLayout></Window>)");
    ASSERT_TRUE(Open(w));
    Snapshot shot(w.pm());
    EXPECT_GT(shot.CountDark(RECT{20, 30, 300, 70}, 100), 150);
    EXPECT_EQ(shot.CountDark(RECT{0, 0, 300, 30}, 100), 0);
    EXPECT_EQ(shot.CountDark(RECT{0, 70, 300, 100}, 100), 0);
    EXPECT_EQ(shot.CountDark(RECT{0, 0, 20, 100}, 100), 0);
    EXPECT_TRUE(shot.WritePng(OutputPath("text.png")));
    w.Close(0);
    Pump(10);
}

TEST_F(RenderTest, TextColourWithZeroAlphaStillDraws)
{
    SkinWindow w(LR"(<Window size="200,40"><HorizontalLayout bkcolor="#FFFFFFFF">
        <Label name="l" text="WWWW" /></HorizontalLayout></Window>)");
    ASSERT_TRUE(Open(w));
    Find<CLabelUI>(w.pm(), L"l")->SetTextColor(0x00FA2A2D);
    Snapshot shot(w.pm());
    EXPECT_GT(shot.CountNear(RECT{0, 0, 200, 40}, 0xFA2A2D, 40), 20);
    w.Close(0);
    Pump(10);
}

TEST_F(RenderTest, ProgressFillsInProportionToItsValue)
{
    SkinWindow w(LR"(<Window size="200,20"><HorizontalLayout bkcolor="#FFFFFFFF">
        <Progress name="p" width="200" bkcolor="#FFDDDDDD" /></HorizontalLayout></Window>)");
    ASSERT_TRUE(Open(w));
    auto* p = Find<CProgressUI>(w.pm(), L"p");
    p->SetForeColor(0xFF3D7BFF);
    p->SetMinValue(0);
    p->SetMaxValue(200);
    p->SetValue(50);
    EXPECT_EQ(p->GetValue(), 50);
    EXPECT_EQ(p->GetMaxValue(), 200);
    Snapshot shot(w.pm());
    EXPECT_EQ(p->GetFilledWidth(), 50);
    EXPECT_EQ(shot.Pixel(25, 10), 0xFF3D7BFFu);
    EXPECT_EQ(shot.Pixel(75, 10), 0xFFDDDDDDu);
    p->SetValue(500); // above max: full
    Snapshot full(w.pm());
    EXPECT_EQ(full.Pixel(195, 10), 0xFF3D7BFFu);
    w.Close(0);
    Pump(10);
}

TEST_F(RenderTest, RoundRectDirectionOneRoundsOnlyTheLeftEnd)
{
    SkinWindow w(LR"(<Window size="100,20"><HorizontalLayout bkcolor="#FFFFFFFF">
        <Progress name="p" width="100" max="100" value="100" /></HorizontalLayout></Window>)");
    ASSERT_TRUE(Open(w));
    auto* p = Find<CProgressUI>(w.pm(), L"p");
    p->SetForeColor(0xFF000000);
    p->SetBorderRound(SIZE{10, 10});
    p->SetRoundRectDirection(1);
    Snapshot left(w.pm());
    EXPECT_EQ(left.Pixel(0, 0), 0xFFFFFFFFu);  // rounded away
    EXPECT_EQ(left.Pixel(99, 0), 0xFF000000u); // square corner
    EXPECT_EQ(left.Pixel(50, 10), 0xFF000000u);
    // A rounded corner is anti-aliased: a pixel on the arc is grey.
    const std::uint32_t edge = left.Pixel(1, 1);
    EXPECT_NE(edge, 0xFFFFFFFFu);
    EXPECT_NE(edge, 0xFF000000u);
    p->SetRoundRectDirection(0);
    Snapshot both(w.pm());
    EXPECT_EQ(both.Pixel(99, 0), 0xFFFFFFFFu);
    w.Close(0);
    Pump(10);
}

TEST_F(RenderTest, ButtonShowsHotAndPushedColours)
{
    SkinWindow w(LR"(<Window size="120,40"><HorizontalLayout bkcolor="#FFFFFFFF">
        <Button name="b" width="100" bkcolor="#FF0000FF" hotbkcolor="#FF00FF00" pushedbkcolor="#FFFF0000" />
        </HorizontalLayout></Window>)");
    ASSERT_TRUE(Open(w));
    EXPECT_EQ(Snapshot(w.pm()).Pixel(50, 20), 0xFF0000FFu);
    MoveMouse(w.GetHWND(), POINT{50, 20});
    EXPECT_EQ(Snapshot(w.pm()).Pixel(50, 20), 0xFF00FF00u);
    ::SendMessageW(w.GetHWND(), WM_LBUTTONDOWN, 0, MAKELPARAM(50, 20));
    EXPECT_EQ(Snapshot(w.pm()).Pixel(50, 20), 0xFFFF0000u);
    ::SendMessageW(w.GetHWND(), WM_LBUTTONUP, 0, MAKELPARAM(50, 20));
    MoveMouse(w.GetHWND(), POINT{110, 20});
    EXPECT_EQ(Snapshot(w.pm()).Pixel(50, 20), 0xFF0000FFu);
    w.Close(0);
    Pump(10);
}

TEST_F(RenderTest, SvgAndPngImagesAreDrawn)
{
    SkinWindow w(LR"(<Window size="100,50"><HorizontalLayout bkcolor="#FFFFFFFF">
        <Control name="svg" width="50" bkimage="Gallery/Toolkit/test_square.svg" />
        <Control name="png" width="50" bkimage="file='Gallery/Toolkit/test_square.png' dest='5,5,45,45'" />
        </HorizontalLayout></Window>)");
    ASSERT_TRUE(Open(w));
    Snapshot shot(w.pm());
    EXPECT_EQ(shot.Pixel(25, 25), 0xFF1E88E5u);
    EXPECT_EQ(shot.Pixel(75, 25), 0xFFE53935u);
    EXPECT_EQ(shot.Pixel(52, 2), 0xFFFFFFFFu); // outside dest
    w.Close(0);
    Pump(10);
}

TEST_F(RenderTest, WindowPaintGoesToTheOffscreenSurface)
{
    SkinWindow w(LR"(<Window size="80,40"><HorizontalLayout bkcolor="#FF112233" /></Window>)");
    ASSERT_TRUE(Open(w));
    Pump(20);
    ASSERT_NE(w.GetSurface(), nullptr);
    ASSERT_NE(w.GetSurface()->LastFrame(), nullptr);
    w.Close(0);
    Pump(10);
}

TEST_F(RenderTest, DpiScaleDoublesTheDeviceSize)
{
    CDPI::SetProcessDPI(192);
    SkinWindow w(LR"(<Window size="100,50"><HorizontalLayout bkcolor="#FFFFFFFF">
        <Control width="50" bkcolor="#FFFF0000" /></HorizontalLayout></Window>)");
    const bool opened = Open(w);
    CDPI::SetProcessDPI(96);
    ASSERT_TRUE(opened);
    RECT client{};
    ASSERT_TRUE(::GetClientRect(w.GetHWND(), &client));
    EXPECT_EQ(client.right, 200);
    EXPECT_EQ(client.bottom, 100);
    EXPECT_EQ(w.pm().GetDPIObj()->Scale(50), 100);
    Snapshot shot(w.pm());
    EXPECT_EQ(shot.width(), 200);
    EXPECT_EQ(shot.Pixel(95, 50), 0xFFFF0000u);
    EXPECT_EQ(shot.Pixel(105, 50), 0xFFFFFFFFu);
    w.Close(0);
    Pump(10);
}

namespace {

// A 16-unit square, red on its left half and blue on its right, as SVG and
// as a 16-pixel PNG, written for the test.
void WriteHalvesImages(const std::string& svgPath, const std::string& pngPath)
{
    std::ofstream(svgPath)
        << R"(<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16" viewBox="0 0 16 16">)"
        << R"(<rect width="8" height="16" fill="#FF0000"/>)"
        << R"(<rect x="8" width="8" height="16" fill="#0000FF"/></svg>)";
    cairo_surface_t* png = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 16, 16);
    cairo_t* cr = cairo_create(png);
    cairo_set_source_rgb(cr, 1, 0, 0);
    cairo_rectangle(cr, 0, 0, 8, 16);
    cairo_fill(cr);
    cairo_set_source_rgb(cr, 0, 0, 1);
    cairo_rectangle(cr, 8, 0, 8, 16);
    cairo_fill(cr);
    cairo_destroy(cr);
    cairo_surface_write_to_png(png, pngPath.c_str());
    cairo_surface_destroy(png);
}

// Pixels across the middle row of a 16-unit image drawn at (8, 8) that are
// neither the pure red nor the pure blue of its halves.
int MixedPixels(int dpi, const std::string& image, const std::string& pngName)
{
    CDPI::SetProcessDPI(dpi);
    SkinWindow w(L"<Window size=\"32,32\"><HorizontalLayout bkcolor=\"#FFFFFFFF\" inset=\"8,8,8,8\">"
                 L"<Control width=\"16\" height=\"16\" bkimage=\"" +
                 attr::Widen(image) + L"\" /></HorizontalLayout></Window>");
    const bool opened = Open(w);
    CDPI::SetProcessDPI(96);
    EXPECT_TRUE(opened);
    if (!opened)
        return -1;
    Snapshot shot(w.pm());
    EXPECT_TRUE(shot.WritePng(OutputPath(pngName)));
    const CDPI* scale = w.pm().GetDPIObj();
    const int y = scale->Scale(16);
    int mixed = 0;
    for (int x = scale->Scale(8); x < scale->Scale(24); ++x) {
        const std::uint32_t p = shot.Pixel(x, y) & 0xFFFFFF;
        mixed += (p != 0xFF0000 && p != 0x0000FF) ? 1 : 0;
    }
    w.Close(0);
    Pump(10);
    return mixed;
}

} // namespace

TEST_F(RenderTest, SvgImagesStaySharpAtOneAndAHalfAndTwo)
{
    const std::string svg = OutputPath("halves.svg");
    const std::string png = OutputPath("halves.png");
    WriteHalvesImages(svg, png);
    // The edge between the halves falls on a device pixel boundary at both
    // scales; drawn from the vector it stays a clean step.
    EXPECT_EQ(MixedPixels(144, svg, "svg_at_150.png"), 0);
    EXPECT_EQ(MixedPixels(192, svg, "svg_at_200.png"), 0);
    EXPECT_EQ(MixedPixels(96, svg, "svg_at_100.png"), 0);
    // The same picture from a 16-pixel bitmap is stretched and blurs there:
    // the probe tells the two apart.
    EXPECT_GT(MixedPixels(144, png, "png_at_150.png"), 0);
}
