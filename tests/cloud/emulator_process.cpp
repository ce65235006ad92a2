#include "emulator_process.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "cloud_emulator.h"

namespace spacemgm_test {

namespace {

using Clock = std::chrono::steady_clock;

int MillisecondsUntil(Clock::time_point deadline)
{
    auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
    return left > 0 ? static_cast<int>(left) : 0;
}

} // namespace

EmulatorProcess::EmulatorProcess(const std::vector<std::string>& args, const std::string& workingDir)
{
    std::vector<std::string> argv = {CloudEmulator::ExecutablePath()};
    argv.insert(argv.end(), args.begin(), args.end());
    int fds[2];
    if (::pipe2(fds, O_CLOEXEC) != 0)
        throw std::runtime_error(std::string("pipe: ") + std::strerror(errno));
    pid_ = ::fork();
    if (pid_ < 0)
        throw std::runtime_error(std::string("fork: ") + std::strerror(errno));
    if (pid_ == 0) {
        ::dup2(fds[1], STDOUT_FILENO);
        ::dup2(fds[1], STDERR_FILENO);
        if (!workingDir.empty() && ::chdir(workingDir.c_str()) != 0)
            ::_exit(126);
        std::vector<char*> pointers;
        for (auto& arg : argv)
            pointers.push_back(arg.data());
        pointers.push_back(nullptr);
        ::execv(pointers[0], pointers.data());
        ::_exit(127);
    }
    ::close(fds[1]);
    outputFd_ = fds[0];
}

EmulatorProcess::~EmulatorProcess()
{
    if (pid_ > 0) {
        ::kill(pid_, SIGKILL);
        ::waitpid(pid_, nullptr, 0);
    }
    if (outputFd_ >= 0)
        ::close(outputFd_);
}

bool EmulatorProcess::ReadSome(int timeoutMs)
{
    pollfd fd{outputFd_, POLLIN, 0};
    if (::poll(&fd, 1, timeoutMs) <= 0)
        return true;
    char buffer[4096];
    const ssize_t n = ::read(outputFd_, buffer, sizeof buffer);
    if (n <= 0)
        return false;
    output_.append(buffer, static_cast<size_t>(n));
    return true;
}

void EmulatorProcess::Drain()
{
    char buffer[4096];
    for (;;) {
        pollfd fd{outputFd_, POLLIN, 0};
        if (::poll(&fd, 1, 0) <= 0)
            return;
        const ssize_t n = ::read(outputFd_, buffer, sizeof buffer);
        if (n <= 0)
            return;
        output_.append(buffer, static_cast<size_t>(n));
    }
}

bool EmulatorProcess::WaitForLine(const std::string& line, int seconds)
{
    const auto deadline = Clock::now() + std::chrono::seconds(seconds);
    auto seen = [&] {
        return output_.rfind(line + "\n", 0) == 0 || output_.find("\n" + line + "\n") != std::string::npos;
    };
    while (!seen() && Clock::now() < deadline)
        if (!ReadSome(std::min(100, MillisecondsUntil(deadline))))
            break;
    return seen();
}

int EmulatorProcess::Reap(int seconds)
{
    const auto deadline = Clock::now() + std::chrono::seconds(seconds);
    int status = 0;
    while (pid_ > 0 && ::waitpid(pid_, &status, WNOHANG) == 0) {
        ReadSome(std::min(20, MillisecondsUntil(deadline)));
        if (Clock::now() >= deadline) {
            ::kill(pid_, SIGKILL);
            ::waitpid(pid_, nullptr, 0);
            pid_ = -1;
            return -1;
        }
    }
    pid_ = -1;
    Drain();
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

int EmulatorProcess::WaitForExit(int seconds)
{
    return Reap(seconds);
}

int EmulatorProcess::Stop()
{
    if (pid_ > 0)
        ::kill(pid_, SIGTERM);
    return Reap(10);
}

int RunEmulatorToEnd(const std::vector<std::string>& args, std::string& output, int seconds)
{
    EmulatorProcess process(args);
    const int status = process.WaitForExit(seconds);
    output = process.Output();
    return status;
}

} // namespace spacemgm_test
