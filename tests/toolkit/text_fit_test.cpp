// Text in labels with endellipsis, in Thai, Russian and Chinese, at 100 %,
// 150 % and 200 %: nothing of the glyphs is cut off at the top or bottom,
// a text too long ends in an ellipsis instead of a cut glyph, and nothing
// spills into the next control.

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "harness/ui_harness.h"

using namespace uitest;

namespace {

struct Script
{
    const char* name;
    const wchar_t* text;
};

// Long enough to need the ellipsis in a 160-unit label; the Thai line has
// marks above and below its letters.
const Script kScripts[] = {
    {"Thai", L"การจัดการพื้นที่จัดเก็บข้อมูลบนคลาวด์ของคุณทั้งหมด"},
    {"Russian", L"Управление облачным хранилищем и резервными копиями устройств"},
    {"Chinese", L"管理您的云空间、图库、云盘和所有设备的云备份数据"},
};

struct Case
{
    int dpi;
    int fontSize;
    int labelHeight;
    int script;
};

std::string CaseName(const testing::TestParamInfo<Case>& info)
{
    const Case& c = info.param;
    return std::string(kScripts[c.script].name) + "_dpi" + std::to_string(c.dpi) + "_font" +
           std::to_string(c.fontSize) + "_height" + std::to_string(c.labelHeight);
}

// A row like a list row: a name with endellipsis next to a size column.
std::wstring RowSkin(const Case& c, int nameHeight)
{
    return L"<Window size=\"300,120\"><Font id=\"0\" name=\"Noto Sans\" size=\"" +
           std::to_wstring(c.fontSize) +
           L"\" /><HorizontalLayout bkcolor=\"#FFFFFFFF\" childvalign=\"vcenter\">"
           L"<Label name=\"name\" width=\"160\" height=\"" +
           std::to_wstring(nameHeight) +
           L"\" font=\"0\" textcolor=\"#FF000000\" endellipsis=\"true\" />"
           L"<Label name=\"size\" width=\"80\" height=\"" +
           std::to_wstring(nameHeight) +
           L"\" font=\"0\" textcolor=\"#FF000000\" align=\"right\" />"
           L"</HorizontalLayout></Window>";
}

RECT DeviceRect(CPaintManagerUI& pm, const wchar_t* name)
{
    const RECT r = pm.FindControl(name)->GetPos();
    const CDPI* dpi = pm.GetDPIObj();
    return RECT{dpi->Scale(r.left), dpi->Scale(r.top), dpi->Scale(r.right), dpi->Scale(r.bottom)};
}

class TextFitTest : public ::testing::TestWithParam<Case>
{
protected:
    void SetUp() override { UseOffscreenToolkit(); }

    // Renders the row with the name label `height` units tall; returns the
    // dark pixels of the name, and fills the rest of what the test needs.
    struct Shot
    {
        int nameInk = 0;
        int sizeInk = 0;
        int lastColumnInk = 0;
        int outsideInk = 0;
    };

    Shot Render(int height, const std::string& png)
    {
        const Case& c = GetParam();
        CDPI::SetProcessDPI(c.dpi);
        SkinWindow w(RowSkin(c, height));
        const bool opened = Open(w);
        CDPI::SetProcessDPI(96);
        EXPECT_TRUE(opened);
        Shot shot;
        if (!opened)
            return shot;
        w.pm().FindControl(L"name")->SetText(kScripts[c.script].text);
        Snapshot snapshot(w.pm());
        if (!png.empty()) {
            EXPECT_TRUE(snapshot.WritePng(OutputPath(png)));
        }
        const RECT name = DeviceRect(w.pm(), L"name");
        const RECT size = DeviceRect(w.pm(), L"size");
        shot.nameInk = snapshot.CountDark(name, 160);
        shot.sizeInk = snapshot.CountDark(size, 160);
        shot.lastColumnInk = snapshot.CountDark(RECT{name.right - 1, name.top, name.right, name.bottom}, 160);
        shot.outsideInk = snapshot.CountDark(RECT{0, 0, snapshot.width(), name.top}, 160) +
                          snapshot.CountDark(RECT{0, name.bottom, snapshot.width(), snapshot.height()}, 160);
        w.Close(0);
        Pump(10);
        return shot;
    }
};

} // namespace

TEST_P(TextFitTest, EllipsisedLabelIsNeitherClippedNorSpillsOver)
{
    const Case& c = GetParam();
    // The same row with 40 units more room above and below the text: the
    // glyphs land on the same pixels, only shifted by whole pixels.
    const Shot roomy = Render(c.labelHeight + 40, "");
    const Shot tight = Render(c.labelHeight, "text_fit_" + CaseName({c, 0}) + ".png");
    ASSERT_GT(roomy.nameInk, 100);
    EXPECT_EQ(tight.nameInk, roomy.nameInk) << "glyphs cut at the top or bottom of the label";
    EXPECT_EQ(tight.lastColumnInk, 0) << "a glyph cut at the right edge instead of an ellipsis";
    EXPECT_EQ(tight.sizeInk, 0) << "the name runs into the next column";
    EXPECT_EQ(tight.outsideInk, 0);
}

INSTANTIATE_TEST_SUITE_P(ThreeScriptsThreeScales, TextFitTest, ::testing::ValuesIn([] {
                             std::vector<Case> cases;
                             for (int dpi : {96, 144, 192}) {
                                 for (int script = 0; script < 3; ++script) {
                                     // Heights a skin gives a line of each size;
                                     // 16 for size 12 leaves Thai little room.
                                     cases.push_back(Case{dpi, 12, 16, script});
                                     cases.push_back(Case{dpi, 14, 20, script});
                                     cases.push_back(Case{dpi, 16, 22, script});
                                 }
                             }
                             return cases;
                         }()),
                         CaseName);
