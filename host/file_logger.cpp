#include "host/file_logger.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <map>
#include <mutex>
#include <new>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

#include <json/value.h>
#include <json/writer.h>

#include "foundation/utilities.h"
#include "host/host_config.h"
#include "host/log_sinks.h"
#include "platform/logger.h"

namespace host {

namespace {

constexpr size_t kLineBuffer = 64 * 1024;

std::string Timestamp()
{
    const auto now = std::chrono::system_clock::now();
    const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
    const auto millis =
        std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()).count() % 1000;
    std::tm local{};
    localtime_r(&seconds, &local);
    char text[40];
    const size_t length = std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &local);
    std::snprintf(text + length, sizeof text - length, ".%03d", static_cast<int>(millis));
    return text;
}

long KernelThreadId()
{
    return static_cast<long>(syscall(SYS_gettid));
}

// The open log files, by path. Opened on first use, kept open, each with a
// buffer of its own; one lock serialises every write.
class LogFiles
{
public:
    void Write(const std::string& folder, const std::string& fileName, const std::string& text, bool flush)
    {
        if (folder.empty()) {
            return;
        }
        std::lock_guard<std::mutex> lock(mutex_);
        std::FILE* file = Open(folder + "/" + fileName);
        if (file == nullptr) {
            return;
        }
        std::fwrite(text.data(), 1, text.size(), file);
        if (flush) {
            std::fflush(file);
        }
    }

    void FlushAll()
    {
        std::lock_guard<std::mutex> lock(mutex_);
        for (auto& [path, file] : files_) {
            std::fflush(file);
        }
    }

private:
    std::FILE* Open(const std::string& path)
    {
        const auto found = files_.find(path);
        if (found != files_.end()) {
            return found->second;
        }
        std::error_code ec;
        std::filesystem::create_directories(std::filesystem::path(path).parent_path(), ec);
        std::FILE* file = std::fopen(path.c_str(), "ab");
        if (file == nullptr) {
            return nullptr;
        }
        std::setvbuf(file, nullptr, _IOFBF, kLineBuffer);
        files_.emplace(path, file);
        return file;
    }

    std::mutex mutex_;
    std::map<std::string, std::FILE*> files_;
};

// Never destroyed: detached threads may still log while the process exits.
// The buffered lines are written out by an exit handler instead.
LogFiles& Files()
{
    alignas(LogFiles) static unsigned char storage[sizeof(LogFiles)];
    static LogFiles* files = [] {
        LogFiles* created = new (storage) LogFiles();
        std::atexit([] { FlushLogFiles(); });
        return created;
    }();
    return *files;
}

std::string LogFolder()
{
    return CurrentHostConfig().logDir;
}

} // namespace

std::string LogChannelName(int module, int severity)
{
    std::string channel = module >= 0 && static_cast<size_t>(module) < Logger::ModuleNames.size()
                              ? Logger::ModuleNames[static_cast<size_t>(module)]
                              : "module" + std::to_string(module);
    channel += severity >= 0 && static_cast<size_t>(severity) < Logger::SeveritySuffixes.size()
                   ? Logger::SeveritySuffixes[static_cast<size_t>(severity)]
                   : "_" + std::to_string(severity);
    return channel;
}

void FlushLogFiles()
{
    Files().FlushAll();
}

} // namespace host

namespace Logger {

void Output(int module, int severity, int line, const std::string& function, const std::string& message,
            bool flush)
{
    detail::DeliverToSinks(
        Record{module, severity, line, function, message, flush, std::this_thread::get_id()});
    const std::string text = host::Timestamp() + " [" + std::to_string(host::KernelThreadId()) + "] " +
                             function + "(" + std::to_string(line) + ") " + message + "\n";
    host::Files().Write(host::LogFolder(), host::LogChannelName(module, severity) + ".log", text, flush);
}

void Output(int module, int severity, int line, const std::string& function, const std::wstring& message,
            bool flush)
{
    Output(module, severity, line, function, WideToUtf8(message), flush);
}

void OutputOperationLog(int event, int operationType, int actionType,
                        const std::map<std::wstring, std::wstring>& values)
{
    detail::DeliverToSinks(OperationRecord{event, operationType, actionType, values});
    Json::Value record(Json::objectValue);
    record["time"] = host::Timestamp();
    record["event"] = event;
    record["operationType"] = operationType;
    record["actionType"] = actionType;
    Json::Value fields(Json::objectValue);
    for (const auto& [key, value] : values) {
        fields[WideToUtf8(key)] = WideToUtf8(value);
    }
    record["values"] = fields;
    Json::StreamWriterBuilder writer;
    writer["indentation"] = "";
    host::Files().Write(host::LogFolder(), "operations.jsonl", Json::writeString(writer, record) + "\n",
                        true);
}

} // namespace Logger
