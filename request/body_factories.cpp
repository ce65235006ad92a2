#include "request/body_factories.h"

std::shared_ptr<NspFolders> MakeNspFolders(const std::string& accessToken,
                                           const std::vector<std::string>& paths, const std::string& cursor)
{
    auto body = std::make_shared<NspFolders>(accessToken, paths, cursor);
    body->nsp_svc = NspFolders::kServiceName;
    return body;
}

std::shared_ptr<NspFiles> MakeNspFiles(const std::string& accessToken, const std::vector<std::string>& paths,
                                       const std::string& cursor)
{
    auto body = std::make_shared<NspFiles>(accessToken, paths, cursor);
    body->nsp_svc = NspFiles::kServiceName;
    return body;
}

std::shared_ptr<NspDelFiles> MakeNspDelFiles(const std::string& accessToken,
                                             const std::vector<std::string>& files)
{
    auto body = std::make_shared<NspDelFiles>(accessToken, files);
    body->nsp_svc = NspDelFiles::kServiceName;
    return body;
}

std::shared_ptr<NspGetAttr> MakeNspGetAttr(const std::string& accessToken,
                                           const std::vector<std::string>& files,
                                           const std::vector<std::string>& fields)
{
    auto body = std::make_shared<NspGetAttr>(accessToken, files, fields);
    body->nsp_svc = NspGetAttr::kServiceName;
    return body;
}

std::shared_ptr<UpLoadFiles> MakeUpLoadFiles()
{
    auto body = std::make_shared<UpLoadFiles>();
    body->cmd = UpLoadFiles::kCommand;
    return body;
}

std::shared_ptr<QueryAlbumInfo> MakeQueryAlbumInfo()
{
    auto body = std::make_shared<QueryAlbumInfo>();
    body->cmd = QueryAlbumInfo::kCommand;
    return body;
}

std::shared_ptr<BackUpDeleteRequest> MakeBackUpDeleteRequest()
{
    auto body = std::make_shared<BackUpDeleteRequest>();
    body->cmd = 27;
    body->info = "DeleteDeviceBackupRecordReq";
    return body;
}

std::shared_ptr<QueryAllDevicesBackupRecordReqRequest> MakeQueryAllDevicesBackupRecordReqRequest()
{
    auto body = std::make_shared<QueryAllDevicesBackupRecordReqRequest>();
    body->cmd = 36;
    body->info = "QueryAllDevicesBackupRecordReq";
    body->version = "V3";
    return body;
}
