// The NSP file service: one bare URL, form bodies, the operation in "nsp_svc".
#include <algorithm>
#include <set>

#include "routes.h"
#include "wire_text.h"

namespace cloud {

namespace {

// The client writes every value as text, numbers included.
Json::Value FileInfo(const std::string& name, const std::string& type, int64_t size, int64_t created,
                     int64_t modified)
{
    Json::Value v;
    v["accessTime"] = std::to_string(modified);
    v["createTime"] = std::to_string(created);
    v["modifyTime"] = std::to_string(modified);
    v["name"] = name;
    v["type"] = type;
    v["size"] = std::to_string(size);
    v["sslUrl"] = "";
    return v;
}

Json::Value Failure(int code, const std::string& message, const std::string& name)
{
    Json::Value v;
    v["errCode"] = code;
    v["errMsg"] = message;
    v["name"] = name;
    return v;
}

std::vector<std::string> ChildFolders(const AccountData& account, const std::string& folder)
{
    std::vector<std::string> out;
    const std::string prefix = folder + "/";
    for (auto it = account.folders.lower_bound(prefix);
         it != account.folders.end() && StartsWith(*it, prefix); ++it)
        if (it->find('/', prefix.size()) == std::string::npos)
            out.push_back(*it);
    return out;
}

std::vector<const NspFile*> FilesBelow(const AccountData& account, const std::string& folder, bool directOnly)
{
    std::vector<const NspFile*> out;
    const std::string prefix = folder + "/";
    auto it = std::lower_bound(account.files.begin(), account.files.end(), prefix,
                               [](const NspFile& file, const std::string& key) { return file.path < key; });
    for (; it != account.files.end() && StartsWith(it->path, prefix); ++it)
        if (!directOnly || it->path.find('/', prefix.size()) == std::string::npos)
            out.push_back(&*it);
    return out;
}

// The keys an operation's form must have, and may have.
struct FormCheck
{
    std::vector<std::string> required;
    std::vector<std::string> optional;
};

// Refusal text, or empty when the form has exactly the expected keys and the
// session's token.
std::string CheckForm(const FormBody& form, const FormCheck& check, const Session& session, int& status)
{
    status = 400;
    if (std::string problem = CheckFormKeys(form, check.required, check.optional); !problem.empty())
        return problem;
    if (form.fields.at("access_token") != session.accessToken) {
        status = 401;
        return "form: access_token is not the session's token";
    }
    return "";
}

Reply ListFolders(const Call& call, const std::vector<std::string>& paths, bool foldersOnly)
{
    Json::Value reply;
    reply["cursor"] = "";
    reply["fileList"] = Json::Value(Json::arrayValue);
    reply["failList"] = Json::Value(Json::arrayValue);
    for (const auto& path : paths) {
        if (!call.account.FolderExists(path)) {
            reply["failList"].append(Failure(404, "no such folder", path));
            continue;
        }
        for (const auto& child : ChildFolders(call.account, path))
            reply["fileList"].append(FileInfo(child, "Directory", 0, 1700000000000, 1700000000000));
        if (foldersOnly)
            continue;
        for (const NspFile* file : FilesBelow(call.account, path, true))
            reply["fileList"].append(
                FileInfo(file->path, "File", file->size, file->createTime, file->modifyTime));
    }
    return JsonReply(reply);
}

Reply GetAttributes(const Call& call, const std::vector<std::string>& fields,
                    const std::vector<std::string>& files)
{
    static const std::set<std::string> known = {"name",      "type",       "space",     "size",
                                                "fileCount", "createTime", "modifyTime"};
    for (const auto& field : fields)
        if (!known.count(field))
            return Refused(call, 400, "getattr: unknown field \"" + field + "\"");
    Json::Value reply;
    reply["successList"] = Json::Value(Json::arrayValue);
    reply["failList"] = Json::Value(Json::arrayValue);
    for (const auto& path : files) {
        Json::Value info;
        info["name"] = path;
        if (const NspFile* file = call.account.FindFile(path)) {
            info["type"] = "File";
            info["space"] = std::to_string(file->size);
            info["size"] = std::to_string(file->size);
            info["fileCount"] = 1;
        } else if (call.account.FolderExists(path)) {
            int64_t space = 0;
            auto below = FilesBelow(call.account, path, false);
            for (const NspFile* f : below)
                space += f->size;
            info["type"] = "Directory";
            info["space"] = std::to_string(space);
            info["size"] = "0";
            info["fileCount"] = static_cast<Json::Int>(below.size());
        } else {
            reply["failList"].append(Failure(404, "no such file or folder", path));
            continue;
        }
        reply["successList"].append(info);
    }
    return JsonReply(reply);
}

Reply RemoveFiles(const Call& call, const std::vector<std::string>& files)
{
    std::vector<std::string> removable;
    Json::Value reply;
    reply["successList"] = Json::Value(Json::arrayValue);
    reply["failList"] = Json::Value(Json::arrayValue);
    for (const auto& path : files) {
        if (call.account.FolderExists(path))
            reply["failList"].append(Failure(403, "is a folder", path));
        else
            removable.push_back(path);
    }
    RemoveOutcome outcome = call.store.RemoveFiles(removable);
    if (!outcome.notKept.empty())
        return NotKept(call, outcome.notKept);
    for (const auto& file : outcome.removed)
        reply["successList"].append(FileInfo(file.path, "File", file.size, file.createTime, file.modifyTime));
    for (const auto& path : outcome.missing)
        reply["failList"].append(Failure(404, "no such file", path));
    return JsonReply(reply);
}

} // namespace

Reply HandleNspForm(const Call& call)
{
    FormBody form = ParseForm(call.req.body);
    if (!form.ok())
        return Refused(call, 400, form.error);
    auto svc = form.fields.find("nsp_svc");
    if (svc == form.fields.end())
        return Refused(call, 400, "form: \"nsp_svc\" missing");
    const std::string op = svc->second;
    FormCheck check;
    if (op == "nsp.vfs.queryFolder" || op == "nsp.vfs.queryFile")
        check = {{"access_token", "nsp_svc", "paths"}, {"cursor"}};
    else if (op == "nsp.vfs.getattr")
        check = {{"access_token", "fields", "files", "nsp_svc"}, {}};
    else if (op == "nsp.vfs.rmfile")
        check = {{"access_token", "files", "nsp_svc", "reserve"}, {}};
    else
        return Refused(call, 400, "nsp_svc: unknown operation \"" + op + "\"");

    int status = 0;
    std::string problem = CheckForm(form, check, call.account.session, status);
    Reply reply;
    if (!problem.empty()) {
        reply = Refused(call, status, problem);
    } else if (op == "nsp.vfs.queryFolder" || op == "nsp.vfs.queryFile") {
        auto paths = ParseListText(form.fields.at("paths"));
        if (!paths)
            reply = Refused(call, 400, "paths: not a list text");
        else if (form.fields.count("cursor") && !form.fields.at("cursor").empty())
            reply = Refused(call, 400, "cursor: this account has no further pages");
        else
            reply = ListFolders(call, *paths, op == "nsp.vfs.queryFolder");
    } else if (op == "nsp.vfs.getattr") {
        auto fields = ParseListText(form.fields.at("fields"));
        auto files = ParseListText(form.fields.at("files"));
        if (!fields || !files)
            reply = Refused(call, 400, fields ? "files: not a list text" : "fields: not a list text");
        else
            reply = GetAttributes(call, *fields, *files);
    } else {
        auto files = ParseListText(form.fields.at("files"));
        const std::string& reserve = form.fields.at("reserve");
        if (!files)
            reply = Refused(call, 400, "files: not a list text");
        else if (reserve != "True" && reserve != "False")
            reply = Refused(call, 400, "reserve: expected True or False");
        else
            reply = RemoveFiles(call, *files);
    }
    reply.endpoint = op;
    return reply;
}

} // namespace cloud
