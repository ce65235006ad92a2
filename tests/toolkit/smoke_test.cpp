// The gallery in a real SDL2 window under Xvfb: a button is clicked with
// xdotool, keys are typed, the window's live control dump is read and
// screenshots are taken. Skipped where xvfb-run or xdotool is missing.

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "harness/screen_capture.h"
#include "harness/ui_harness.h"

namespace {

using uitest::ReadXwd;
using uitest::Screen;
using uitest::WritePng;

bool OnPath(const std::string& tool)
{
    return std::system(("command -v " + tool + " >/dev/null 2>&1").c_str()) == 0;
}

std::string ReadFile(const std::string& path)
{
    std::ifstream in(path);
    std::stringstream content;
    content << in.rdbuf();
    return content.str();
}

// The screen position printed by the gallery for a control.
bool ControlPosition(const std::string& output, const std::string& name, int& x, int& y)
{
    const std::string key = "gallery: control " + name + " ";
    const auto at = output.find(key);
    if (at == std::string::npos)
        return false;
    std::istringstream in(output.substr(at + key.size()));
    return static_cast<bool>(in >> x >> y);
}

#ifdef TOOLKIT_GALLERY_PATH
// A shell script that starts the gallery in an SDL2 window keeping its
// control dump in `dump`, waits until it is ready and its first frame is
// painted (the dump exists), clicks btn_primary with xdotool, runs `steps`
// and waits for the gallery to end.
std::string GallerySession(const std::string& log, const std::string& dump, const std::string& steps)
{
    const std::string fileReady = " && [ -f '" + dump + "' ]";
    return "set -u\n"
           "SPACEMGM_TOOLKIT_BACKEND=sdl '" TOOLKIT_GALLERY_PATH "' --root '" SPACEMGM_SOURCE_DIR
           "' --dump-controls '" +
           dump + "' > '" + log +
           "' 2>&1 &\n"
           "pid=$!\n"
           "for i in $(seq 1 100); do grep -q 'gallery: control btn_primary' '" +
           log + "'" + fileReady +
           " && break; sleep 0.1; done\n"
           "sleep 0.5\n"
           "set -- $(grep 'gallery: control btn_primary' '" +
           log +
           "' | head -1)\n"
           "xdotool mousemove \"$4\" \"$5\" click 1\n" +
           steps +
           "for i in $(seq 1 50); do kill -0 $pid 2>/dev/null || break; sleep 0.1; done\n"
           "kill $pid 2>/dev/null\n"
           "wait $pid\n";
}
#endif

// Runs a shell script under a fresh Xvfb screen; its exit status.
int RunUnderXvfb(const std::string& script)
{
    return std::system(("xvfb-run -a -s '-screen 0 1280x800x24' sh '" + script + "'").c_str());
}

} // namespace

TEST(GallerySmoke, ButtonClickedWithXdotoolInARealWindow)
{
#ifndef TOOLKIT_GALLERY_PATH
    GTEST_SKIP() << "toolkit-gallery is not built";
#else
    if (!OnPath("xvfb-run"))
        GTEST_SKIP() << "xvfb-run is not installed; the smoke test needs it";
    if (!OnPath("xdotool"))
        GTEST_SKIP() << "xdotool is not installed; the smoke test needs it";
    const std::filesystem::path dir = std::filesystem::path(SPACEMGM_BINARY_DIR) / "test-output" / "toolkit";
    std::filesystem::create_directories(dir);
    const std::string log = (dir / "smoke_gallery.log").string();
    const std::string shot = (dir / "smoke_gallery.png").string();
    const std::string dump = (dir / "smoke_gallery.xwd").string();
    const std::string controls = (dir / "smoke_gallery.json").string();
    const std::string script = (dir / "smoke_gallery.sh").string();
    for (const auto& file : {log, shot, dump, controls})
        std::filesystem::remove(file);
    std::ofstream(script) << GallerySession(
        log, controls,
        "for i in $(seq 1 50); do grep -q 'gallery: click btn_primary' '" + log +
            "' && break; sleep 0.1; done\n"
            "sleep 0.3\n"
            "xwd -root -silent > '" +
            dump +
            "'\n"
            "set -- $(grep 'gallery: control btn_close' '" +
            log +
            "' | head -1)\n"
            "xdotool mousemove \"$4\" \"$5\" click 1\n");
    const int status = RunUnderXvfb(script);
    const std::string output = ReadFile(log);
    EXPECT_EQ(status, 0) << output;
    EXPECT_NE(output.find("gallery: ready"), std::string::npos) << output;
    EXPECT_NE(output.find("gallery: click btn_primary"), std::string::npos) << output;
    EXPECT_NE(output.find("gallery: click btn_close"), std::string::npos) << output;
    EXPECT_NE(output.find("gallery: closed 1"), std::string::npos) << output;
    Screen screen;
    ASSERT_TRUE(ReadXwd(dump, screen)) << "no screenshot at " << dump;
    ASSERT_TRUE(WritePng(screen, shot));
    // The pointer rests on the clicked button, so it shows its hot colour;
    // its left edge keeps the blue of the button.
    int x = 0;
    int y = 0;
    ASSERT_TRUE(ControlPosition(output, "btn_primary", x, y));
    ASSERT_LT(x + 60, screen.width);
    const std::uint32_t edge = screen.At(x - 60, y);
    EXPECT_TRUE(edge == 0x2B6FF8u || edge == 0x0A59F7u) << std::hex << edge;
    // The window's background is painted around it.
    EXPECT_EQ(screen.At(x, y - 40), 0xFFFFFFu) << std::hex << screen.At(x, y - 40);
#endif
}

