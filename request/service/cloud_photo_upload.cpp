#include "request/service/cloud_photo_upload.h"

#include <stdexcept>
#include <vector>

#include "foundation/utilities.h"
#include "platform/user_auth_service.h"
#include "request/body_factories.h"
#include "request/pc_http_request.h"
#include "request/service/local_file_info.h"

namespace {

std::string HexToBase64(const std::string& hex)
{
    std::vector<unsigned char> bytes;
    for (size_t at = 0; at + 1 < hex.size(); at += 2) {
        bytes.push_back(static_cast<unsigned char>(std::stoul(hex.substr(at, 2), nullptr, 16)));
    }
    return Base64Encode(bytes.data(), static_cast<int>(bytes.size()));
}

} // namespace

std::shared_ptr<UpLoadFiles> PrepareCloudPhotoUpload(const std::shared_ptr<PostableData>& body,
                                                     const std::string& traceId, std::string& contentMd5)
{
    const auto file = std::dynamic_pointer_cast<LocalFileInfo>(body);
    if (!file) {
        throw std::runtime_error("Can't convert to LocalFileInfo.");
    }
    uint64_t size = file->fileSize;
    std::string md5 = file->md5;
    if (md5.empty()) {
        md5 = Md5OfFile(file->path, size);
    }
    contentMd5 = file->contentMd5.empty() ? HexToBase64(md5) : file->contentMd5;
    const std::string sha256 = file->sha256.empty() ? Sha256OfFile(file->path) : file->sha256;
    const std::string sizeText = std::to_string(size);

    std::map<std::string, std::string> headers;
    std::map<std::string, std::string> params;
    headers["Content-MD5"] = contentMd5;
    headers["Content-Type"] = "application/octet-stream";
    headers["x-amz-content-sha256"] = sha256;
    headers["x-zp-trace-id"] = traceId;
    headers["nsp-file-size"] = sizeText;
    headers["nsp-user-id"] = WideToUtf8(UserAuthService::GetInstance()->GetCurrentUserID());
    headers["User-Agent"] = GetCommonHeaders()["User-Agent"];
    if (file->firstStep) {
        headers["init"] = "true";
        headers["nsp-content-md5"] = md5;
        headers["Content-Length"] = "0";
    } else {
        const uint64_t last = file->blockStart + file->blockLength - 1;
        headers["Content-Length"] = std::to_string(file->blockLength);
        headers["nsp-content-range"] =
            std::to_string(file->blockStart) + "-" + std::to_string(last) + "/" + sizeText;
    }

    auto upload = MakeUpLoadFiles();
    upload->mapUrlHeaders = std::move(headers);
    upload->mapUrlParams = std::move(params);
    upload->method = "PUT";
    return upload;
}
