// The gallery in a real SDL2 window under Xvfb: a button is clicked with
// xdotool and a screenshot is taken. Skipped where xvfb-run is missing.

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace {

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

}  // namespace

TEST(GallerySmoke, ButtonClickedWithXdotoolInARealWindow)
{
#ifndef TOOLKIT_GALLERY_PATH
    GTEST_SKIP() << "toolkit-gallery is not built";
#else
    if (!OnPath("xvfb-run")) GTEST_SKIP() << "xvfb-run is not installed; the smoke test needs it";
    if (!OnPath("xdotool")) GTEST_SKIP() << "xdotool is not installed; the smoke test needs it";
    const std::filesystem::path dir = std::filesystem::path(SPACEMGM_BINARY_DIR) / "test-output" / "toolkit";
    std::filesystem::create_directories(dir);
    const std::string log = (dir / "smoke_gallery.log").string();
    const std::string shot = (dir / "smoke_gallery.png").string();
    const std::string script = (dir / "smoke_gallery.sh").string();
    std::filesystem::remove(log);
    std::filesystem::remove(shot);
    {
        std::ofstream out(script);
        out << "set -u\n"
            << "SPACEMGM_TOOLKIT_BACKEND=sdl '" << TOOLKIT_GALLERY_PATH << "' --root '" << SPACEMGM_SOURCE_DIR
            << "' > '" << log << "' 2>&1 &\n"
            << "pid=$!\n"
            << "for i in $(seq 1 100); do grep -q 'gallery: control btn_primary' '" << log
            << "' && break; sleep 0.1; done\n"
            << "sleep 0.5\n"
            << "set -- $(grep 'gallery: control btn_primary' '" << log << "' | head -1)\n"
            << "xdotool mousemove \"$4\" \"$5\" click 1\n"
            << "for i in $(seq 1 50); do grep -q 'gallery: click btn_primary' '" << log
            << "' && break; sleep 0.1; done\n"
            << "sleep 0.3\n"
            << "if command -v import >/dev/null; then import -window root '" << shot << "';\n"
            << "else xwd -root -silent | convert xwd:- '" << shot << "'; fi\n"
            << "set -- $(grep 'gallery: control btn_close' '" << log << "' | head -1)\n"
            << "xdotool mousemove \"$4\" \"$5\" click 1\n"
            << "for i in $(seq 1 50); do kill -0 $pid 2>/dev/null || break; sleep 0.1; done\n"
            << "kill $pid 2>/dev/null\n"
            << "wait $pid\n";
    }
    const std::string command = "xvfb-run -a -s '-screen 0 1280x800x24' sh '" + script + "'";
    const int status = std::system(command.c_str());
    const std::string output = ReadFile(log);
    EXPECT_EQ(status, 0) << output;
    EXPECT_NE(output.find("gallery: ready"), std::string::npos) << output;
    EXPECT_NE(output.find("gallery: click btn_primary"), std::string::npos) << output;
    EXPECT_NE(output.find("gallery: click btn_close"), std::string::npos) << output;
    EXPECT_NE(output.find("gallery: closed 1"), std::string::npos) << output;
    ASSERT_TRUE(std::filesystem::exists(shot));
    EXPECT_GT(std::filesystem::file_size(shot), 10000u);
#endif
}
