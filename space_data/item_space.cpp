// The road of each category but the cloud backup: which service to ask, and
// what of its reply becomes the category's row.
#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "foundation/request_catalogue.h"
#include "platform/global_param_wrapper.h"
#include "request/postable_string.h"
#include "request/run_request.h"
#include "space_data/cloud_space_view_model.h"
#include "space_data/session_token.h"
#include "space_data/space_log.h"

namespace {

constexpr const char* kFunction = "CloudSpaceManagementViewModel::GetItemSpace";

std::shared_ptr<CloudSpaceItem> NewItem(CloudSpaceType type)
{
    auto item = std::make_shared<CloudSpaceItem>();
    item->type = type;
    item->sortType = type;
    return item;
}

bool IsChina()
{
    return GlobalParamWrapper::GetInstance()->GetCountryCode() == L"CN";
}

// The folders to look into: in China the listing names the parent and the
// data sits under `suffix`; elsewhere the listed folders are the data.
std::vector<std::string> FolderPaths(const NSPFilesResponse& listing, bool china, const std::string& suffix)
{
    std::vector<std::string> paths;
    for (const auto& entry : *listing.fileList) {
        if (!entry) {
            continue;
        }
        paths.push_back(china ? entry->name + suffix : entry->name);
    }
    return paths;
}

std::shared_ptr<NSPFilesResponse> ListRootFolder(const std::string& token, const std::string& root)
{
    return RunRequest<NSPFilesResponse>(&kNspRequestType6, MakeNspFolders(token, {root}, ""));
}

bool HasFiles(const std::shared_ptr<NSPFilesResponse>& reply)
{
    return reply && reply->fileList && !reply->fileList->empty();
}

std::string Lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

std::shared_ptr<PostableString> FormBody(const QuotaUsedQuery& query)
{
    return std::make_shared<PostableString>(ToFormText(query));
}

// One category that lives on either data store.
struct VersionRoad
{
    const char* startLine;
    const PimDataVerionType& versionRow;
    std::function<void(std::shared_ptr<CloudSpaceItem>&)> versionOne;
    const char* versionOneEnd;
    const char* kinds;
    const char* serviceId;
    const char* versionTwoEnd;
    const char* errorLine;
};

std::shared_ptr<CloudSpaceItem> CountOnlyItem(CloudSpaceType type, int count)
{
    if (count <= 0) {
        return nullptr;
    }
    auto item = NewItem(type);
    item->count = std::to_string(count);
    return item;
}

} // namespace

