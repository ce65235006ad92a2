// The upload preparation shared by both cloud photo request classes.
#pragma once

#include <memory>
#include <string>

#include "request/postable_data.h"
#include "request/records/nsp_records.h"

// Turns a LocalFileInfo body into the UpLoadFiles record of the upload-address
// query ("PUT", with the upload headers). Throws std::runtime_error with
// "Can't convert to LocalFileInfo." for any other body; `contentMd5` receives
// the Base64 MD5 that went into the headers.
std::shared_ptr<UpLoadFiles> PrepareCloudPhotoUpload(const std::shared_ptr<PostableData>& body,
                                                     const std::string& traceId, std::string& contentMd5);