TEST(GallerySmoke, TabShowsTheFocusRingEscapeClosesAndTheDumpFollowsTheWindow)
{
#ifndef TOOLKIT_GALLERY_PATH
    GTEST_SKIP() << "toolkit-gallery is not built";
#else
    if (!OnPath("xvfb-run") || !OnPath("xdotool") || !OnPath("xwd"))
        GTEST_SKIP() << "xvfb-run, xdotool and xwd are needed for the smoke test";
    const std::filesystem::path dir = std::filesystem::path(SPACEMGM_BINARY_DIR) / "test-output" / "toolkit";
    std::filesystem::create_directories(dir);
    const std::string log = (dir / "smoke_keys.log").string();
    const std::string dump = (dir / "smoke_keys.json").string();
    const std::string afterClick = (dir / "smoke_keys_after_click.json").string();
    const std::string xwd = (dir / "smoke_keys.xwd").string();
    const std::string script = (dir / "smoke_keys.sh").string();
    for (const auto& file : {log, dump, afterClick, xwd})
        std::filesystem::remove(file);
    // The click moves the progress bar from 64 to 76: the dump must say so.
    std::ofstream(script) << GallerySession(
        log, dump,
        "for i in $(seq 1 50); do grep -q '\"name\": \"progress\".*\"value\": 76' '" + dump +
            "' && break; sleep 0.1; done\n"
            "cp '" +
            dump + "' '" + afterClick +
            "'\n"
            "xdotool key Tab\n"
            "sleep 0.5\n"
            "xwd -root -silent > '" +
            xwd +
            "'\n"
            "xdotool key Escape\n");
    const int status = RunUnderXvfb(script);
    const std::string output = ReadFile(log);
    EXPECT_EQ(status, 0) << output;
    // Escape pressed the close button, which closes the gallery with 1.
    EXPECT_NE(output.find("gallery: click btn_close"), std::string::npos) << output;
    EXPECT_NE(output.find("gallery: closed 1"), std::string::npos) << output;

    Json::Value clicked;
    ASSERT_TRUE(uitest::ParseControlDump(ReadFile(afterClick), clicked)) << "no dump at " << afterClick;
    EXPECT_EQ(clicked["window"].asString(), "ToolkitGallery");
    const Json::Value* progress = uitest::FindInControlDump(clicked["controls"], "progress");
    ASSERT_NE(progress, nullptr);
    EXPECT_EQ((*progress)["value"].asInt(), 76);
    const Json::Value* statusLabel = uitest::FindInControlDump(clicked["controls"], "status");
    ASSERT_NE(statusLabel, nullptr);
    EXPECT_EQ((*statusLabel)["text"].asString(), "Clicked: Primary");

    // After Tab the focus ring, in the default focus colour, is on the next
    // button: on its edge, not inside it.
    const Json::Value* secondary = uitest::FindInControlDump(clicked["controls"], "btn_secondary");
    ASSERT_NE(secondary, nullptr);
    long left = 0;
    long top = 0;
    std::istringstream ready(output.substr(output.find("gallery: ready ") + 15));
    ASSERT_TRUE(ready >> left >> top);
    Screen screen;
    ASSERT_TRUE(ReadXwd(xwd, screen)) << "no screenshot at " << xwd;
    ASSERT_TRUE(WritePng(screen, (dir / "smoke_keys.png").string()));
    const int x = static_cast<int>(left) + (*secondary)["x"].asInt();
    const int y = static_cast<int>(top) + (*secondary)["y"].asInt() + (*secondary)["height"].asInt() / 2;
    ASSERT_LT(x + 6, screen.width);
    EXPECT_EQ(screen.At(x, y), 0x0A59F7u) << std::hex << screen.At(x, y);
    EXPECT_EQ(screen.At(x + 1, y), 0x0A59F7u) << std::hex << screen.At(x + 1, y);
    EXPECT_EQ(screen.At(x + 5, y), 0xE9EBEFu) << std::hex << screen.At(x + 5, y);
#endif
}
