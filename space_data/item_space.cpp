// The road of each category but the cloud backup: which service to ask, and
// what of its reply becomes the category's row. A road returns the row, or
// null when the category has nothing to show or its query failed; the caller
// cannot tell which, and a failure costs the row and nothing else.
#include <algorithm>
#include <cstdlib>
#include <mutex>
#include <string>
#include <vector>

#include "foundation/request_catalogue.h"
#include "request/postable_string.h"
#include "request/run_request.h"
#include "space_data/category_folders.h"
#include "space_data/category_item.h"
#include "space_data/cloud_space_view_model.h"
#include "space_data/session_token.h"
#include "space_data/space_log.h"

namespace {

constexpr const char* kFunction = "CloudSpaceManagementViewModel::GetItemSpace";

using ItemPointer = std::shared_ptr<CloudSpaceItem>;
using Road = ItemPointer (*)(CloudSpaceManagementViewModel& viewModel, const std::string& token);

std::shared_ptr<PostableString> FormBody(const QuotaUsedQuery& query)
{
    return std::make_shared<PostableString>(ToFormText(query));
}

ItemPointer CountOnlyItem(CloudSpaceType type, int count)
{
    if (count <= 0) {
        return nullptr;
    }
    auto item = NewCategoryItem(type);
    item->count = std::to_string(count);
    return item;
}

// --- Personal data: the version 1 or the version 2 store -------------------

// A personal-data category. Which store holds it is asked on every load and
// compared as a whole string; any answer but "v1.0" and "v2.0", the empty
// one included, gives the error line and no row.
struct VersionRoad
{
    CloudSpaceType type;
    const char* startLine;
    const PimDataVerionType& versionRow;
    Road versionOne;
    const char* versionOneEnd;
    const char* kinds;
    const char* serviceId;
    const char* versionTwoEnd;
    const char* errorLine;
};

template <const VersionRoad& road>
ItemPointer VersionedRoad(CloudSpaceManagementViewModel& viewModel, const std::string& token)
{
    ItemPointer result;
    SPACE_LOG_INFO(kFunction, road.startLine);
    const std::string version = viewModel.GetPimDataVersion(road.versionRow);
    if (version == "v1.0") {
        result = road.versionOne(viewModel, token);
        SPACE_LOG_INFO(kFunction, road.versionOneEnd);
    } else if (version == "v2.0") {
        viewModel.GetSpaceFromPim(road.kinds, road.serviceId, result, token, road.type);
        SPACE_LOG_INFO(kFunction, road.versionTwoEnd);
    } else {
        SPACE_LOG_ERROR(kFunction, road.errorLine);
    }
    return result;
}

ItemPointer ContactVersionOne(CloudSpaceManagementViewModel& viewModel, const std::string&)
{
    ItemPointer item;
    viewModel.GetV1ContactData(item);
    return item;
}

ItemPointer NotepadVersionOne(CloudSpaceManagementViewModel& viewModel, const std::string& token)
{
    ItemPointer item;
    viewModel.GetV1NotepadData(item, token);
    return item;
}

ItemPointer BrowserVersionOne(CloudSpaceManagementViewModel& viewModel, const std::string&)
{
    ItemPointer item;
    viewModel.GetV1BrowserData(item);
    return item;
}

ItemPointer WlanVersionOne(CloudSpaceManagementViewModel& viewModel, const std::string&)
{
    return CountOnlyItem(Wlan, viewModel.GetNumFromPIMDS(kPimdsType2));
}

ItemPointer CalendarVersionOne(CloudSpaceManagementViewModel& viewModel, const std::string&)
{
    return CountOnlyItem(Calendar, viewModel.GetNumFromPIMDS(kPimdsType1));
}

// The start, end and error lines differ in their wording ("Version end",
// "V1 ends", "v1 ends"), and the calendar's version 2 road ends with the
// line that says v1; log readers match on these texts as they stand.
const VersionRoad kContactRoad{Contact,
                               "Getting Item Space: Contact starts.",
                               kPimDataVerionType0,
                               ContactVersionOne,
                               "Getting Item Space: Contact v1 Version end.",
                               "[contact]",
                               "1000",
                               "Getting Item Space: Contact v2 Version end.",
                               "Getting Contact Version Error."};
const VersionRoad kNotepadRoad{Notepad,
                               "Getting Item Space: Notepad starts.",
                               kPimDataVerionType1,
                               NotepadVersionOne,
                               "Getting Item Space: Notepad V1 ends.",
                               "[note]",
                               "1001",
                               "Getting Item Space: Notepad V2 ends.",
                               "Getting Notepad Version Error."};
const VersionRoad kBrowserRoad{Browser,
                               "Getting Item Space: Browser starts.",
                               kPimDataVerionType4,
                               BrowserVersionOne,
                               "Getting Item Space: Browser v1 ends.",
                               "[bookmark,infoflow]",
                               "1005",
                               "Getting Item Space: Browser v2 ends.",
                               "Getting Browser Version Error."};
const VersionRoad kWlanRoad{
    Wlan,           "Getting Item Space: Wlan starts.",  kPimDataVerionType3,
    WlanVersionOne, "Getting Item Space: Wlan v1 ends.", "[wlan]",
    "1004",         "Getting Item Space: Wlan v2 ends.", "Getting Wlan Version Error."};
const VersionRoad kCalendarRoad{Calendar,
                                "Getting Item Space: Calendar starts.",
                                kPimDataVerionType2,
                                CalendarVersionOne,
                                "Getting Item Space: Calendar v1 ends.",
                                "[calendar]",
                                "1002",
                                "Getting Item Space: Calendar v1 ends.",
                                "Getting Calendar Version Error."};

// --- Byte totals from the quota services -----------------------------------

// Each entry replaces its kind's total, so the last one counts; the row's
// space includes the bin.
ItemPointer GalleryItem(const std::vector<QuotaDetail>& details)
{
    int64_t recycleTotal = 0;
    int64_t normalTotal = 0;
    for (const QuotaDetail& detail : details) {
        (detail.trashed ? recycleTotal : normalTotal) = detail.assetsQuotadSpace;
    }
    if (recycleTotal + normalTotal <= 0) {
        return nullptr;
    }
    auto item = NewCategoryItem(Gallery);
    item->space = recycleTotal + normalTotal;
    item->recycle = recycleTotal;
    return item;
}

ItemPointer GalleryRoad(CloudSpaceManagementViewModel&, const std::string& token)
{
    SPACE_LOG_INFO(kFunction, "Getting Item Space: Gallery starts.");
    ItemPointer result;
    const auto galleryResponse =
        RunRequest<GetQuotaUsedInfoResponse>(&kFamilyShareType2, FormBody(MakePhotoQuotaQuery(token)));
    if (galleryResponse && galleryResponse->retCode == 0 && !galleryResponse->quotaDetails.empty()) {
        SPACE_LOG_INFO(kFunction, "Getting quota used info of recycle space successfully.");
        result = GalleryItem(galleryResponse->quotaDetails);
    } else if (galleryResponse && galleryResponse->retCode != 0) {
        SPACE_LOG_INFO(kFunction, "galleryResponse->retCode = " + std::to_string(galleryResponse->retCode));
    }
    SPACE_LOG_INFO(kFunction, "Getting Item Space: Gallery ends.");
    return result;
}

// The drive holds `used` bytes (above 0); its bin comes from the quota query.
ItemPointer CloudDiskItem(int64_t used, const std::string& token)
{
    SPACE_LOG_INFO(kFunction, "Cutted status.");
    const auto recycleResponse =
        RunRequest<GetQuotaUsedInfoResponse>(&kFamilyShareType2, FormBody(MakeDriveQuotaQuery(token)));
    if (recycleResponse && recycleResponse->retCode == 0) {
        SPACE_LOG_INFO(kFunction, "Getting quota used info of CloudDisk space successfully.");
    } else if (recycleResponse) {
        SPACE_LOG_INFO(kFunction, "recycleResponse->retCode = " + std::to_string(recycleResponse->retCode));
    }
    auto item = NewCategoryItem(CloudDisk);
    item->space = used;
    // A failed bin query does not cost the row; its bin reads 0.
    item->recycle = (recycleResponse && recycleResponse->used >= 0) ? recycleResponse->used : 0;
    return item;
}

ItemPointer CloudDiskRoad(CloudSpaceManagementViewModel&, const std::string& token)
{
    SPACE_LOG_INFO(kFunction, "Getting Item Space: CloudDisk starts.");
    // Asked for its side effects only (the query and the gallery's
    // process-wide upload size); nothing here depends on the mode.
    (void)GetPimVersionMode();
    ItemPointer result;
    const auto getSpaceFromUrl = RunRequest<GetSpaceFromUrl>(&kFamilyShareType1, nullptr);
    if (getSpaceFromUrl && getSpaceFromUrl->retCode == 0) {
        SPACE_LOG_INFO(kFunction, "Getting space from url successfully.");
        if (getSpaceFromUrl->used > 0) {
            result = CloudDiskItem(getSpaceFromUrl->used, token);
        }
    } else if (getSpaceFromUrl) {
        SPACE_LOG_INFO(kFunction, "getSpaceFromUrl->retCode = " + std::to_string(getSpaceFromUrl->retCode));
    }
    SPACE_LOG_INFO(kFunction, "Getting Item Space: CloudDisk ends.");
    return result;
}

// --- Files in the NSP file service -----------------------------------------

// The folders of a category as the listing of its root names them.
std::vector<std::string> ListedFolders(const std::string& token, const CategoryFolders& folders)
{
    const CategoryListing listing = ListCategoryRoot(token, folders);
    if (!HasFiles(listing.reply)) {
        return {};
    }
    SPACE_LOG_INFO(kFunction, "Getting NSPFilesResponse successfully.");
    return FolderPaths(listing, folders);
}

// Bytes and files of the recording folders; a row needs both.
ItemPointer ReadRecorderFolders(const std::string& token, const std::vector<std::string>& paths)
{
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
    if (fileTotal < 1 || spaceTotal < 1) {
        return nullptr;
    }
    auto item = NewCategoryItem(Recorder);
    item->count = std::to_string(fileTotal);
    item->space = spaceTotal;
    return item;
}

// The bytes of the harassment filter records among the folders' files.
ItemPointer ReadHarassmentFolders(const std::string& token, const std::vector<std::string>& paths)
{
    const auto files = RunRequest<NSPFilesResponse>(&kNspRequestType6, MakeNspFiles(token, paths, ""));
    int64_t total = 0;
    if (HasFiles(files)) {
        SPACE_LOG_INFO(kFunction, "Getting NSPFilesResponse successfully.");
        for (const auto& file : *files->fileList) {
            if (IsHarassmentRecord(file)) {
                total += std::atoi(file->size.c_str());
            }
        }
        total = std::max<int64_t>(total, 0);
    }
    if (total <= 0) {
        return nullptr;
    }
    auto item = NewCategoryItem(HarassmentInterception);
    item->space = total;
    return item;
}

// A category kept as files: list its root, then read the folders found.
struct FolderRoad
{
    const char* startLine;
    const CategoryFolders& folders;
    ItemPointer (*readFolders)(const std::string& token, const std::vector<std::string>& paths);
    const char* endLine;
};

const FolderRoad kRecorderRoad{"Getting Item Space: Recorder starts.", kRecorderFolders, ReadRecorderFolders,
                               "Getting Item Space: Recorder ends."};
const FolderRoad kHarassmentInterceptionRoad{"Getting Item Space: HarassmentInterception starts.",
                                             kHarassmentFolders, ReadHarassmentFolders,
                                             "Getting Item Space: HarassmentInterception ends."};

template <const FolderRoad& road>
ItemPointer StoredAsFilesRoad(CloudSpaceManagementViewModel&, const std::string& token)
{
    SPACE_LOG_INFO(kFunction, road.startLine);
    ItemPointer result;
    const std::vector<std::string> paths = ListedFolders(token, road.folders);
    if (!paths.empty()) {
        result = road.readFolders(token, paths);
    }
    SPACE_LOG_INFO(kFunction, road.endLine);
    return result;
}

// --- Counts from the backup service ------------------------------------------

// Messages and call records are counted by the backup service. The kind is
// "callLog" in camel case: the count command spells it so, unlike the
// deletion's "calllog".
struct BackupCountRoad
{
    CloudSpaceType type;
    const char* startLine;
    const char* kind;
    const char* endLine;
};

const BackupCountRoad kMessageRoad{Message, "Getting Item Space: Message starts.", "sms",
                                   "Getting Item Space: Message ends."};
const BackupCountRoad kPhoneRoad{Phone, "Getting Item Space: Phone starts.", "callLog",
                                 "Getting Item Space: Phone ends."};

template <const BackupCountRoad& road>
ItemPointer CountedRoad(CloudSpaceManagementViewModel& viewModel, const std::string&)
{
    SPACE_LOG_INFO(kFunction, road.startLine);
    int count = 0;
    viewModel.GetSmdAndCallLogCount({}, count, road.kind);
    ItemPointer result = CountOnlyItem(road.type, count);
    SPACE_LOG_INFO(kFunction, road.endLine);
    return result;
}

// --- Which category takes which road ----------------------------------------

struct CategoryRoad
{
    CloudSpaceType type;
    Road road;
};

// The cloud backup has a worker of its own and 7 names no category: neither
// has a road, and neither does any value outside the enumeration.
const CategoryRoad kCategoryRoads[] = {
    {Contact, VersionedRoad<kContactRoad>},
    {Notepad, VersionedRoad<kNotepadRoad>},
    {Gallery, GalleryRoad},
    {CloudDisk, CloudDiskRoad},
    {Recorder, StoredAsFilesRoad<kRecorderRoad>},
    {Browser, VersionedRoad<kBrowserRoad>},
    {HarassmentInterception, StoredAsFilesRoad<kHarassmentInterceptionRoad>},
    {Message, CountedRoad<kMessageRoad>},
    {Phone, CountedRoad<kPhoneRoad>},
    {Wlan, VersionedRoad<kWlanRoad>},
    {Calendar, VersionedRoad<kCalendarRoad>},
};

Road RoadOf(CloudSpaceType type)
{
    const auto found = std::find_if(std::begin(kCategoryRoads), std::end(kCategoryRoads),
                                    [type](const CategoryRoad& row) { return row.type == type; });
    return found != std::end(kCategoryRoads) ? found->road : nullptr;
}

} // namespace

std::shared_ptr<CloudSpaceItem>
CloudSpaceManagementViewModel::GetItemSpace(CloudSpaceType type,
                                            std::vector<std::shared_ptr<CloudSpaceItem>>& items)
{
    const std::string token = CurrentAccessTokenUtf8();
    const Road road = RoadOf(type);
    if (road == nullptr) {
        return nullptr;
    }
    ItemPointer result = road(*this, token);
    if (result) {
        std::lock_guard<std::mutex> guard(itemsMutex);
        items.push_back(result);
    }
    return result;
}
