#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <sstream>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

#include <json/reader.h>
#include <json/value.h>

#include "host/file_logger.h"
#include "host/host_config.h"
#include "host/logger_sink.h"
#include "platform/logger.h"
#include "utilities/temp_folder.h"
#include "utilities/text_lines.h"

namespace {

// Points the log folder at a fresh folder for one test.
class LogFolderScope
{
public:
    LogFolderScope()
    {
        host::HostConfig config = host::DefaultHostConfig();
        config.logDir = (folder_.Path() / "log").string();
        host::SetCurrentHostConfig(config);
    }
    ~LogFolderScope() { host::SetCurrentHostConfig(host::DefaultHostConfig()); }

    std::string Read(const std::string& name) const
    {
        std::ifstream in(folder_.Path() / "log" / name, std::ios::binary);
        std::ostringstream text;
        text << in.rdbuf();
        return text.str();
    }

private:
    TempFolder folder_;
};

} // namespace

TEST(LoggerChannels, NamesInTheirNumericOrder)
{
    EXPECT_EQ(std::string(Logger::ModuleNames[Logger::subNuvoraSuite]), "subNuvoraSuite");
    EXPECT_EQ(std::string(Logger::ModuleNames[Logger::subSpaceManage]), "subSpaceManage");
    EXPECT_EQ(std::string(Logger::ModuleNames[Logger::subGRS]), "subGRS");
    EXPECT_EQ(Logger::subSpaceManage, 7);
    EXPECT_EQ(Logger::subGRS, 13);
    EXPECT_EQ(std::string(Logger::SeveritySuffixes[Logger::_NET]), "_NET");
    EXPECT_EQ(std::string(Logger::SeveritySuffixes[Logger::_INFO]), "_INFO");
    EXPECT_EQ(std::string(Logger::SeveritySuffixes[Logger::_ERROR]), "_ERROR");
    EXPECT_EQ(Logger::_ERROR, 5);
}

TEST(LoggerChannels, ChannelJoinsModuleAndSuffix)
{
    EXPECT_EQ(host::LogChannelName(7, 2), "subSpaceManage_INFO");
    EXPECT_EQ(host::LogChannelName(0, 5), "subNuvoraSuite_ERROR");
    EXPECT_EQ(host::LogChannelName(11, 4), "subPortalGuiDepcDownload_TRACE_UI");
    EXPECT_EQ(host::LogChannelName(14, 6), "module14_6");
}

TEST(FileLogger, LineReachesItsChannelFileWithTimeThreadLineFunctionAndMessage)
{
    LogFolderScope logs;
    Logger::Output(Logger::subSpaceManage, Logger::_INFO, 210, "SpaceMgmWnd::Notify", "jump to 3", true);
    const auto lines = Lines(logs.Read("subSpaceManage_INFO.log"));
    ASSERT_EQ(lines.size(), 1u);
    const std::string tid = std::to_string(syscall(SYS_gettid));
    const std::regex shape(R"(\d{4}-\d\d-\d\d \d\d:\d\d:\d\d\.\d{3} \[)" + tid +
                           R"(\] SpaceMgmWnd::Notify\(210\) jump to 3)");
    EXPECT_TRUE(std::regex_match(lines[0], shape)) << lines[0];
}

TEST(FileLogger, SeveritiesGoToSeparateFiles)
{
    LogFolderScope logs;
    Logger::Output(0, Logger::_ERROR, 1, "CloudSpaceQuery::Task", "failed", true);
    Logger::Output(0, Logger::_DEBUG, 2, "CloudSpaceQuery::Task", "detail", true);
    EXPECT_NE(logs.Read("subNuvoraSuite_ERROR.log").find("failed"), std::string::npos);
    EXPECT_EQ(logs.Read("subNuvoraSuite_ERROR.log").find("detail"), std::string::npos);
    EXPECT_NE(logs.Read("subNuvoraSuite_DEBUG.log").find("detail"), std::string::npos);
}

TEST(FileLogger, UnflushedLineWaitsForAFlush)
{
    LogFolderScope logs;
    Logger::Output(7, 1, 10, "A::B", "buffered", false);
    EXPECT_EQ(logs.Read("subSpaceManage_DEBUG.log"), "");
    Logger::Output(7, 1, 11, "A::B", "flushed", true);
    const auto lines = Lines(logs.Read("subSpaceManage_DEBUG.log"));
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_NE(lines[0].find("buffered"), std::string::npos);
    EXPECT_NE(lines[1].find("flushed"), std::string::npos);
}

TEST(FileLogger, FlushLogFilesWritesBufferedLines)
{
    LogFolderScope logs;
    Logger::Output(7, 3, 10, "A::B", "later", false);
    host::FlushLogFiles();
    EXPECT_NE(logs.Read("subSpaceManage_SYNC.log").find("later"), std::string::npos);
}

TEST(FileLogger, WideMessageIsWrittenAsUtf8)
{
    LogFolderScope logs;
    Logger::Output(7, 2, 5, "A::B", std::wstring(L"\u4e91\u7a7a\u95f4"), true);
    EXPECT_NE(logs.Read("subSpaceManage_INFO.log").find("\xE4\xBA\x91\xE7\xA9\xBA\xE9\x97\xB4"),
              std::string::npos);
}

