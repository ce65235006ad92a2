#pragma once
// `spacemgm window` in a real SDL2 window on a fresh Xvfb screen, driven
// with xdotool and read through its live control dump and `xwd`.
//
// xvfb-run runs a small script that starts the program, notes the display
// and the program's pid, and notes its exit status when it ends; the test
// acts on the display from outside between reads of the dump.
#include <functional>
#include <string>

#include <json/json.h>

#include "cloud_emulator.h"
#include "harness/screen_capture.h"

namespace app_window_test {

class RealWindow
{
public:
    // Starts the program against `cloud` in folder `name` of the test output.
    RealWindow(const spacemgm_test::CloudEmulator& cloud, const std::string& name);
    // Ends the program if it still runs, then lets Xvfb end.
    ~RealWindow();
    RealWindow(const RealWindow&) = delete;
    RealWindow& operator=(const RealWindow&) = delete;

    // The display is up and the window has been mapped; false after 30 s.
    bool WaitForWindow();
    // Waits until the dump satisfies `done` (checked every 100 ms); the last
    // dump read, null after `timeoutMs`.
    Json::Value WaitForDump(const std::function<bool(const Json::Value&)>& done, int timeoutMs = 30000);
    // Waits until two reads of the dump 600 ms apart are the same.
    Json::Value WaitUntilStill(int timeoutMs = 30000);
    // Clicks at the centre of a control of the dump.
    bool Click(const Json::Value& control);
    // Also reads where the window is, for left() and top().
    bool Capture(uitest::Screen& screen, const std::string& pngName);
    // Waits for the program to end; its stdout, or "" after `timeoutMs`.
    std::string WaitForExit(int timeoutMs = 15000);

    int left() const { return left_; }
    int top() const { return top_; }
    std::string Folder() const { return folder_; }

private:
    int Run(const std::string& command) const;
    // The window's position on the screen now.
    bool ReadGeometry();

    std::string folder_;
    std::string display_;
    std::string pid_;
    std::string windowId_;
    int left_ = 0;
    int top_ = 0;
};

bool ToolsForRealWindows();

} // namespace app_window_test