std::shared_ptr<CloudSpaceItem>
CloudSpaceManagementViewModel::GetItemSpace(CloudSpaceType type,
                                            std::vector<std::shared_ptr<CloudSpaceItem>>& items)
{
    std::shared_ptr<CloudSpaceItem> result;
    const std::string token = CurrentAccessTokenUtf8();
    if (type < 0 || type >= 13 || type == CloudBackUp || type == 7) {
        return result;
    }

    const auto runVersionRoad = [&](const VersionRoad& road) {
        SPACE_LOG_INFO(kFunction, road.startLine);
        const std::string version = GetPimDataVersion(road.versionRow);
        if (version == "v1.0") {
            road.versionOne(result);
            SPACE_LOG_INFO(kFunction, road.versionOneEnd);
        } else if (version == "v2.0") {
            GetSpaceFromPim(road.kinds, road.serviceId, result, token, type);
            SPACE_LOG_INFO(kFunction, road.versionTwoEnd);
        } else {
            SPACE_LOG_ERROR(kFunction, road.errorLine);
        }
    };

    switch (type) {
    case Contact:
        runVersionRoad({"Getting Item Space: Contact starts.", kPimDataVerionType0,
                        [this](std::shared_ptr<CloudSpaceItem>& item) { GetV1ContactData(item); },
                        "Getting Item Space: Contact v1 Version end.", "[contact]", "1000",
                        "Getting Item Space: Contact v2 Version end.", "Getting Contact Version Error."});
        break;
    case Notepad:
        runVersionRoad(
            {"Getting Item Space: Notepad starts.", kPimDataVerionType1,
             [this, &token](std::shared_ptr<CloudSpaceItem>& item) { GetV1NotepadData(item, token); },
             "Getting Item Space: Notepad V1 ends.", "[note]", "1001", "Getting Item Space: Notepad V2 ends.",
             "Getting Notepad Version Error."});
        break;
    case Browser:
        runVersionRoad({"Getting Item Space: Browser starts.", kPimDataVerionType4,
                        [this](std::shared_ptr<CloudSpaceItem>& item) { GetV1BrowserData(item); },
                        "Getting Item Space: Browser v1 ends.", "[bookmark,infoflow]", "1005",
                        "Getting Item Space: Browser v2 ends.", "Getting Browser Version Error."});
        break;
    case Wlan:
        runVersionRoad({"Getting Item Space: Wlan starts.", kPimDataVerionType3,
                        [this](std::shared_ptr<CloudSpaceItem>& item) {
                            item = CountOnlyItem(Wlan, GetNumFromPIMDS(kPimdsType2));
                        },
                        "Getting Item Space: Wlan v1 ends.", "[wlan]", "1004",
                        "Getting Item Space: Wlan v2 ends.", "Getting Wlan Version Error."});
        break;
    case Calendar:
        // The version 2 end line says v1 as well; log readers match on it.
        runVersionRoad({"Getting Item Space: Calendar starts.", kPimDataVerionType2,
                        [this](std::shared_ptr<CloudSpaceItem>& item) {
                            item = CountOnlyItem(Calendar, GetNumFromPIMDS(kPimdsType1));
                        },
                        "Getting Item Space: Calendar v1 ends.", "[calendar]", "1002",
                        "Getting Item Space: Calendar v1 ends.", "Getting Calendar Version Error."});
        break;
    case Gallery: {
        SPACE_LOG_INFO(kFunction, "Getting Item Space: Gallery starts.");
        const auto galleryResponse =
            RunRequest<GetQuotaUsedInfoResponse>(&kFamilyShareType2, FormBody(MakePhotoQuotaQuery(token)));
        if (galleryResponse) {
            if (galleryResponse->retCode == 0 && !galleryResponse->quotaDetails.empty()) {
                SPACE_LOG_INFO(kFunction, "Getting quota used info of recycle space successfully.");
                int64_t recycleTotal = 0;
                int64_t normalTotal = 0;
                // Each entry replaces its kind's total: the last one counts.
                for (const QuotaDetail& detail : galleryResponse->quotaDetails) {
                    (detail.trashed ? recycleTotal : normalTotal) = detail.assetsQuotadSpace;
                }
                if (recycleTotal + normalTotal > 0) {
                    result = NewItem(Gallery);
                    result->space = recycleTotal + normalTotal;
                    result->recycle = recycleTotal;
                }
            } else if (galleryResponse->retCode != 0) {
                SPACE_LOG_INFO(kFunction,
                               "galleryResponse->retCode = " + std::to_string(galleryResponse->retCode));
            }
        }
        SPACE_LOG_INFO(kFunction, "Getting Item Space: Gallery ends.");
        break;
    }
    case CloudDisk: {
        SPACE_LOG_INFO(kFunction, "Getting Item Space: CloudDisk starts.");
        // Asked for its side effects only (the query and the gallery's
        // process-wide upload size); nothing here depends on the mode.
        (void)GetPimVersionMode();
        const auto getSpaceFromUrl = RunRequest<GetSpaceFromUrl>(&kFamilyShareType1, nullptr);
        if (getSpaceFromUrl && getSpaceFromUrl->retCode == 0) {
            SPACE_LOG_INFO(kFunction, "Getting space from url successfully.");
            if (getSpaceFromUrl->used > 0) {
                SPACE_LOG_INFO(kFunction, "Cutted status.");
                const auto recycleResponse = RunRequest<GetQuotaUsedInfoResponse>(
                    &kFamilyShareType2, FormBody(MakeDriveQuotaQuery(token)));
                if (recycleResponse && recycleResponse->retCode == 0) {
                    SPACE_LOG_INFO(kFunction, "Getting quota used info of CloudDisk space successfully.");
                } else if (recycleResponse) {
                    SPACE_LOG_INFO(kFunction,
                                   "recycleResponse->retCode = " + std::to_string(recycleResponse->retCode));
                }
                result = NewItem(CloudDisk);
                result->space = getSpaceFromUrl->used;
                // A failed bin query does not cost the row; its bin reads 0.
                result->recycle = (recycleResponse && recycleResponse->used >= 0) ? recycleResponse->used : 0;
            }
        } else if (getSpaceFromUrl) {
            SPACE_LOG_INFO(kFunction,
                           "getSpaceFromUrl->retCode = " + std::to_string(getSpaceFromUrl->retCode));
        }
        SPACE_LOG_INFO(kFunction, "Getting Item Space: CloudDisk ends.");
        break;
    }
    case Recorder: {
        SPACE_LOG_INFO(kFunction, "Getting Item Space: Recorder starts.");
        const bool china = IsChina();
        const auto listing = ListRootFolder(token, china ? "/Nuvora" : "/RecordBackup");
        std::vector<std::string> paths;
        if (HasFiles(listing)) {
            SPACE_LOG_INFO(kFunction, "Getting NSPFilesResponse successfully.");
            paths = FolderPaths(*listing, china, "/media/recording");
        }
        if (!paths.empty()) {
            const auto folders = RunRequest<NSPFoldersResponse>(
                &kNspRequestType6, MakeNspGetAttr(token, paths, {"name", "space", "fileCount"}));
            int64_t spaceTotal = 0;
            int64_t fileTotal = 0;
            if (folders && folders->successList) {
                SPACE_LOG_INFO(kFunction, "Getting NSPFoldersResponse successfully.");
                for (const auto& folder : *folders->successList) {
                    if (folder && folder->type == "Directory") {
                        spaceTotal += std::atoi(folder->space.c_str());
                        fileTotal += folder->fileCount;
                    }
                }
                spaceTotal = std::max<int64_t>(spaceTotal, 0);
                fileTotal = std::max<int64_t>(fileTotal, 0);
            }
            if (fileTotal >= 1 && spaceTotal >= 1) {
                result = NewItem(Recorder);
                result->count = std::to_string(fileTotal);
                result->space = spaceTotal;
            }
        }
        SPACE_LOG_INFO(kFunction, "Getting Item Space: Recorder ends.");
        break;
    }
    case HarassmentInterception: {
        SPACE_LOG_INFO(kFunction, "Getting Item Space: HarassmentInterception starts.");
        const bool china = IsChina();
        const auto listing = ListRootFolder(token, china ? "/Nuvora" : "/BlockedBackup");
        std::vector<std::string> paths;
        if (HasFiles(listing)) {
            SPACE_LOG_INFO(kFunction, "Getting NSPFilesResponse successfully.");
            paths = FolderPaths(*listing, china, "/sysdata");
        }
        if (!paths.empty()) {
            const auto files =
                RunRequest<NSPFilesResponse>(&kNspRequestType6, MakeNspFiles(token, paths, ""));
            int64_t total = 0;
            if (HasFiles(files)) {
                SPACE_LOG_INFO(kFunction, "Getting NSPFilesResponse successfully.");
                for (const auto& file : *files->fileList) {
                    if (file && file->type == "File" &&
                        Lower(file->name).find("phonemanager") != std::string::npos) {
                        total += std::atoi(file->size.c_str());
                    }
                }
                total = std::max<int64_t>(total, 0);
            }
            if (total > 0) {
                result = NewItem(HarassmentInterception);
                result->space = total;
            }
        }
        SPACE_LOG_INFO(kFunction, "Getting Item Space: HarassmentInterception ends.");
        break;
    }
    case Message:
    case Phone: {
        const bool messages = type == Message;
        SPACE_LOG_INFO(kFunction, messages ? "Getting Item Space: Message starts."
                                           : "Getting Item Space: Phone starts.");
        int count = 0;
        // "callLog" in camel case: the count command spells it so, unlike
        // the deletion's "calllog".
        GetSmdAndCallLogCount({}, count, messages ? "sms" : "callLog");
        result = CountOnlyItem(type, count);
        SPACE_LOG_INFO(kFunction,
                       messages ? "Getting Item Space: Message ends." : "Getting Item Space: Phone ends.");
        break;
    }
    default:
        break;
    }

    if (result) {
        std::lock_guard<std::mutex> guard(itemsMutex);
        items.push_back(result);
    }
    return result;
}
