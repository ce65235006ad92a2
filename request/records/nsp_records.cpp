#include "request/records/nsp_records.h"

#include <cstdlib>

#include "foundation/utilities.h"
#include "request/records/list_text.h"
#include "request/records/record_fields.h"

using record_fields::AppendRecords;
using record_fields::AppendStrings;
using record_fields::JsonFields;
using record_fields::ReadBool;
using record_fields::ReadStringMembers;
using record_fields::RecordArray;
using record_fields::StringArray;
using record_fields::StringObject;

namespace {

// One "key=value" pair of a form, the value URL-encoded as a whole.
std::string FormPair(const char* key, const std::string& value)
{
    return std::string(key) + "=" + UrlEncode(value);
}

// Reads a list member held by shared pointer: only when its key is there, so
// an absent key leaves the pointer null.
template <typename Record>
void ReadListIfPresent(const Json::Value& value, const char* key,
                       std::shared_ptr<std::vector<std::shared_ptr<Record>>>& list)
{
    if (!value.isMember(key)) {
        return;
    }
    list = std::make_shared<std::vector<std::shared_ptr<Record>>>();
    AppendRecords(value[key], *list);
}

template <typename Record>
Json::Value ListOrNull(const std::shared_ptr<std::vector<std::shared_ptr<Record>>>& list)
{
    return list ? RecordArray(*list) : Json::Value();
}

} // namespace

BaseNspFileModel::BaseNspFileModel(const std::string& accessToken, const std::vector<std::string>& pathList,
                                   const std::string& cursorText)
    : cursor(cursorText), access_token(accessToken)
{
    AppendListText(paths, pathList);
}

std::int32_t BaseNspFileModel::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    nsp_svc = in["nsp_svc"].asString();
    paths = in["paths"].asString();
    cursor = in["_cursor"].asString();
    access_token = in["access_token"].asString();
    return in.Check({"nsp_svc", "paths", "_cursor", "access_token"});
}

Json::Value BaseNspFileModel::ToJson() const
{
    Json::Value value;
    value["nsp_svc"] = nsp_svc;
    value["paths"] = paths;
    value["_cursor"] = cursor;
    value["access_token"] = access_token;
    return value;
}

std::string BaseNspFileModel::PathsFormString() const
{
    std::string form = FormPair("nsp_svc", nsp_svc) + "&" + FormPair("access_token", access_token) + "&" +
                       FormPair("paths", paths);
    if (!cursor.empty()) {
        form += "&" + FormPair("cursor", cursor);
    }
    return form;
}

std::string NspFiles::ToFormString() const
{
    return PathsFormString();
}

std::string NspFolders::ToFormString() const
{
    return PathsFormString();
}

NspDelFiles::NspDelFiles(const std::string& accessToken, const std::vector<std::string>& fileList)
    : access_token(accessToken)
{
    AppendListText(files, fileList);
}

std::int32_t NspDelFiles::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    nsp_svc = in["nsp_svc"].asString();
    files = in["files"].asString();
    reserve = ReadBool(in["reserve"]);
    access_token = in["access_token"].asString();
    return in.Check({"nsp_svc", "access_token", "files", "reserve"});
}

Json::Value NspDelFiles::ToJson() const
{
    Json::Value value;
    value["nsp_svc"] = nsp_svc;
    value["files"] = files;
    value["reserve"] = reserve;
    value["access_token"] = access_token;
    return value;
}

std::string NspDelFiles::ToFormString() const
{
    return FormPair("nsp_svc", nsp_svc) + "&" + FormPair("access_token", access_token) + "&" +
           FormPair("files", files) + "&" + FormPair("reserve", reserve ? "True" : "False");
}

NspGetAttr::NspGetAttr(const std::string& accessToken, const std::vector<std::string>& fileList,
                       const std::vector<std::string>& fieldNames)
    : access_token(accessToken)
{
    AppendListText(files, fileList);
    AppendListText(fields, fieldNames);
}

std::int32_t NspGetAttr::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    nsp_svc = in["nsp_svc"].asString();
    access_token = in["access_token"].asString();
    fields = in["fields"].toStyledString();
    files = in["files"].toStyledString();
    return in.Check({"nsp_svc", "access_token", "fields", "files"});
}

Json::Value NspGetAttr::ToJson() const
{
    Json::Value value;
    value["nsp_svc"] = nsp_svc;
    value["access_token"] = access_token;
    value["fields"] = fields;
    value["files"] = files;
    return value;
}

std::string NspGetAttr::ToFormString() const
{
    return FormPair("nsp_svc", nsp_svc) + "&" + FormPair("access_token", access_token) + "&" +
           FormPair("fields", fields) + "&" + FormPair("files", files);
}