TEST(FileLogger, ConcurrentLinesStayWhole)
{
    LogFolderScope logs;
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([t] {
            for (int i = 0; i < 200; ++i) {
                Logger::Output(7, 2, i, "Worker::Run",
                               "thread " + std::to_string(t) + " line " + std::to_string(i), false);
            }
        });
    }
    for (auto& thread : threads) {
        thread.join();
    }
    host::FlushLogFiles();
    const auto lines = Lines(logs.Read("subSpaceManage_INFO.log"));
    ASSERT_EQ(lines.size(), 800u);
    const std::regex shape(R"(.* \[\d+\] Worker::Run\(\d+\) thread \d line \d+)");
    for (const auto& line : lines) {
        ASSERT_TRUE(std::regex_match(line, shape)) << line;
    }
}

TEST(FileLogger, OperationRecordIsAJsonLine)
{
    LogFolderScope logs;
    Logger::OutputOperationLog(223, 1, 0, {{L"size", L"1.5 GB"}, {L"module", L"3"}});
    const auto lines = Lines(logs.Read("operations.jsonl"));
    ASSERT_EQ(lines.size(), 1u);
    Json::Value record;
    Json::CharReaderBuilder builder;
    std::string errors;
    std::istringstream in(lines[0]);
    ASSERT_TRUE(Json::parseFromStream(builder, in, &record, &errors)) << errors;
    EXPECT_EQ(record["event"].asInt(), 223);
    EXPECT_EQ(record["operationType"].asInt(), 1);
    EXPECT_EQ(record["actionType"].asInt(), 0);
    EXPECT_EQ(record["values"]["size"].asString(), "1.5 GB");
    EXPECT_EQ(record["values"]["module"].asString(), "3");
    EXPECT_TRUE(record["time"].isString());
}

TEST(MemorySink, SeesEveryFieldOfARecord)
{
    LogFolderScope logs;
    Logger::ScopedMemorySink sink;
    Logger::Output(7, 5, 77, "SpaceMgmWnd::OnDelete", "delete failed", true);
    const auto records = sink.Records();
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].module, 7);
    EXPECT_EQ(records[0].severity, 5);
    EXPECT_EQ(records[0].line, 77);
    EXPECT_EQ(records[0].function, "SpaceMgmWnd::OnDelete");
    EXPECT_EQ(records[0].message, "delete failed");
    EXPECT_TRUE(records[0].flush);
    EXPECT_EQ(records[0].thread, std::this_thread::get_id());
}

TEST(MemorySink, SeesOperationRecords)
{
    LogFolderScope logs;
    Logger::ScopedMemorySink sink;
    Logger::OutputOperationLog(224, 1, 1, {{L"module", L"5"}});
    const auto records = sink.OperationRecords();
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].event, 224);
    EXPECT_EQ(records[0].operationType, 1);
    EXPECT_EQ(records[0].actionType, 1);
    EXPECT_EQ(records[0].values, (std::map<std::wstring, std::wstring>{{L"module", L"5"}}));
}

TEST(MemorySink, OnlyWhileAttachedAndClearEmptiesIt)
{
    LogFolderScope logs;
    Logger::Output(7, 2, 1, "A::B", "before", false);
    Logger::ScopedMemorySink outer;
    {
        Logger::ScopedMemorySink inner;
        Logger::Output(7, 2, 2, "A::B", "both", false);
        EXPECT_EQ(inner.Records().size(), 1u);
    }
    Logger::Output(7, 2, 3, "A::B", "outer only", false);
    const auto records = outer.Records();
    ASSERT_EQ(records.size(), 2u);
    EXPECT_EQ(records[0].message, "both");
    EXPECT_EQ(records[1].message, "outer only");
    outer.Clear();
    EXPECT_TRUE(outer.Records().empty());
    EXPECT_TRUE(outer.OperationRecords().empty());
}

TEST(MemorySink, RecordsTheThreadThatLogged)
{
    LogFolderScope logs;
    Logger::ScopedMemorySink sink;
    std::thread::id worker;
    std::thread thread([&worker] {
        worker = std::this_thread::get_id();
        Logger::Output(7, 2, 1, "A::B", "from a worker", false);
    });
    thread.join();
    const auto records = sink.Records();
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].thread, worker);
}

TEST(FileLogger, EmptyLogFolderWritesNoFile)
{
    host::HostConfig config = host::DefaultHostConfig();
    config.logDir = "";
    host::SetCurrentHostConfig(config);
    Logger::ScopedMemorySink sink;
    Logger::Output(7, 2, 1, "A::B", "nowhere", true);
    host::SetCurrentHostConfig(host::DefaultHostConfig());
    EXPECT_EQ(sink.Records().size(), 1u);
    // Joined naively, the empty folder would put the file at the root.
    EXPECT_FALSE(std::filesystem::exists("/subSpaceManage_INFO.log"));
}
