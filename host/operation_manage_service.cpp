// The operations configuration of the stand-alone host: "SpaceOMConfig.json"
// is downloaded from `services.omConfig` into the data folder. The new file
// is written beside the old one, flushed to disk and renamed over it, so a
// reader sees either the old file or the new one, never a part. Only a reply
// that is a JSON object replaces the file: anything else (an error page, a
// cut body, a text nested deeper than a reader takes) would be read again on
// every later start, so it is treated as a failed download.
#include "platform/operation_manage_service.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>

#include <json/value.h>

#include "foundation/utilities.h"
#include "host/exchange_observer.h"
#include "host/host_config.h"
#include "host/session_get.h"

namespace {

bool WriteAll(int fd, const std::string& data)
{
    size_t written = 0;
    while (written < data.size()) {
        const ssize_t n = ::write(fd, data.data() + written, data.size() - written);
        if (n < 0) {
            if (errno == EINTR) {
                continue;
            }
            return false;
        }
        written += static_cast<size_t>(n);
    }
    return true;
}

bool ReplaceAtomically(const std::filesystem::path& target, const std::string& data)
{
    std::error_code error;
    std::filesystem::create_directories(target.parent_path(), error);
    std::string temp = target.string() + ".XXXXXX";
    const int fd = ::mkstemp(temp.data());
    if (fd < 0) {
        return false;
    }
    const bool written = WriteAll(fd, data) && ::fsync(fd) == 0;
    const bool closed = ::close(fd) == 0;
    if (!written || !closed || std::rename(temp.c_str(), target.c_str()) != 0) {
        ::unlink(temp.c_str());
        return false;
    }
    // The rename itself reaches the disk with the folder's entry.
    const int dirFd = ::open(target.parent_path().c_str(), O_RDONLY | O_DIRECTORY);
    if (dirFd >= 0) {
        ::fsync(dirFd);
        ::close(dirFd);
    }
    return true;
}

bool IsJsonObject(const std::string& text)
{
    Json::Value parsed;
    return ParseJson(text, parsed) && parsed.isObject();
}

} // namespace

COperationManageService* COperationManageService::GetInstance()
{
    static COperationManageService instance;
    return &instance;
}

bool COperationManageService::GetSpaceOMConfig()
{
    const host::HostConfig& config = host::CurrentHostConfig();
    if (config.services.omConfig.empty() || config.dataDir.empty()) {
        return false;
    }
    std::string body;
    if (host::GetAsSignedInUser(config.services.omConfig, body) != 200) {
        // The previous file, or none, stays in place.
        return false;
    }
    if (!IsJsonObject(body)) {
        host::ReportRefusedReply("the reply is not a JSON object");
        return false;
    }
    return ReplaceAtomically(std::filesystem::path(config.dataDir) / "SpaceOMConfig.json", body);
}
