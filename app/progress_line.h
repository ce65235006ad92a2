// A one-line progress indicator on stderr for work that may take a while,
// redrawn four times a second from what a callback says, and erased when
// the work ends so that the report starts on a clean line. It draws only
// when stderr is a terminal; otherwise it does nothing at all.
#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

namespace app {

class ProgressLine
{
public:
    // `enabled` false (for --json, say) draws nothing even on a terminal.
    ProgressLine(bool enabled, std::function<std::string()> describe);
    // Erases the line; the same as Stop.
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    // Ends the drawing thread and erases the line. Later calls do nothing.
    void Stop();

private:
    void Run();

    std::function<std::string()> describe_;
    std::mutex mutex_;
    std::condition_variable wake_;
    bool stopping_ = false;
    bool drawn_ = false;
    std::thread thread_;
};

// Whether the progress line would draw on this process's stderr.
bool StderrIsTerminal();

} // namespace app
