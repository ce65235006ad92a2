#include "program_run.h"

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <sstream>
#include <stdexcept>

namespace app_test {
namespace {

struct Pipe
{
    int read = -1;
    int write = -1;
};

Pipe MakePipe()
{
    int fds[2];
    if (pipe2(fds, O_CLOEXEC) != 0) {
        throw std::runtime_error("pipe failed");
    }
    return {fds[0], fds[1]};
}

// For the child: sets up the environment and descriptors, then execs.
[[noreturn]] void ExecChild(const ProgramOptions& options, int outFd, int errFd)
{
    for (const auto& [name, value] : options.environment) {
        if (value.empty()) {
            unsetenv(name.c_str());
        } else {
            setenv(name.c_str(), value.c_str(), 1);
        }
    }
    dup2(outFd, STDOUT_FILENO);
    dup2(errFd, STDERR_FILENO);
    const int devNull = open("/dev/null", O_RDONLY);
    dup2(devNull, STDIN_FILENO);
    const std::string program = SPACEMGM_BINARY_DIR "/bin/spacemgm";
    std::vector<char*> argv;
    argv.push_back(const_cast<char*>(program.c_str()));
    for (const std::string& argument : options.arguments) {
        argv.push_back(const_cast<char*>(argument.c_str()));
    }
    argv.push_back(nullptr);
    execv(program.c_str(), argv.data());
    _exit(127);
}

// Reads both descriptors until both are closed (a terminal reports EIO once
// the child is gone) or the time is up.
// Returns false when the time ran out first.
bool Drain(int outFd, int errFd, ProgramRun& run, std::chrono::steady_clock::time_point deadline)
{
    pollfd fds[2] = {{outFd, POLLIN, 0}, {errFd, POLLIN, 0}};
    std::string* targets[2] = {&run.out, &run.err};
    int open = 2;
    while (open > 0 && std::chrono::steady_clock::now() < deadline) {
        if (poll(fds, 2, 100) <= 0) {
            continue;
        }
        for (int i = 0; i < 2; ++i) {
            if (fds[i].fd < 0 || fds[i].revents == 0) {
                continue;
            }
            char buffer[4096];
            const ssize_t got = read(fds[i].fd, buffer, sizeof buffer);
            if (got > 0) {
                targets[i]->append(buffer, static_cast<size_t>(got));
            } else {
                fds[i].fd = -1;
                --open;
            }
        }
    }
    return open == 0;
}

} // namespace

ProgramRun RunProgram(const ProgramOptions& options)
{
    ProgramRun run;
    const Pipe out = MakePipe();
    Pipe err;
    int terminal = -1;
    if (options.stderrOnTerminal) {
        winsize size{};
        size.ws_col = 200;
        size.ws_row = 24;
        if (openpty(&err.read, &terminal, nullptr, nullptr, &size) != 0) {
            throw std::runtime_error("openpty failed");
        }
        fcntl(err.read, F_SETFD, FD_CLOEXEC);
        fcntl(terminal, F_SETFD, FD_CLOEXEC);
        err.write = terminal;
    } else {
        err = MakePipe();
    }
    const auto start = std::chrono::steady_clock::now();
    const pid_t pid = fork();
    if (pid == 0) {
        ExecChild(options, out.write, err.write);
    }
    close(out.write);
    close(err.write);
    const bool ended = Drain(out.read, err.read, run, start + std::chrono::seconds(options.timeoutSeconds));
    close(out.read);
    close(err.read);
    if (!ended) {
        kill(pid, SIGKILL);
    }
    int status = 0;
    waitpid(pid, &status, 0);
    run.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    if (WIFEXITED(status)) {
        run.exitCode = WEXITSTATUS(status);
    } else if (WIFSIGNALED(status)) {
        run.signal = WTERMSIG(status);
    }
    return run;
}

} // namespace app_test
