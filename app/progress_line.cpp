#include "app/progress_line.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <utility>

namespace app {
namespace {

constexpr auto kRedrawEvery = std::chrono::milliseconds(250);
// "\r" returns to the start of the line; "\x1B[K" erases to its end.
constexpr const char* kEraseLine = "\r\x1B[K";

size_t TerminalColumns()
{
    winsize size{};
    if (ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0) {
        return size.ws_col;
    }
    return 80;
}

// Cuts the text to the terminal's width, so that it never wraps onto a
// second line that "\r" could not reach back to. The cut is counted in
// characters, not bytes, and leaves a character's bytes whole.
std::string FitToWidth(const std::string& text, size_t columns)
{
    const size_t limit = columns > 1 ? columns - 1 : 1;
    size_t characters = 0;
    for (size_t at = 0; at < text.size(); ++at) {
        const bool startsCharacter = (static_cast<unsigned char>(text[at]) & 0xC0) != 0x80;
        if (startsCharacter && ++characters > limit) {
            return text.substr(0, at);
        }
    }
    return text;
}

} // namespace

bool StderrIsTerminal()
{
    return isatty(STDERR_FILENO) == 1;
}

ProgressLine::ProgressLine(bool enabled, std::function<std::string()> describe)
    : describe_(std::move(describe))
{
    if (enabled && StderrIsTerminal()) {
        thread_ = std::thread([this] { Run(); });
    }
}

ProgressLine::~ProgressLine()
{
    Stop();
}

void ProgressLine::Stop()
{
    {
        std::lock_guard<std::mutex> lock(mutex_);
        stopping_ = true;
    }
    wake_.notify_all();
    if (thread_.joinable()) {
        thread_.join();
    }
    if (drawn_) {
        std::fputs(kEraseLine, stderr);
        std::fflush(stderr);
        drawn_ = false;
    }
}

void ProgressLine::Run()
{
    std::unique_lock<std::mutex> lock(mutex_);
    // The first drawing waits one interval: work that ends quickly shows
    // nothing at all.
    while (!wake_.wait_for(lock, kRedrawEvery, [this] { return stopping_; })) {
        const std::string line = FitToWidth(describe_(), TerminalColumns());
        std::fputs(kEraseLine, stderr);
        std::fputs(line.c_str(), stderr);
        std::fflush(stderr);
        drawn_ = true;
    }
}

} // namespace app
