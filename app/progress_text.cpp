#include "app/progress_text.h"

#include <algorithm>
#include <chrono>

#include "app/display_text.h"
#include "app/failure_lines.h"

namespace app {
namespace {

constexpr int kCategories = 12;

std::string Waiting(const ExchangeLog& log)
{
    const auto longest = log.Longest();
    if (!longest) {
        return std::string();
    }
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(longest->running).count();
    std::string text =
        "; waiting " + std::to_string(seconds) + " s for " + ServiceDisplayName(longest->service);
    if (!longest->path.empty()) {
        text += " " + EscapeForTerminal(longest->path);
    }
    return text;
}

} // namespace

std::string LoadProgressText(const ExchangeLog& log, int threadsBefore)
{
    const int answered = std::clamp(log.ThreadsEnded() - threadsBefore, 0, kCategories);
    return "Loading: " + std::to_string(answered) + " of " + std::to_string(kCategories) +
           " categories answered" + Waiting(log);
}

std::string DeleteProgressText(const ExchangeLog& log)
{
    return "Deleting" + Waiting(log);
}

} // namespace app
