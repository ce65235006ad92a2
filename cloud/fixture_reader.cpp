#include "fixture.h"

#include <algorithm>
#include <fstream>
#include <initializer_list>
#include <sstream>

#include "wire_text.h"

namespace cloud {

FixtureError::FixtureError(const std::string& file, const std::string& place, const std::string& reason)
    : std::runtime_error(file + ": " + (place.empty() ? "(root)" : place) + ": " + reason)
{
}

namespace {

// Walks the JSON with the current place, so every refusal can say where.
class Reader
{
public:
    explicit Reader(std::string file) : file_(std::move(file)) {}

    [[noreturn]] void Fail(const std::string& place, const std::string& reason) const
    {
        throw FixtureError(file_, place, reason);
    }

    static std::string Join(const std::string& place, const std::string& key)
    {
        return place.empty() ? key : place + "." + key;
    }
    static std::string At(const std::string& place, Json::ArrayIndex index)
    {
        return place + "[" + std::to_string(index) + "]";
    }

    void Object(const Json::Value& value, const std::string& place,
                std::initializer_list<const char*> allowed) const
    {
        if (!value.isObject())
            Fail(place, "must be an object");
        for (const auto& name : value.getMemberNames()) {
            bool known =
                std::any_of(allowed.begin(), allowed.end(), [&](const char* k) { return name == k; });
            if (!known)
                Fail(Join(place, name), "unknown key");
        }
    }

    const Json::Value& Require(const Json::Value& parent, const std::string& place, const char* key) const
    {
        return *Member(parent, place, key, true);
    }

    // The member, or null when it is absent and not required.
    const Json::Value* Member(const Json::Value& parent, const std::string& place, const char* key,
                              bool required) const
    {
        if (!parent.isMember(key)) {
            if (required)
                Fail(Join(place, key), "missing");
            return nullptr;
        }
        return &parent[key];
    }

    std::string String(const Json::Value& parent, const std::string& place, const char* key, bool required,
                       const std::string& fallback = "") const
    {
        const Json::Value* v = Member(parent, place, key, required);
        if (!v)
            return fallback;
        if (!v->isString())
            Fail(Join(place, key), "must be a string");
        return v->asString();
    }

    int64_t Int(const Json::Value& parent, const std::string& place, const char* key, bool required,
                int64_t fallback = 0) const
    {
        const Json::Value* v = Member(parent, place, key, required);
        if (!v)
            return fallback;
        if (!v->isInt64())
            Fail(Join(place, key), "must be an integer");
        if (v->asInt64() < 0)
            Fail(Join(place, key), "must not be negative");
        return v->asInt64();
    }

    int Int32(const Json::Value& parent, const std::string& place, const char* key, bool required,
              int fallback = 0) const
    {
        int64_t v = Int(parent, place, key, required, fallback);
        if (v > INT32_MAX)
            Fail(Join(place, key), "does not fit in 32 bits");
        return static_cast<int>(v);
    }

    bool Bool(const Json::Value& parent, const std::string& place, const char* key, bool required) const
    {
        const Json::Value* v = Member(parent, place, key, required);
        if (!v)
            return false;
        if (!v->isBool())
            Fail(Join(place, key), "must be true or false");
        return v->asBool();
    }

    // An object member kept as it is (a status, the configuration file).
    Json::Value ObjectMember(const Json::Value& parent, const std::string& place, const char* key) const
    {
        const Json::Value* v = Member(parent, place, key, false);
        if (v && !v->isObject())
            Fail(Join(place, key), "must be an object");
        return v ? *v : Json::Value(Json::objectValue);
    }

