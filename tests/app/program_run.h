#pragma once
// Runs the `spacemgm` program as a child process for a test: stdout and
// stderr kept apart, or stderr on a pseudo-terminal, as a person would see
// it.
#include <map>
#include <string>
#include <vector>

#include "utilities/text_lines.h"

namespace app_test {

using ::Lines;

struct ProgramRun
{
    int exitCode = -1; // -1 when it did not exit normally
    int signal = 0;    // the signal that ended it, if one did
    std::string out;
    std::string err;
    double seconds = 0;
};

struct ProgramOptions
{
    std::vector<std::string> arguments;
    // Set on top of the test's own environment; an empty value unsets.
    std::map<std::string, std::string> environment;
    // Gives the program a pseudo-terminal as stderr (stdout stays a pipe).
    bool stderrOnTerminal = false;
    int timeoutSeconds = 60;
};

ProgramRun RunProgram(const ProgramOptions& options);

} // namespace app_test