std::int32_t FolderOrFilesInfo::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    accessTime = in["accessTime"].asString();
    createTime = in["createTime"].asString();
    modifyTime = in["modifyTime"].asString();
    name = in["name"].asString();
    type = in["type"].asString();
    size = in["size"].asString();
    sslUrl = in["sslUrl"].asString();
    return in.Check({"accessTime", "createTime", "modifyTime", "name", "type", "size", "size"});
}

Json::Value FolderOrFilesInfo::ToJson() const
{
    Json::Value value;
    value["accessTime"] = accessTime;
    value["createTime"] = createTime;
    value["modifyTime"] = modifyTime;
    value["name"] = name;
    value["type"] = type;
    value["size"] = size;
    value["sslUrl"] = sslUrl;
    return value;
}

std::int32_t FieldsInfo::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    name = in["name"].asString();
    type = in["type"].asString();
    space = in["space"].asString();
    size = in["size"].asString();
    fileCount = std::atoi(in["fileCount"].asString().c_str());
    return in.Check({"name", "type", "space", "size", "fileCount"});
}

Json::Value FieldsInfo::ToJson() const
{
    Json::Value value;
    value["name"] = name;
    value["type"] = type;
    value["space"] = space;
    value["size"] = size;
    value["fileCount"] = fileCount;
    return value;
}

std::int32_t NspErrorInfo::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    errCode = in["errCode"].asInt();
    errMsg = in["errMsg"].asString();
    name = in["name"].asString();
    return in.Check({"errCode", "errMsg", "name"});
}

Json::Value NspErrorInfo::ToJson() const
{
    Json::Value value;
    value["errCode"] = errCode;
    value["errMsg"] = errMsg;
    value["name"] = name;
    return value;
}

std::int32_t NSPResponse::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    AppendRecords(in["successList"], successList);
    AppendRecords(in["failList"], failList);
    return in.Check({"successList", "failList"});
}

Json::Value NSPResponse::ToJson() const
{
    Json::Value value;
    value["successList"] = RecordArray(successList);
    value["failList"] = RecordArray(failList);
    return value;
}

std::int32_t NSPFilesResponse::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    cursor = in["cursor"].asString();
    ReadListIfPresent(value, "fileList", fileList);
    ReadListIfPresent(value, "failList", failList);
    return in.Check({"cursor", "fileList", "failList"});
}

Json::Value NSPFilesResponse::ToJson() const
{
    Json::Value value;
    value["cursor"] = cursor;
    value["fileList"] = ListOrNull(fileList);
    value["failList"] = ListOrNull(failList);
    return value;
}

std::int32_t NSPFoldersResponse::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    ReadListIfPresent(value, "successList", successList);
    ReadListIfPresent(value, "failList", failList);
    return in.Check({"successList", "failList"});
}

Json::Value NSPFoldersResponse::ToJson() const
{
    Json::Value value;
    value["successList"] = ListOrNull(successList);
    value["failList"] = ListOrNull(failList);
    return value;
}

std::int32_t UpLoadFiles::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    cmd = in["cmd"].asString();
    host = in["host"].asString();
    ReadStringMembers(in["mapUrlHeaders"], mapUrlHeaders);
    ReadStringMembers(in["mapUrlParams"], mapUrlParams);
    method = in["method"].asString();
    objectId = in["objectId"].asString();
    return in.Check({"cmd", "host", "mapUrlHeaders", "mapUrlParams", "method", "clientIp", "objectId"});
}

Json::Value UpLoadFiles::ToJson() const
{
    Json::Value value;
    value["cmd"] = cmd;
    value["host"] = host;
    value["mapUrlHeaders"] = StringObject(mapUrlHeaders);
    value["mapUrlParams"] = StringObject(mapUrlParams);
    value["method"] = method;
    value["objectId"] = objectId;
    return value;
}

std::int32_t QueryAlbumInfo::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    cmd = in["cmd"].asString();
    AppendStrings(in["albumType"], albumType);
    albumId = in["albumId"].asString();
    maxNum = in["maxNum"].asInt();
    cursor = in["cursor"].asString();
    return in.Check({"cmd", "albumType", "albumId", "maxNum", "cursor"});
}

Json::Value QueryAlbumInfo::ToJson() const
{
    Json::Value value;
    value["cmd"] = cmd;
    value["albumType"] = StringArray(albumType);
    value["albumId"] = albumId;
    value["maxNum"] = maxNum;
    value["cursor"] = cursor;
    return value;
}
