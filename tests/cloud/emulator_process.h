#pragma once
// spacemgm-cloud as a plain child process, for tests of its command line:
// any arguments, any working folder, stdout and stderr read together, and
// a deadline on every wait so that an emulator that keeps serving where it
// should have refused fails the test instead of hanging it.
#include <string>
#include <sys/types.h>
#include <vector>

namespace spacemgm_test {

class EmulatorProcess
{
public:
    // Starts the emulator with `args` (without the program) in `workingDir`
    // (empty: this process's folder).
    explicit EmulatorProcess(const std::vector<std::string>& args, const std::string& workingDir = "");
    ~EmulatorProcess();
    EmulatorProcess(const EmulatorProcess&) = delete;
    EmulatorProcess& operator=(const EmulatorProcess&) = delete;

    // Reads output until a line equal to `line` has come, or the process has
    // ended, or `seconds` have passed; true when the line came.
    bool WaitForLine(const std::string& line, int seconds = 10);
    // Waits for the process to end by itself, at most `seconds` (then kills
    // it). The exit status, or -1 when it was killed or ended by a signal.
    int WaitForExit(int seconds = 10);
    // SIGTERM, then WaitForExit.
    int Stop();
    const std::string& Output() const { return output_; }

private:
    // Reads what has come within `timeoutMs`; false at the end of the output.
    bool ReadSome(int timeoutMs);
    void Drain();
    int Reap(int seconds);

    pid_t pid_ = -1;
    int outputFd_ = -1;
    std::string output_;
};

// Runs the emulator to its end (at most `seconds`) and returns its exit
// status, with its output in `output`.
int RunEmulatorToEnd(const std::vector<std::string>& args, std::string& output, int seconds = 20);

} // namespace spacemgm_test
