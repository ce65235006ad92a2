#include "real_window.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

#include <unistd.h>

#include "program_run.h"

namespace app_window_test {

namespace {

void Sleep(int ms)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(ms));
}

std::string Trimmed(std::string text)
{
    while (!text.empty() && (text.back() == '\n' || text.back() == ' '))
        text.pop_back();
    return text;
}

} // namespace

bool ToolsForRealWindows()
{
    return std::system("command -v xvfb-run >/dev/null && command -v xdotool >/dev/null && "
                       "command -v xwd >/dev/null") == 0;
}

RealWindow::RealWindow(const spacemgm_test::CloudEmulator& cloud, const std::string& name)
    : folder_(OutputFolder("smoke/" + name))
{
    for (const char* file : {"display", "pid", "status", "out", "err", "dump.json", "quit"})
        std::filesystem::remove(folder_ + "/" + file);
    const std::string script = folder_ + "/run.sh";
    std::ofstream(script) << "echo \"DISPLAY=$DISPLAY XAUTHORITY=$XAUTHORITY\" > '" << folder_
                          << "/display.part'\n"
                          << "mv '" << folder_ << "/display.part' '" << folder_ << "/display'\n"
                          << "XDG_DATA_HOME='" << cloud.WorkDir() << "/data' SPACEMGM_TOOLKIT_BACKEND=sdl '"
                          << SPACEMGM_PROGRAM_PATH << "' --config '" << cloud.ConfigPath()
                          << "' --dump-controls '" << folder_ << "/dump.json' > '" << folder_ << "/out' 2> '"
                          << folder_ << "/err' &\n"
                          << "echo $! > '" << folder_ << "/pid'\n"
                          << "wait $!\n"
                          << "echo $? > '" << folder_
                          << "/status'\n"
                          // The screen outlives the program until the test is done with
                          // it, so that the click that ends the program ends cleanly.
                          << "for i in $(seq 1 600); do [ -f '" << folder_
                          << "/quit' ] && break; sleep 0.1; done\n";
    // Each test process starts its search for a free display elsewhere, so
    // that tests run side by side do not race for the same one.
    const std::string firstDisplay = std::to_string(100 + ::getpid() % 800);
    std::system(("xvfb-run -a -n " + firstDisplay + " -s '-screen 0 1280x800x24' sh '" + script +
                 "' >/dev/null 2>&1 &")
                    .c_str());
}

RealWindow::~RealWindow()
{
    if (!pid_.empty() && !std::filesystem::exists(folder_ + "/status"))
        std::system(("kill " + pid_ + " 2>/dev/null").c_str());
    WaitForExit(10000);
    std::ofstream(folder_ + "/quit") << "done\n";
}

int RealWindow::Run(const std::string& command) const
{
    return std::system((display_ + " " + command).c_str());
}

bool RealWindow::WaitForWindow()
{
    for (int i = 0; i < 300 && (display_.empty() || pid_.empty()); ++i) {
        display_ = Trimmed(ReadWhole(folder_ + "/display"));
        pid_ = Trimmed(ReadWhole(folder_ + "/pid"));
        if (display_.empty() || pid_.empty())
            Sleep(100);
    }
    if (display_.empty() || pid_.empty())
        return false;
    const std::string found = folder_ + "/window-id";
    if (Run("timeout 30 xdotool search --sync --limit 1 --pid " + pid_ + " --name SpaceMgmWnd > '" + found +
            "'") != 0)
        return false;
    windowId_ = Trimmed(ReadWhole(found));
    return !windowId_.empty() && ReadGeometry();
}

bool RealWindow::ReadGeometry()
{
    const std::string geometry = folder_ + "/geometry";
    if (Run("xdotool getwindowgeometry --shell " + windowId_ + " > '" + geometry + "'") != 0)
        return false;
    std::istringstream lines(ReadWhole(geometry));
    std::string line;
    while (std::getline(lines, line)) {
        if (line.rfind("X=", 0) == 0)
            left_ = std::atoi(line.c_str() + 2);
        if (line.rfind("Y=", 0) == 0)
            top_ = std::atoi(line.c_str() + 2);
    }
    return true;
}

Json::Value RealWindow::WaitForDump(const std::function<bool(const Json::Value&)>& done, int timeoutMs)
{
    for (int waited = 0; waited < timeoutMs; waited += 100) {
        const Json::Value dump = ReadDump(folder_ + "/dump.json");
        if (dump.isObject() && done(dump))
            return dump;
        Sleep(100);
    }
    return Json::Value();
}

Json::Value RealWindow::WaitUntilStill(int timeoutMs)
{
    std::string last = ReadWhole(folder_ + "/dump.json");
    for (int waited = 0; waited < timeoutMs; waited += 600) {
        Sleep(600);
        const std::string now = ReadWhole(folder_ + "/dump.json");
        if (!now.empty() && now == last)
            return ReadDump(folder_ + "/dump.json");
        last = now;
    }
    return Json::Value();
}

bool RealWindow::Click(const Json::Value& control)
{
    // The window centres itself again when a load starts: where it is now.
    if (!ReadGeometry())
        return false;
    const int x = left_ + control["x"].asInt() + control["width"].asInt() / 2;
    const int y = top_ + control["y"].asInt() + control["height"].asInt() / 2;
    // The pointer enters the window before the button goes down: a press
    // that arrives with the pointer's first entry can be lost.
    return Run("xdotool mousemove " + std::to_string(x) + " " + std::to_string(y) + " sleep 0.3 click 1") ==
           0;
}

bool RealWindow::Capture(uitest::Screen& screen, const std::string& pngName)
{
    const std::string xwd = folder_ + "/screen.xwd";
    std::filesystem::remove(xwd);
    if (!ReadGeometry() || Run("xwd -root -silent > '" + xwd + "'") != 0 || !uitest::ReadXwd(xwd, screen))
        return false;
    uitest::WritePng(screen, folder_ + "/" + pngName);
    return true;
}

std::string RealWindow::WaitForExit(int timeoutMs)
{
    for (int waited = 0; waited < timeoutMs; waited += 100) {
        if (std::filesystem::exists(folder_ + "/status"))
            return ReadWhole(folder_ + "/out");
        Sleep(100);
    }
    return "";
}

} // namespace app_window_test
