// Decoding a backup list reply of about 2 MB: a bare jsoncpp parse of the text
// against the record layer (ReadRecord: the same parse, then
// QueryAllBackUpResponse reading itself), in turns. The record layer should
// add at most 25 % (records_vs_bare_parse at most 1.25).
// FromJsonOfParsedValue isolates the reading step, which is the whole of the
// difference.

#include <memory>
#include <string>

#include <benchmark/benchmark.h>
#include <json/reader.h>
#include <json/value.h>

#include "bench/support/interleaved_pair.h"
#include "request/records/backup_records.h"
#include "request/serializable_object.h"

namespace {

constexpr std::size_t kReplyBytes = 2 * 1024 * 1024;

BackupRecord MakeBackup(int index)
{
    BackupRecord backup;
    backup.device.deviceId = "device-" + std::to_string(index % 7);
    backup.device.deviceType = index % 3;
    backup.device.terminalType = "phone";
    backup.device.aliasName = "Phone of user " + std::to_string(index % 7);
    backup.device.devDisplayName = "Model X" + std::to_string(index % 5);
    backup.status = 1;
    backup.type = 2;
    backup.size = 1000000000LL + index;
    backup.backupId = "backup-" + std::to_string(index);
    backup.backupDeviceId = "bd-" + std::to_string(index);
    backup.startTime = 1700000000000LL + index;
    backup.endTime = 1700000600000LL + index;
    backup.extend = R"({"version":"3"})";
    for (int app = 0; app < 6; ++app) {
        AppIdInfo info;
        info.appId = "com.example.app" + std::to_string(app);
        info.status = 0;
        info.size = 12345678 + app;
        info.createTime = 1690000000000LL + app;
        info.apkType = app % 2;
        info.apkPath = "/data/app/" + info.appId + "/base.apk";
        info.iconPath = "/data/icons/" + info.appId + ".png";
        info.apkUrl = "https://backup.example/apk/" + info.appId;
        info.iconUrl = "https://backup.example/icon/" + info.appId;
        info.extend = "";
        info.cursor = app;
        for (int file = 0; file < 2; ++file) {
            FileInfo entry;
            entry.hash = "9e107d9d372bb6826bd81d3542a419d6";
            entry.fileName = "file" + std::to_string(file) + ".db";
            entry.isApkOrIcon = file;
            entry.expand = "";
            entry.mkFile.name = entry.fileName;
            entry.mkFile.size = "4096";
            entry.mkFile.url = "https://backup.example/obj/" + std::to_string(index) + "/" + entry.fileName;
            entry.mkFile.ts = "1700000000";
            entry.mkFile.extParams = {{"part", "1"}, {"enc", "aes"}};
            entry.mkFile.needRun = false;
            info.fileInfos.push_back(entry);
        }
        backup.appIdInfos.push_back(info);
    }
    return backup;
}

const std::string& BackupListReply()
{
    static const std::string reply = [] {
        QueryAllBackUpResponse response;
        response.result = 0;
        response.info = "success";
        std::string text;
        for (int index = 0; text.size() < kReplyBytes; ++index) {
            response.backupRecords.push_back(MakeBackup(index));
            if (index % 16 == 15) {
                text = response.ToJsonString();
            }
        }
        return response.ToJsonString();
    }();
    return reply;
}

// The two sides run in turns (bench/support/interleaved_pair.h).
void BM_BareParseAgainstRecords(benchmark::State& state)
{
    const std::string& reply = BackupListReply();
    std::size_t records = 0;
    bench_support::RunInterleaved(
        state, "bare_parse",
        [&reply] {
            Json::Value value;
            Json::CharReaderBuilder builder;
            std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
            const bool parsed = reader->parse(reply.data(), reply.data() + reply.size(), &value, nullptr);
            benchmark::DoNotOptimize(value);
            return parsed;
        },
        "records",
        [&reply, &records] {
            auto response = std::make_shared<QueryAllBackUpResponse>();
            ReadRecord(*response, reply);
            records = response->backupRecords.size();
            benchmark::DoNotOptimize(response);
            return records != 0;
        });
    state.counters["records"] = static_cast<double>(records);
    state.counters["reply_bytes"] = static_cast<double>(reply.size());
}
BENCHMARK(BM_BareParseAgainstRecords)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(3.0);

// The record layer's own share: FromJson over a value parsed beforehand.
void FromJsonOfParsedValue(benchmark::State& state)
{
    const std::string& reply = BackupListReply();
    Json::Value value;
    Json::CharReaderBuilder builder;
    std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    if (!reader->parse(reply.data(), reply.data() + reply.size(), &value, nullptr)) {
        state.SkipWithError("the generated reply is not JSON");
        return;
    }
    for (auto _ : state) {
        QueryAllBackUpResponse response;
        response.FromJson(value);
        benchmark::DoNotOptimize(response);
    }
}
BENCHMARK(FromJsonOfParsedValue)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
