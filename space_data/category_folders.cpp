#include "space_data/category_folders.h"

#include "foundation/request_catalogue.h"
#include "foundation/utilities.h"
#include "platform/global_param_wrapper.h"
#include "request/run_request.h"

namespace {

constexpr const char* kChinaRoot = "/Nuvora";

} // namespace

CategoryListing ListCategoryRoot(const std::string& token, const CategoryFolders& folders)
{
    CategoryListing listing;
    // The comparison is exact: "cn" counts as abroad.
    listing.china = GlobalParamWrapper::GetInstance()->GetCountryCode() == L"CN";
    const std::string root = listing.china ? kChinaRoot : folders.abroadRoot;
    listing.reply = RunRequest<NSPFilesResponse>(&kNspRequestType6, MakeNspFolders(token, {root}, ""));
    return listing;
}

bool HasFiles(const std::shared_ptr<NSPFilesResponse>& reply)
{
    return reply && reply->fileList && !reply->fileList->empty();
}

std::vector<std::string> FolderPaths(const CategoryListing& listing, const CategoryFolders& folders)
{
    std::vector<std::string> paths;
    if (!HasFiles(listing.reply)) {
        return paths;
    }
    for (const auto& entry : *listing.reply->fileList) {
        if (entry) {
            paths.push_back(listing.china ? entry->name + folders.chinaSuffix : entry->name);
        }
    }
    return paths;
}

bool IsHarassmentRecord(const std::shared_ptr<FolderOrFilesInfo>& entry)
{
    return entry && entry->type == "File" && Contains(ToLowerCopy(entry->name), "phonemanager");
}
