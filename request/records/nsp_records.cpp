#include "request/records/nsp_records.h"

#include <cstdlib>

#include "foundation/utilities.h"
#include "request/records/list_text.h"
#include "request/records/record_fields.h"

using record_fields::AppendRecords;
using record_fields::AppendStrings;
using record_fields::CheckKeys;
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

}  // namespace

BaseNspFileModel::BaseNspFileModel(const std::string& accessToken, const std::vector<std::string>& pathList,
                                   const std::string& cursorText)
    : cursor(cursorText), access_token(accessToken)
{
    AppendListText(paths, pathList);
}

std::int32_t BaseNspFileModel::FromJson(const Json::Value& value)
{
    nsp_svc = value["nsp_svc"].asString();
    paths = value["paths"].asString();
    cursor = value["_cursor"].asString();
    access_token = value["access_token"].asString();
    return CheckKeys(value, {"nsp_svc", "paths", "_cursor", "access_token"});
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

std::string NspFiles::ToFormString() const { return PathsFormString(); }

std::string NspFolders::ToFormString() const { return PathsFormString(); }

NspDelFiles::NspDelFiles(const std::string& accessToken, const std::vector<std::string>& fileList)
    : access_token(accessToken)
{
    AppendListText(files, fileList);
}

std::int32_t NspDelFiles::FromJson(const Json::Value& value)
{
    nsp_svc = value["nsp_svc"].asString();
    files = value["files"].asString();
    reserve = value["reserve"].asBool();
    access_token = value["access_token"].asString();
    return CheckKeys(value, {"nsp_svc", "access_token", "files", "reserve"});
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
    nsp_svc = value["nsp_svc"].asString();
    access_token = value["access_token"].asString();
    fields = value["fields"].toStyledString();
    files = value["files"].toStyledString();
    return CheckKeys(value, {"nsp_svc", "access_token", "fields", "files"});
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
    accessTime = value["accessTime"].asString();
    createTime = value["createTime"].asString();
    modifyTime = value["modifyTime"].asString();
    name = value["name"].asString();
    type = value["type"].asString();
    size = value["size"].asString();
    sslUrl = value["sslUrl"].asString();
    return CheckKeys(value, {"accessTime", "createTime", "modifyTime", "name", "type", "size", "size"});
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
    name = value["name"].asString();
    type = value["type"].asString();
    space = value["space"].asString();
    size = value["size"].asString();
    fileCount = std::atoi(value["fileCount"].asString().c_str());
    return CheckKeys(value, {"name", "type", "space", "size", "fileCount"});
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
    errCode = value["errCode"].asInt();
    errMsg = value["errMsg"].asString();
    name = value["name"].asString();
    return CheckKeys(value, {"errCode", "errMsg", "name"});
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
    AppendRecords(value["successList"], successList);
    AppendRecords(value["failList"], failList);
    return CheckKeys(value, {"successList", "failList"});
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
    cursor = value["cursor"].asString();
    ReadListIfPresent(value, "fileList", fileList);
    ReadListIfPresent(value, "failList", failList);
    return CheckKeys(value, {"cursor", "fileList", "failList"});
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
    ReadListIfPresent(value, "successList", successList);
    ReadListIfPresent(value, "failList", failList);
    return CheckKeys(value, {"successList", "failList"});
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
    cmd = value["cmd"].asString();
    host = value["host"].asString();
    ReadStringMembers(value["mapUrlHeaders"], mapUrlHeaders);
    ReadStringMembers(value["mapUrlParams"], mapUrlParams);
    method = value["method"].asString();
    objectId = value["objectId"].asString();
    return CheckKeys(value, {"cmd", "host", "mapUrlHeaders", "mapUrlParams", "method", "clientIp", "objectId"});
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
    cmd = value["cmd"].asString();
    AppendStrings(value["albumType"], albumType);
    albumId = value["albumId"].asString();
    maxNum = value["maxNum"].asInt();
    cursor = value["cursor"].asString();
    return CheckKeys(value, {"cmd", "albumType", "albumId", "maxNum", "cursor"});
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