    const Json::Value& Array(const Json::Value& parent, const std::string& place, const char* key) const
    {
        static const Json::Value empty(Json::arrayValue);
        if (!parent.isMember(key))
            return empty;
        if (!parent[key].isArray())
            Fail(Join(place, key), "must be an array");
        return parent[key];
    }

private:
    std::string file_;
};

DeviceInfo ReadDevice(const Reader& r, const Json::Value& v, const std::string& place)
{
    r.Object(v, place, {"deviceId", "deviceType", "terminalType", "aliasName", "devDisplayName"});
    DeviceInfo d;
    d.deviceId = r.String(v, place, "deviceId", true);
    if (d.deviceId.empty())
        r.Fail(Reader::Join(place, "deviceId"), "must not be empty");
    d.deviceType = r.Int32(v, place, "deviceType", false);
    d.terminalType = r.String(v, place, "terminalType", false);
    d.aliasName = r.String(v, place, "aliasName", false);
    d.devDisplayName = r.String(v, place, "devDisplayName", false);
    return d;
}

void ReadPim(const Reader& r, const Json::Value& root, AccountData& account)
{
    const std::string place = "pim";
    if (!root.isMember("pim"))
        r.Fail(place, "missing");
    const Json::Value& pim = root["pim"];
    r.Object(pim, place, {"contact", "notepad", "calendar", "wlan", "browser"});
    for (const auto& service : PimServices()) {
        std::string at = Reader::Join(place, service.name);
        const Json::Value& v = r.Require(pim, place, service.name);
        r.Object(v, at, {"dataVersion", "status", "kinds", "maxBatchNumber", "statistics", "records"});
        PimCategory category;
        category.dataVersion = r.String(v, at, "dataVersion", true);
        category.status = r.ObjectMember(v, at, "status");
        const Json::Value& kinds = r.Array(v, at, "kinds");
        for (Json::ArrayIndex i = 0; i < kinds.size(); ++i) {
            if (!kinds[i].isString())
                r.Fail(Reader::At(Reader::Join(at, "kinds"), i), "must be a string");
            category.kinds.push_back(kinds[i].asString());
        }
        category.maxBatchNumber = r.Int32(v, at, "maxBatchNumber", false, 100);
        const Json::Value& stats = r.Array(v, at, "statistics");
        for (Json::ArrayIndex i = 0; i < stats.size(); ++i) {
            std::string sp = Reader::At(Reader::Join(at, "statistics"), i);
            r.Object(stats[i], sp, {"source", "sumNum"});
            category.statistics.push_back(
                {r.String(stats[i], sp, "source", true), r.Int32(stats[i], sp, "sumNum", true)});
        }
        const Json::Value& records = r.Array(v, at, "records");
        for (Json::ArrayIndex i = 0; i < records.size(); ++i) {
            std::string rp = Reader::At(Reader::Join(at, "records"), i);
            const Json::Value& e = records[i];
            r.Object(e, rp, {"kind", "trashed", "recordsCount", "assetsQuotadSpace", "recordsQuotadSpace"});
            PimRecord record;
            record.kind = r.String(e, rp, "kind", true);
            record.trashed = r.Bool(e, rp, "trashed", true);
            record.recordsCount = r.Int(e, rp, "recordsCount", true);
            record.assetsQuotadSpace = r.Int(e, rp, "assetsQuotadSpace", true);
            record.recordsQuotadSpace = r.Int(e, rp, "recordsQuotadSpace", false);
            category.records.push_back(record);
        }
        account.pim[service.name] = category;
    }
}

// Each element of the device list at `place`: an object with `keys`, whose
// "device" no earlier element names.
template <class ReadRest>
void ReadDeviceList(const Reader& r, const Json::Value& list, const std::string& place,
                    std::initializer_list<const char*> keys, ReadRest readRest)
{
    std::set<std::string> seen;
    for (Json::ArrayIndex i = 0; i < list.size(); ++i) {
        const std::string dp = Reader::At(place, i);
        const Json::Value& d = list[i];
        r.Object(d, dp, keys);
        DeviceInfo device = ReadDevice(r, r.Require(d, dp, "device"), Reader::Join(dp, "device"));
        if (!seen.insert(device.deviceId).second)
            r.Fail(Reader::Join(dp, "device.deviceId"), "repeats an earlier device");
        readRest(d, dp, std::move(device));
    }
}

BackupEntry ReadBackupEntry(const Reader& r, const Json::Value& e, const std::string& ep)
{
    r.Object(e, ep, {"backupId", "status", "type", "size", "startTime", "endTime", "extend"});
    BackupEntry entry;
    entry.backupId = r.String(e, ep, "backupId", true);
    entry.status = r.Int32(e, ep, "status", false);
    entry.type = r.Int32(e, ep, "type", false);
    entry.size = r.Int(e, ep, "size", true);
    entry.startTime = r.Int(e, ep, "startTime", false);
    entry.endTime = r.Int(e, ep, "endTime", false);
    entry.extend = r.String(e, ep, "extend", false);
    return entry;
}

void ReadBackup(const Reader& r, const Json::Value& root, AccountData& account)
{
    const std::string place = "backup";
    const Json::Value& v = r.Require(root, "", "backup");
    r.Object(v, place, {"generation", "devices"});
    account.backupGeneration = r.String(v, place, "generation", true);
    ReadDeviceList(r, r.Array(v, place, "devices"), Reader::Join(place, "devices"),
                   {"device", "backupDeviceId", "backups"},
                   [&](const Json::Value& d, const std::string& dp, DeviceInfo device) {
                       BackupOwner owner;
                       owner.device = std::move(device);
                       owner.backupDeviceId = r.String(d, dp, "backupDeviceId", true);
                       const Json::Value& entries = r.Array(d, dp, "backups");
                       for (Json::ArrayIndex k = 0; k < entries.size(); ++k)
                           owner.backups.push_back(
                               ReadBackupEntry(r, entries[k], Reader::At(Reader::Join(dp, "backups"), k)));
                       account.backups.push_back(std::move(owner));
                   });
}

void ReadMessages(const Reader& r, const Json::Value& root, AccountData& account)
{
    const std::string place = "messages";
    const Json::Value& v = r.Require(root, "", "messages");
    r.Object(v, place, {"pageSize", "devices"});
    account.messagePageSize = r.Int32(v, place, "pageSize", false, 50);
    if (account.messagePageSize < 1)
        r.Fail(Reader::Join(place, "pageSize"), "must be at least 1");
    ReadDeviceList(r, r.Array(v, place, "devices"), Reader::Join(place, "devices"),
                   {"device", "sms", "callLog"},
                   [&](const Json::Value& d, const std::string& dp, DeviceInfo device) {
                       MessageDevice messages;
                       messages.device = std::move(device);
                       messages.sms = r.Int32(d, dp, "sms", true);
                       messages.callLog = r.Int32(d, dp, "callLog", true);
                       account.messageDevices.push_back(std::move(messages));
                   });
}

void AddParents(const std::string& path, std::set<std::string>& folders)
{
    for (size_t slash = path.rfind('/'); slash != std::string::npos && slash > 0;
         slash = path.rfind('/', slash - 1))
        folders.insert(path.substr(0, slash));
}

bool IsCleanPath(const std::string& path)
{
    if (path.size() < 2 || path[0] != '/' || path.back() == '/')
        return false;
    return path.find("//") == std::string::npos && path.find('"') == std::string::npos;
}

void ReadFiles(const Reader& r, const Json::Value& root, AccountData& account)
{
    const Json::Value& files = r.Array(root, "", "files");
    for (Json::ArrayIndex i = 0; i < files.size(); ++i) {
        std::string fp = Reader::At("files", i);
        const Json::Value& f = files[i];
        r.Object(f, fp, {"path", "size", "createTime", "modifyTime"});
        NspFile file;
        file.path = r.String(f, fp, "path", true);
        if (!IsCleanPath(file.path))
            r.Fail(Reader::Join(fp, "path"), "must be an absolute path without a trailing '/', '//' or '\"'");
        file.size = r.Int(f, fp, "size", true);
        file.createTime = r.Int(f, fp, "createTime", false, 1700000000000);
        file.modifyTime = r.Int(f, fp, "modifyTime", false, file.createTime);
        account.files.push_back(file);
        AddParents(file.path, account.folders);
    }
    std::sort(account.files.begin(), account.files.end(),
              [](const NspFile& a, const NspFile& b) { return a.path < b.path; });
    for (size_t i = 1; i < account.files.size(); ++i)
        if (account.files[i].path == account.files[i - 1].path)
            r.Fail("files", "path " + account.files[i].path + " given twice");
    const Json::Value& folders = r.Array(root, "", "folders");
    for (Json::ArrayIndex i = 0; i < folders.size(); ++i) {
        if (!folders[i].isString() || !IsCleanPath(folders[i].asString()))
            r.Fail(Reader::At("folders", i), "must be an absolute path string");
        account.folders.insert(folders[i].asString());
        AddParents(folders[i].asString(), account.folders);
    }
    for (const auto& file : account.files)
        if (account.folders.count(file.path))
            r.Fail("files", file.path + " is both a file and a folder");
}

void ReadSession(const Reader& r, const Json::Value& root, AccountData& account)
{
    const Json::Value& s = r.Require(root, "", "session");
    r.Object(s, "session", {"accessToken", "userId", "country", "deviceUuid"});
    account.session.accessToken = r.String(s, "session", "accessToken", true);
    account.session.userId = r.String(s, "session", "userId", true);
    account.session.country = r.String(s, "session", "country", true);
    account.session.deviceUuid = r.String(s, "session", "deviceUuid", false);
}

void ReadQuotaFigures(const Reader& r, const Json::Value& root, AccountData& account)
{
    const Json::Value& q = r.Require(root, "", "quota");
    r.Object(q, "quota", {"total", "family", "otherExtra"});
    account.quota.total = r.Int(q, "quota", "total", true);
    account.quota.family = r.Int(q, "quota", "family", false);
    account.quota.otherExtra = r.Int(q, "quota", "otherExtra", false);

    const Json::Value& g = r.Require(root, "", "gallery");
    r.Object(g, "gallery", {"bytes", "recycleBytes"});
    account.gallery.bytes = r.Int(g, "gallery", "bytes", true);
    account.gallery.recycleBytes = r.Int(g, "gallery", "recycleBytes", true);

    const Json::Value& d = r.Require(root, "", "drive");
    r.Object(d, "drive", {"used", "recycleBytes"});
    account.drive.used = r.Int(d, "drive", "used", true);
    account.drive.recycleBytes = r.Int(d, "drive", "recycleBytes", true);
    if (account.drive.recycleBytes > account.drive.used)
        r.Fail("drive.recycleBytes", "must not exceed drive.used, which includes the bin");
}

void ReadAbout(const Reader& r, const Json::Value& root, AccountData& account)
{
    if (!root.isMember("about"))
        return;
    const Json::Value& a = root["about"];
    PhotoAbout& about = account.about;
    r.Object(a, "about",
             {"category", "dataVersion", "domain", "maxBatchNumber", "maxFileUploadSize", "maxThumbnailSize",
              "status"});
    about.category = r.String(a, "about", "category", false, about.category);
    about.dataVersion = r.String(a, "about", "dataVersion", false, about.dataVersion);
    about.domain = r.String(a, "about", "domain", false);
    about.maxBatchNumber = r.Int32(a, "about", "maxBatchNumber", false, about.maxBatchNumber);
    about.maxFileUploadSize = r.String(a, "about", "maxFileUploadSize", false, about.maxFileUploadSize);
    about.maxThumbnailSize = r.Int(a, "about", "maxThumbnailSize", false);
    about.status = r.ObjectMember(a, "about", "status");
}

void ReadServed(const Reader& r, const Json::Value& root, AccountData& account)
{
    if (root.isMember("omConfig")) {
        const Json::Value& om = root["omConfig"];
        if (!om.isNull() && !om.isObject())
            r.Fail("omConfig", "must be an object or null");
        account.omConfig = om;
    }
    if (root.isMember("faults")) {
        if (!root["faults"].isArray())
            r.Fail("faults", "must be an array");
        account.faults = root["faults"];
    }
}

// Every text of the file, keys included, must be UTF-8, as JSON text is:
// anything else would come back changed from the state file, since the
// writer escapes what it decodes.
void RequireUtf8(const Reader& r, const Json::Value& value, const std::string& place)
{
    if (value.isString() && !IsUtf8(value.asString()))
        r.Fail(place, "must be UTF-8 text");
    if (value.isArray())
        for (Json::ArrayIndex i = 0; i < value.size(); ++i)
            RequireUtf8(r, value[i], Reader::At(place, i));
    if (value.isObject()) {
        for (const auto& name : value.getMemberNames()) {
            if (!IsUtf8(name))
                r.Fail(place, "has a key that is not UTF-8 text");
            RequireUtf8(r, value[name], Reader::Join(place, name));
        }
    }
}

// Every byte the quota groups add up, so that their sums cannot overflow
// later; false when the total does not fit in 64 bits.
bool SizesFit(const AccountData& account)
{
    int64_t total = 0;
    auto add = [&total](int64_t bytes) { return !__builtin_add_overflow(total, bytes, &total); };
    bool fits = add(account.drive.used) && add(account.gallery.bytes) && add(account.gallery.recycleBytes) &&
                add(account.quota.family) && add(account.quota.otherExtra);
    for (const auto& owner : account.backups)
        for (const auto& entry : owner.backups)
            fits = fits && add(entry.size);
    for (const auto& [name, category] : account.pim)
        for (const auto& record : category.records)
            fits = fits && add(record.assetsQuotadSpace);
    for (const auto& file : account.files)
        fits = fits && add(file.size);
    return fits;
}

} // namespace

AccountData AccountFromJson(const Json::Value& root, const std::string& file)
{
    Reader r(file);
    RequireUtf8(r, root, "");
    r.Object(root, "",
             {"name", "session", "quota", "gallery", "drive", "about", "pim", "backup", "messages", "files",
              "folders", "omConfig", "faults"});
    AccountData account;
    account.name = r.String(root, "", "name", false);
    ReadSession(r, root, account);
    ReadQuotaFigures(r, root, account);
    ReadAbout(r, root, account);
    ReadPim(r, root, account);
    ReadBackup(r, root, account);
    ReadMessages(r, root, account);
    ReadFiles(r, root, account);
    ReadServed(r, root, account);
    if (!SizesFit(account))
        r.Fail("quota", "sizes overflow");
    return account;
}

AccountData AccountFromText(const std::string& text, const std::string& file)
{
    std::string errors;
    auto root = ParseJson(text, &errors);
    if (!root)
        throw FixtureError(file, "", "not JSON: " + OneLineParseError(errors));
    return AccountFromJson(*root, file);
}

AccountData LoadAccountFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in)
        throw FixtureError(path, "", "cannot be read");
    std::stringstream buffer;
    buffer << in.rdbuf();
    return AccountFromText(buffer.str(), path);
}

} // namespace cloud
