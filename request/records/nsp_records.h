#pragma once

// Records of the NSP file service, which takes URL-encoded forms and answers
// with JSON, and the two cloud photo request bodies built in the same manner.
// The request records render twice: as JSON like every record, and as form
// text through ToFormString, which is what the NSP request actually sends.

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "request/serializable_object.h"

// Common fields of the file and folder queries. The JSON key of `cursor` is
// "_cursor"; the form key has no underscore.
class BaseNspFileModel : public SerializableObject
{
public:
    BaseNspFileModel() = default;
    // `paths` is built with AppendListText.
    BaseNspFileModel(const std::string& accessToken, const std::vector<std::string>& pathList,
                     const std::string& cursorText);

    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::string nsp_svc;
    std::string paths;
    std::string cursor;
    std::string access_token;

protected:
    // "nsp_svc", "access_token", "paths", and "cursor" only when it is set.
    std::string PathsFormString() const;
};

class NspFiles : public BaseNspFileModel
{
public:
    static constexpr const char* kServiceName = "nsp.vfs.queryFile";

    using BaseNspFileModel::BaseNspFileModel;
    std::string ToFormString() const override;
};

class NspFolders : public BaseNspFileModel
{
public:
    static constexpr const char* kServiceName = "nsp.vfs.queryFolder";

    using BaseNspFileModel::BaseNspFileModel;
    std::string ToFormString() const override;
};

// Removal of files. The form spells `reserve` "True" or "False", unlike its
// JSON boolean.
class NspDelFiles : public SerializableObject
{
public:
    static constexpr const char* kServiceName = "nsp.vfs.rmfile";

    NspDelFiles() = default;
    NspDelFiles(const std::string& accessToken, const std::vector<std::string>& fileList);

    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;
    std::string ToFormString() const override;

    std::string nsp_svc;
    std::string files;
    bool reserve = false;
    std::string access_token;
};

// Attribute query. "fields" and "files" are read back as the styled JSON text
// of their values, not as plain strings.
class NspGetAttr : public SerializableObject
{
public:
    static constexpr const char* kServiceName = "nsp.vfs.getattr";

    NspGetAttr() = default;
    NspGetAttr(const std::string& accessToken, const std::vector<std::string>& fileList,
               const std::vector<std::string>& fieldNames);

    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;
    std::string ToFormString() const override;

    std::string nsp_svc;
    std::string access_token;
    std::string fields;
    std::string files;
};

// A file or folder of a listing. Every value is text; numbers in a reply
// arrive as their text. "sslUrl" is read but not checked.
class FolderOrFilesInfo : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::string accessTime;
    std::string createTime;
    std::string modifyTime;
    std::string name;
    std::string type;
    std::string size;
    std::string sslUrl;
};

// A folder with its totals. "fileCount" is read as text and converted with
// atoi, so both 3 and "3" give 3 and letters give 0; it is written as a number.
class FieldsInfo : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::string name;
    std::string type;
    std::string space;
    std::string size;
    std::int32_t fileCount = 0;
};

class NspErrorInfo : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::int32_t errCode = 0;
    std::string errMsg;
    std::string name;
};

class NSPResponse : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::vector<FolderOrFilesInfo> successList;
    std::vector<NspErrorInfo> failList;
};

// A list pointer stays null when its key is absent from the reply: readers
// test the pointers. A null list is written as a null value.
class NSPFilesResponse : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::string cursor;
    std::shared_ptr<std::vector<std::shared_ptr<FolderOrFilesInfo>>> fileList;
    std::shared_ptr<std::vector<std::shared_ptr<NspErrorInfo>>> failList;
};

class NSPFoldersResponse : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::shared_ptr<std::vector<std::shared_ptr<FieldsInfo>>> successList;
    std::shared_ptr<std::vector<std::shared_ptr<NspErrorInfo>>> failList;
};

// Body of the cloud photo upload-address query ("bapi.cloudphoto.getUploadUrl").
// The check list holds "clientIp", a key the record has no field for; a reply
// without it reads -1.
class UpLoadFiles : public SerializableObject
{
public:
    static constexpr const char* kCommand = "bapi.cloudphoto.getUploadUrl";

    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::string cmd;
    std::string host;
    std::map<std::string, std::string> mapUrlHeaders;
    std::map<std::string, std::string> mapUrlParams;
    std::string method;
    std::string objectId;
};

// Body of the album query ("cloudphoto.album.query").
class QueryAlbumInfo : public SerializableObject
{
public:
    static constexpr const char* kCommand = "cloudphoto.album.query";

    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::string cmd;
    std::vector<std::string> albumType;
    std::string albumId;
    std::int32_t maxNum = 0;
    std::string cursor;
};
