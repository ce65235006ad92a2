// Bodies ready to be handed to RunRequest, each with its fixed content set.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "request/records/backup_records.h"
#include "request/records/nsp_records.h"

std::shared_ptr<NspFolders> MakeNspFolders(const std::string& accessToken,
                                           const std::vector<std::string>& paths, const std::string& cursor);
std::shared_ptr<NspFiles> MakeNspFiles(const std::string& accessToken, const std::vector<std::string>& paths,
                                       const std::string& cursor);
std::shared_ptr<NspDelFiles> MakeNspDelFiles(const std::string& accessToken,
                                             const std::vector<std::string>& files);
std::shared_ptr<NspGetAttr> MakeNspGetAttr(const std::string& accessToken,
                                           const std::vector<std::string>& files,
                                           const std::vector<std::string>& fields);
std::shared_ptr<UpLoadFiles> MakeUpLoadFiles();
std::shared_ptr<QueryAlbumInfo> MakeQueryAlbumInfo();
std::shared_ptr<BackUpDeleteRequest> MakeBackUpDeleteRequest();
std::shared_ptr<QueryAllDevicesBackupRecordReqRequest> MakeQueryAllDevicesBackupRecordReqRequest();
