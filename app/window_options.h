// The command line of `spacemgm window` (and of `spacemgm` with no
// subcommand):
//
//   spacemgm [window] [--png FILE] [--dump-controls FILE] [--lang L] [--scale S]
//                     [--select TYPE] [--timeout SECONDS] [--res DIR] [--config FILE]
//
// Parsing and checking stand apart from the window so that every refusal can
// be tested without one; each refusal is one line for stderr.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "space_data/cloud_space_types.h"

namespace app {

// Exit codes of `spacemgm window`.
constexpr int kWindowExitDone = 0;
constexpr int kWindowExitCannotWrite = 1;
constexpr int kWindowExitBadInput = 2;
constexpr int kWindowExitTimeout = 3;

struct WindowOptions
{
    std::string png;      // empty: a real window
    std::string dump;     // the control dump, kept while the window is open
    std::string language; // empty: the host configuration's
    double scale = 1.0;
    std::optional<CloudSpaceType> select;
    int timeoutSeconds = 30;
    std::string resourceRoot; // the folder holding Res/
    std::optional<std::string> configPath;
};

// Reads `words` (the arguments after the program name, "window" left out).
// Returns an error line on a bad or unknown option; `options` starts with
// the defaults, `resourceRoot` included.
std::optional<std::string> ParseWindowOptions(const std::vector<std::string>& words, WindowOptions& options);

// A CloudSpaceType number or its enumerator name ("Gallery", "Phone").
std::optional<CloudSpaceType> ParseCategory(const std::string& text);
// A scale from 1 to 4 ("1.5"); a timeout of 1 to 3600 whole seconds. Text
// after the number refuses it.
std::optional<double> ParseScale(const std::string& text);
std::optional<int> ParseTimeout(const std::string& text);

// The languages under `<resourceRoot>/Res/lang/`, sorted.
std::vector<std::string> AvailableLanguages(const std::string& resourceRoot);
// An error text when `language` has no file there, listing those there are.
std::optional<std::string> CheckLanguageChoice(const std::string& resourceRoot, const std::string& language);

// Whether the option takes a value (the main program skips values when it
// looks for the subcommand).
bool WindowOptionTakesValue(const std::string& option);

} // namespace app
