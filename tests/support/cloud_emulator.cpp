#include "cloud_emulator.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <mutex>
#include <poll.h>
#include <sstream>
#include <stdexcept>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include <curl/curl.h>
#include <gtest/gtest.h>

namespace spacemgm_test {

namespace {

void InitCurlOnce()
{
    static std::once_flag once;
    std::call_once(once, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
}

size_t AppendBody(char* data, size_t size, size_t count, void* target)
{
    static_cast<std::string*>(target)->append(data, size * count);
    return size * count;
}

std::string ReadFile(const std::string& path)
{
    std::ifstream in(path);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

// Starts `args` with stdout on a pipe (returned in `stdoutFd`) and stderr in
// the file at `stderrPath`.
pid_t Spawn(std::vector<std::string>& args, const std::string& stderrPath, int& stdoutFd)
{
    int pipeFds[2];
    if (::pipe2(pipeFds, O_CLOEXEC) != 0)
        throw std::runtime_error(std::string("pipe: ") + std::strerror(errno));
    const pid_t pid = ::fork();
    if (pid < 0)
        throw std::runtime_error(std::string("fork: ") + std::strerror(errno));
    if (pid == 0) {
        ::dup2(pipeFds[1], STDOUT_FILENO);
        int err = ::open(stderrPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        if (err >= 0)
            ::dup2(err, STDERR_FILENO);
        std::vector<char*> argv;
        for (auto& arg : args)
            argv.push_back(arg.data());
        argv.push_back(nullptr);
        ::execv(argv[0], argv.data());
        ::_exit(127);
    }
    ::close(pipeFds[1]);
    stdoutFd = pipeFds[0];
    return pid;
}

// The emulator's announcement up to its "ready" line; empty when it ends or
// stays silent for 90 s (a large fixture under ThreadSanitizer on a busy
// machine takes a while; an emulator that fails ends at once).
std::string ReadUntilReady(int stdoutFd)
{
    std::string output;
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(90);
    while (std::chrono::steady_clock::now() < deadline) {
        pollfd fd{stdoutFd, POLLIN, 0};
        if (::poll(&fd, 1, 100) <= 0)
            continue;
        char buffer[4096];
        ssize_t n = ::read(stdoutFd, buffer, sizeof buffer);
        if (n <= 0)
            break;
        output.append(buffer, static_cast<size_t>(n));
        if (output.find("\nready\n") != std::string::npos || output.rfind("ready\n", 0) == 0)
            return output;
    }
    return "";
}

// Failures of the emulator itself go to the test that used it.
void ReportProblem(const std::string& problem)
{
    if (::testing::UnitTest::GetInstance()->total_test_suite_count() > 0) {
        ADD_FAILURE() << problem;
        return;
    }
    std::cerr << problem << std::endl;
    std::abort();
}

bool HasSanitizerReport(const std::string& text)
{
    return text.find("Sanitizer:") != std::string::npos || text.find("runtime error:") != std::string::npos;
}

Json::Value ParseOrThrow(const std::string& text, const std::string& what)
{
    Json::CharReaderBuilder builder;
    std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    Json::Value value;
    std::string errors;
    if (!reader->parse(text.data(), text.data() + text.size(), &value, &errors))
        throw std::runtime_error(what + ": reply is not JSON: " + text.substr(0, 200));
    return value;
}

std::string Compact(const Json::Value& value)
{
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "";
    return Json::writeString(builder, value);
}

} // namespace

HttpResult HttpExchange(const std::string& method, const std::string& url,
                        const std::vector<std::pair<std::string, std::string>>& headers,
                        const std::string& body, const std::string& caFile, long timeoutMs)
{
    InitCurlOnce();
    HttpResult result;
    std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> curl(curl_easy_init(), curl_easy_cleanup);
    curl_slist* list = nullptr;
    for (const auto& [name, value] : headers) {
        // "Name;" is curl's way of sending a header with an empty value.
        std::string line = value.empty() ? name + ";" : name + ": " + value;
        list = curl_slist_append(list, line.c_str());
    }
    list = curl_slist_append(list, "Expect:");
    curl_easy_setopt(curl.get(), CURLOPT_URL, url.c_str());
    curl_easy_setopt(curl.get(), CURLOPT_CUSTOMREQUEST, method.c_str());
    if (method == "POST" || !body.empty()) {
        curl_easy_setopt(curl.get(), CURLOPT_POSTFIELDS, body.c_str());
        curl_easy_setopt(curl.get(), CURLOPT_POSTFIELDSIZE, static_cast<long>(body.size()));
    }
    if (method == "GET" && body.empty())
        curl_easy_setopt(curl.get(), CURLOPT_HTTPGET, 1L);
    curl_easy_setopt(curl.get(), CURLOPT_CUSTOMREQUEST, method.c_str());
    curl_easy_setopt(curl.get(), CURLOPT_HTTPHEADER, list);
    curl_easy_setopt(curl.get(), CURLOPT_WRITEFUNCTION, AppendBody);
    curl_easy_setopt(curl.get(), CURLOPT_WRITEDATA, &result.body);
    curl_easy_setopt(curl.get(), CURLOPT_TIMEOUT_MS, timeoutMs);
    curl_easy_setopt(curl.get(), CURLOPT_NOSIGNAL, 1L);
    if (!caFile.empty())
        curl_easy_setopt(curl.get(), CURLOPT_CAINFO, caFile.c_str());
    CURLcode code = curl_easy_perform(curl.get());
    curl_slist_free_all(list);
    result.curlCode = static_cast<int>(code);
    if (code != CURLE_OK)
        result.error = curl_easy_strerror(code);
    curl_easy_getinfo(curl.get(), CURLINFO_RESPONSE_CODE, &result.status);
    if (code != CURLE_OK && code != CURLE_PARTIAL_FILE && code != CURLE_RECV_ERROR)
        result.status = 0;
    return result;
}

std::string CloudEmulator::ExecutablePath()
{
    if (const char* overridden = std::getenv("SPACEMGM_CLOUD_EXE"))
        return overridden;
    return SPACEMGM_CLOUD_EXE;
}

std::string CloudEmulator::FixturePath(const std::string& nameOrPath)
{
    const bool endsInJson =
        nameOrPath.size() > 5 && nameOrPath.compare(nameOrPath.size() - 5, 5, ".json") == 0;
    if (nameOrPath.find('/') != std::string::npos || endsInJson)
        return nameOrPath;
    return std::string(SPACEMGM_CLOUD_FIXTURES) + "/" + nameOrPath + ".json";
}

CloudEmulator::CloudEmulator() : CloudEmulator(Options{}) {}

CloudEmulator::CloudEmulator(Options options) : options_(std::move(options))
{
    char pattern[] = "/tmp/spacemgm-cloud-XXXXXX";
    if (!::mkdtemp(pattern))
        throw std::runtime_error(std::string("mkdtemp: ") + std::strerror(errno));
    workDir_ = pattern;
    configPath_ = workDir_ + "/spacemgm.json";
    stderrPath_ = workDir_ + "/stderr.txt";

    std::vector<std::string> args = {
        ExecutablePath(), "--port",   "0", "--fixture", FixturePath(options_.fixture),
        "--write-config", configPath_};
    if (options_.tls)
        args.insert(args.end(), {"--tls", "--ca-file", workDir_ + "/ca.pem"});
    if (!options_.stateFile.empty())
        args.insert(args.end(), {"--state", options_.stateFile});
    if (!options_.faultsFile.empty())
        args.insert(args.end(), {"--faults", options_.faultsFile});
    if (options_.startDelayMs > 0)
        args.insert(args.end(), {"--start-delay-ms", std::to_string(options_.startDelayMs)});

    pid_ = Spawn(args, stderrPath_, stdoutFd_);
    const std::string output = ReadUntilReady(stdoutFd_);
    if (output.empty()) {
        ::kill(pid_, SIGKILL);
        ::waitpid(pid_, nullptr, 0);
        pid_ = -1;
        std::string why = ReadFile(stderrPath_);
        std::filesystem::remove_all(workDir_);
        throw std::runtime_error("spacemgm-cloud did not start: " + why);
    }
    std::istringstream lines(output);
    for (std::string line; std::getline(lines, line);) {
        auto space = line.find(' ');
        if (space != std::string::npos)
            services_[line.substr(0, space)] = line.substr(space + 1);
    }
    caFile_ = services_.count("caFile") ? services_["caFile"] : "";
    root_ = services_["admin"].substr(0, services_["admin"].size() - std::string("/_admin").size());
    port_ = std::atoi(root_.substr(root_.rfind(':') + 1).c_str());
}

CloudEmulator::~CloudEmulator()
{
    Stop();
    if (stdoutFd_ >= 0)
        ::close(stdoutFd_);
    std::error_code ignored;
    std::filesystem::remove_all(workDir_, ignored);
}

std::string CloudEmulator::BaseUrl(const std::string& service) const
{
    auto it = services_.find(service);
    if (it == services_.end())
        throw std::invalid_argument("no service named " + service);
    return it->second;
}

int CloudEmulator::Stop()
{
    return EndWith(SIGTERM);
}

void CloudEmulator::Kill9()
{
    EndWith(SIGKILL);
}

std::string CloudEmulator::Stderr() const
{
    return ReadFile(stderrPath_);
}

int CloudEmulator::EndWith(int signal)
{
    if (pid_ < 0)
        return -1;
    const pid_t pid = pid_;
    pid_ = -1;
    ::kill(pid, signal);
    int status = 0;
    pid_t reaped = 0;
    bool forced = false;
    auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    while ((reaped = ::waitpid(pid, &status, WNOHANG)) == 0) {
        if (std::chrono::steady_clock::now() > deadline) {
            forced = true;
            ::kill(pid, SIGKILL);
            reaped = ::waitpid(pid, &status, 0);
            break;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    // A test that reaped the process itself leaves only stderr to read.
    const bool known = reaped == pid;
    std::string problem;
    if (known && WIFSIGNALED(status) && !(WTERMSIG(status) == SIGKILL && (signal == SIGKILL || forced)))
        problem = "crashed with signal " + std::to_string(WTERMSIG(status));
    else if (forced)
        problem = "did not stop within 5 s of SIGTERM";
    else if (known && signal == SIGTERM && WIFEXITED(status) && WEXITSTATUS(status) != 0)
        problem = "exited with status " + std::to_string(WEXITSTATUS(status)) + " on SIGTERM";
    const std::string errors = ReadFile(stderrPath_);
    if (HasSanitizerReport(errors))
        problem += (problem.empty() ? "" : "; ") + std::string("a sanitizer reported an error");
    // Under a sanitizer a crash is a report and an exit status of its own, so
    // every kind of failure starts with the same words.
    if (!problem.empty())
        ReportProblem("spacemgm-cloud failed: " + problem + "\n--- its stderr ---\n" +
                      errors.substr(0, 16000));
    return known && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

Json::Value CloudEmulator::Admin(const std::string& method, const std::string& what,
                                 const std::string& body) const
{
    HttpResult r = HttpExchange(method, root_ + "/_admin/" + what, {{"Content-Type", "application/json"}},
                                body, caFile_);
    if (r.status != 200)
        throw std::runtime_error("admin " + method + " " + what + " failed: " +
                                 (r.error.empty() ? std::to_string(r.status) + " " + r.body : r.error));
    return ParseOrThrow(r.body, "admin " + what);
}

Json::Value CloudEmulator::RequestLog() const
{
    return Admin("GET", "log")["requests"];
}

void CloudEmulator::ClearLog()
{
    Admin("DELETE", "log");
}

std::string CloudEmulator::AddFault(const Json::Value& rule)
{
    return Admin("POST", "faults", Compact(rule))["ids"][0].asString();
}

void CloudEmulator::ClearFaults()
{
    Admin("DELETE", "faults");
}

void CloudEmulator::Reset()
{
    Admin("POST", "reset");
}

Json::Value CloudEmulator::Hits() const
{
    return Admin("GET", "hits");
}

Json::Value CloudEmulator::Account() const
{
    return Admin("GET", "account");
}

} // namespace spacemgm_test
