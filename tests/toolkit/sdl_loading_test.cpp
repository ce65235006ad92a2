// SDL2 is mapped only when a window goes to an SDL surface: an offscreen
// window's process never loads it, asking for the table loads it, and a
// real window whose SDL2 cannot be loaded is refused with the reason.
// Every TEST runs in its own process, so each starts with nothing loaded.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "harness/ui_harness.h"
#include "toolkit/window/native_surface.h"
#include "toolkit/window/sdl_library.h"

using namespace uitest;

namespace {

std::string ReadWhole(const std::string& path)
{
    std::ifstream in(path);
    std::stringstream content;
    content << in.rdbuf();
    return content.str();
}

std::string MappedFiles()
{
    return ReadWhole("/proc/self/maps");
}

bool Sdl2Mapped()
{
    return MappedFiles().find("libSDL2") != std::string::npos;
}

constexpr const wchar_t* kLabelSkin = LR"(<Window size="200,80">
  <VerticalLayout bkcolor="#FFFFFFFF">
    <Label name="hello" text="Hello" textcolor="#FF000000" />
  </VerticalLayout></Window>)";

} // namespace

TEST(SdlLoadingTest, OffscreenWindowPaintsWithoutMappingSdl2)
{
    UseOffscreenToolkit();
    SkinWindow window(kLabelSkin);
    ASSERT_TRUE(Open(window));
    ASSERT_TRUE(PumpUntil([&window] { return window.GetSurface()->LastFrame() != nullptr; }));

    const std::string maps = MappedFiles();
    // The libraries the painting did use are listed, so the file was read.
    EXPECT_NE(maps.find("libcairo"), std::string::npos);
    EXPECT_EQ(maps.find("libSDL2"), std::string::npos);
    ::DestroyWindow(window.GetHWND());
}

TEST(SdlLoadingTest, AskingForTheTableLoadsSdl2AndFillsEveryFunction)
{
    ASSERT_FALSE(Sdl2Mapped());
    std::string error;
    const SdlFunctions* sdl = LoadSdl(&error);
    ASSERT_NE(sdl, nullptr) << error;
    EXPECT_TRUE(error.empty());
    EXPECT_TRUE(Sdl2Mapped());
#define EXPECT_RESOLVED(name) EXPECT_NE(sdl->name, nullptr) << #name;
    DUILIB_SDL_FUNCTIONS(EXPECT_RESOLVED)
#undef EXPECT_RESOLVED
    // A second caller gets the same table.
    EXPECT_EQ(LoadSdl(), sdl);
}

TEST(SdlLoadingTest, MissingLibraryErrorNamesItAndTheLoaderReason)
{
    const char* name = "libspacemgm-no-such-library.so.0";
    SdlLibrary library(name);
    EXPECT_EQ(library.Functions(), nullptr);
    const std::string& error = library.Error();
    EXPECT_EQ(error.rfind(std::string("cannot load ") + name + ": ", 0), 0u) << error;
    EXPECT_NE(error.find("No such file"), std::string::npos) << error;
}

TEST(SdlLoadingTest, LibraryWithoutSdlFunctionsIsRefusedNamingTheMissingFunction)
{
    // The C library loads but has none of SDL's functions.
    SdlLibrary library("libc.so.6");
    EXPECT_EQ(library.Functions(), nullptr);
    const std::string& error = library.Error();
    EXPECT_EQ(error.rfind("cannot load libc.so.6: ", 0), 0u) << error;
    EXPECT_NE(error.find("SDL_SetHint"), std::string::npos) << error;
}

#ifdef TOOLKIT_GALLERY_PATH
TEST(SdlLoadingTest, RealWindowWithUnloadableSdl2IsRefusedWithExitCode2)
{
    // An empty file found first on the library path stands for a broken
    // SDL2; the loader stops at it.
    const std::filesystem::path dir =
        std::filesystem::temp_directory_path() / ("spacemgm-sdl-loading-" + std::to_string(::getpid()));
    std::filesystem::create_directories(dir);
    std::ofstream(dir / kSdlLibraryName).close();
    const std::filesystem::path errors = dir / "stderr.txt";
    const std::string command = "SPACEMGM_TOOLKIT_BACKEND=sdl DISPLAY=:0 LD_LIBRARY_PATH=" + dir.string() +
                                " " TOOLKIT_GALLERY_PATH " >/dev/null 2>" + errors.string();
    const int status = std::system(command.c_str());
    const std::string text = ReadWhole(errors.string());
    std::filesystem::remove_all(dir);

    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 2) << text;
    EXPECT_NE(text.find(std::string("cannot open a window: cannot load ") + kSdlLibraryName + ": "),
              std::string::npos)
        << text;
    EXPECT_NE(text.find("file too short"), std::string::npos) << text;
}
#endif
