// capture_replies: asks spacemgm-cloud every endpoint of every fixture, as
// the module would, and writes each distinct reply body to a folder: the
// seed corpus of the record fuzzer (scripts/capture-fuzz-corpus.sh).
//
//   capture_replies OUTPUT_FOLDER [FIXTURE...]      default: every fixture
//
// Besides the good replies it keeps each service's refusal and, with a
// wrongTypes fault rule, the same replies with every scalar of another type.
// Replies larger than kLargestSeed are left out: the fuzzer would spend its
// time copying them.
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <set>
#include <string>
#include <vector>

#include <json/json.h>

#include "cloud_emulator.h"
#include "cloud_wire_client.h"

namespace spacemgm_test {
namespace {

constexpr size_t kLargestSeed = 64 * 1024;
const char* const kFixtures[] = {"sample", "empty", "full", "v2", "many", "cn"};

std::string Compact(const Json::Value& value)
{
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "";
    return Json::writeString(builder, value);
}

Json::Value Parse(const std::string& text)
{
    Json::CharReaderBuilder builder;
    std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    Json::Value value;
    std::string errors;
    reader->parse(text.data(), text.data() + text.size(), &value, &errors);
    return value;
}

// A reply's text field; with the wrongTypes rule active it may be anything.
std::string Text(const Json::Value& value)
{
    return value.isString() ? value.asString() : "";
}

// Writes the replies of one emulator, each under a name that says where it came from.
class ReplyCapture
{
public:
    ReplyCapture(const CloudEmulator& cloud, const std::string& fixture, std::filesystem::path folder)
        : cloud_(cloud), session_(SessionOfFixture(CloudEmulator::FixturePath(fixture))), fixture_(fixture),
          folder_(std::move(folder))
    {
    }

    void Everything(const std::string& variant);
    int Written() const { return written_; }

private:
    Json::Value Send(const std::string& name, const std::string& service, const std::string& method,
                     const std::string& pathAndQuery, const std::string& body);
    Json::Value Quota(const std::string& name, const std::string& q, const std::string& serviceType);
    Json::Value Nsp(const std::string& name, const std::string& op,
                    const std::vector<std::pair<std::string, std::string>>& rest);
    Json::Value Backup(const std::string& name, const Json::Value& body);
    void QuotaFilters(const Json::Value& account);
    void PimServices();
    void FileService(const Json::Value& account);
    void BackupService(const Json::Value& account);
    void Refusals();

    const CloudEmulator& cloud_;
    WireSession session_;
    std::string fixture_;
    std::filesystem::path folder_;
    std::string variant_;
    std::set<std::string> seen_;
    int written_ = 0;
};

Json::Value ReplyCapture::Send(const std::string& name, const std::string& service, const std::string& method,
                               const std::string& pathAndQuery, const std::string& body)
{
    // The host downloads the configuration file with the account quota's one header.
    const HeaderList headers = ModuleHeaders(service == "omConfig" ? "accountQuota" : service, session_);
    const HttpResult r = HttpExchange(method, cloud_.BaseUrl(service) + pathAndQuery, headers, body);
    if (r.status == 0) {
        std::cerr << "capture_replies: " << fixture_ << " " << name << ": " << r.error << "\n";
        return Json::Value();
    }
    if (r.body.size() > kLargestSeed) {
        std::cerr << "capture_replies: " << fixture_ << " " << name << ": " << r.body.size()
                  << " bytes, left out\n";
    } else if (seen_.insert(r.body).second) {
        std::ofstream(folder_ / (fixture_ + "-" + name + variant_ + ".json"), std::ios::binary) << r.body;
        ++written_;
    }
    return Parse(r.body);
}

Json::Value ReplyCapture::Quota(const std::string& name, const std::string& q, const std::string& serviceType)
{
    return Send(name, "familyShare", "POST", "/rest.php", QuotaForm(session_.accessToken, q, serviceType));
}

Json::Value ReplyCapture::Nsp(const std::string& name, const std::string& op,
                              const std::vector<std::pair<std::string, std::string>>& rest)
{
    return Send(name, "nsp", "POST", "", NspForm(op, session_.accessToken, rest));
}

Json::Value ReplyCapture::Backup(const std::string& name, const Json::Value& body)
{
    return Send(name, "cbs", "POST", "/CloudBackup/ClientServlet", Compact(body));
}

void ReplyCapture::QuotaFilters(const Json::Value& account)
{
    Quota("quota-photo", "collection=photo and (trashed=true or trashed=false)", "10880002");
    Quota("quota-drive-bin", "collection=drive and (trashed=true)", "10781986");
    std::string ids;
    for (const auto& device : account["backup"]["devices"])
        if (ids.size() < 2000)
            ids += (ids.empty() ? "" : ",") + device["backupDeviceId"].asString();
    Quota("quota-devices", "collection=private and deviceId in [" + ids + "]", "2000");
    const std::pair<const char*, const char*> services[] = {{"contact", "1000"},
                                                            {"notepad", "1001"},
                                                            {"calendar", "1002"},
                                                            {"wlan", "1004"},
                                                            {"browser", "1005"}};
    for (const auto& [category, serviceType] : services) {
        std::string kinds;
        for (const auto& kind : account["pim"][category]["kinds"])
            kinds += (kinds.empty() ? "" : ",") + kind.asString();
        Quota(std::string("quota-kinds-") + category,
              "collection=private and kind in [" + kinds + "] and (trashed=true or trashed=false)",
              serviceType);
    }
    Send("drive-used", "familyShare", "GET", "/user/v1/quota/drive", "");
    Send("account-quota", "accountQuota", "GET", "", "");
    Send("om-config", "omConfig", "GET", "", "");
}

void ReplyCapture::PimServices()
{
    for (const char* category : {"Contact", "Calendar", "Wlan", "Notepad", "Browser"})
        Send(std::string("statistic-") + category, "pimds", "GET", std::string("/Statistic/") + category, "");
    for (const char* service : {"1000", "1001", "1002", "1004", "1005"})
        Send(std::string("data-version-") + service, "cloudSyncDrive", "GET",
             std::string("/dataSync/v1/service/") + service +
                 "/about?fields=dataVersion,kinds,maxBatchNumber,status",
             "");
    Send("photo-about", "cloudPhoto", "GET",
         "/cloudPhoto/v1/about?fields=category,dataVersion,domain,maxBatchNumber,maxFileUploadSize,"
         "maxThumbnailSize,status",
         "");
}

void ReplyCapture::FileService(const Json::Value& account)
{
    std::vector<std::string> roots;
    for (const auto& folder : account["folders"])
        if (folder.asString().find('/', 1) == std::string::npos)
            roots.push_back(folder.asString());
    std::vector<std::string> children;
    for (size_t i = 0; i < roots.size(); ++i) {
        const Json::Value listed = Nsp("nsp-query-folder-" + std::to_string(i), "nsp.vfs.queryFolder",
                                       {{"paths", ListText({roots[i]})}});
        for (const auto& entry : listed["fileList"])
            if (children.size() < 12 && !Text(entry["name"]).empty())
                children.push_back(Text(entry["name"]));
    }
    Nsp("nsp-query-file", "nsp.vfs.queryFile", {{"paths", ListText(children)}});
    Nsp("nsp-getattr", "nsp.vfs.getattr",
        {{"fields", ListText({"name", "type", "space", "size", "fileCount"})},
         {"files", ListText(children)}});
    std::vector<std::string> removed = {"/nothing/here.db"};
    if (!account["files"].empty())
        removed.push_back(account["files"][0]["path"].asString());
    Nsp("nsp-rmfile", "nsp.vfs.rmfile", {{"files", ListText(removed)}, {"reserve", "False"}});
}

void ReplyCapture::BackupService(const Json::Value& account)
{
    Backup("backup-list", Parse(R"({"cmd":36,"info":"QueryAllDevicesBackupRecordReq","version":"V3"})"));
    for (const char* type : {"sms", "callLog"}) {
        Json::Value ask = Parse(R"({"cmd":9,"info":"CountByDeviceReq","deviceList":[]})");
        ask["type"] = type;
        Json::Value page = Backup(std::string("counts-") + type + "-first", ask);
        ask["deviceList"] = page["deviceList"];
        if (!ask["deviceList"].empty())
            Backup(std::string("counts-") + type + "-next", ask);
    }
    Json::Value deleteDevice = Parse(R"({"cmd":27,"info":"DeleteDeviceBackupRecordReq","deviceType":1})");
    const Json::Value& devices = account["backup"]["devices"];
    deleteDevice["deviceId"] =
        devices.empty() ? "unknown-device" : devices[0]["device"]["deviceId"].asString();
    Backup("delete-device-backup", deleteDevice);
    Backup("delete-messages",
           Parse(R"({"cmd":5,"info":"DeleteBackupReq","devId":"","deviceType":0,"typeList":["sms"]})"));
}

// One refusal in each service's own error shape.
void ReplyCapture::Refusals()
{
    Quota("refused-quota", "collection=everything", "0");
    Nsp("refused-nsp", "nsp.vfs.unknown", {});
    Backup("refused-backup", Parse(R"({"cmd":99,"info":"NoSuchReq"})"));
    Send("refused-statistic", "pimds", "GET", "/Statistic/Contact?page=2", "");
    Send("refused-data-version", "cloudSyncDrive", "GET", "/dataSync/v1/service/1000/about", "");
    Send("refused-photo-about", "cloudPhoto", "GET", "/cloudPhoto/v1/about?fields=nothing", "");
}

void ReplyCapture::Everything(const std::string& variant)
{
    variant_ = variant;
    const Json::Value account = cloud_.Account();
    QuotaFilters(account);
    PimServices();
    FileService(account);
    BackupService(account);
    Refusals();
}

int CaptureFixture(const std::string& fixture, const std::filesystem::path& folder)
{
    CloudEmulator cloud(CloudEmulator::Options::ForFixture(fixture));
    ReplyCapture capture(cloud, fixture, folder);
    capture.Everything("");
    cloud.Reset();
    Json::Value wrongTypes;
    wrongTypes["kind"] = "wrongTypes";
    cloud.AddFault(wrongTypes);
    capture.Everything("-wrongtypes");
    return capture.Written();
}

} // namespace
} // namespace spacemgm_test

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::cerr << "usage: capture_replies OUTPUT_FOLDER [FIXTURE...]\n";
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    std::filesystem::create_directories(folder);
    std::vector<std::string> fixtures(argv + 2, argv + argc);
    if (fixtures.empty())
        fixtures.assign(std::begin(spacemgm_test::kFixtures), std::end(spacemgm_test::kFixtures));
    try {
        for (const auto& fixture : fixtures) {
            const int written = spacemgm_test::CaptureFixture(fixture, folder);
            std::cout << fixture << ": " << written << " replies\n";
        }
    } catch (const std::exception& e) {
        std::cerr << "capture_replies: " << e.what() << "\n";
        return 1;
    }
    return 0;
}
