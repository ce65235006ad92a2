// Contacts, notepad, calendar, WLAN and browser data: which data store holds
// them, and the readers of either store.
#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "foundation/request_catalogue.h"
#include "request/postable_string.h"
#include "request/run_request.h"
#include "space_data/category_item.h"
#include "space_data/cloud_space_view_model.h"
#include "space_data/space_log.h"

namespace {

bool HasData(const std::shared_ptr<StatisticResponse>& reply)
{
    return reply && reply->data && !reply->data->empty();
}

// The log texts of one category's statistics query; each category words
// them its own way.
struct StatisticQueryLines
{
    const char* function;
    const char* noReply;
    const char* codePrefix;
    const char* infoSeparator;
};

// The statistics reply of a version 1 category. A refused or missing reply
// is logged; a refusal gives null, a reply without its result record comes
// back as it is, so that the reader goes by its data alone.
std::shared_ptr<StatisticResponse> QueryStatistics(const PimdsType& row, const StatisticQueryLines& lines)
{
    auto reply = RunRequest<StatisticResponse>(&row, nullptr);
    if (!reply || !reply->result) {
        SPACE_LOG_ERROR(lines.function, lines.noReply);
        return reply;
    }
    if (reply->result->code != 0) {
        SPACE_LOG_ERROR(lines.function, lines.codePrefix + std::to_string(reply->result->code) +
                                            lines.infoSeparator + reply->result->info);
        return nullptr;
    }
    return reply;
}

// The counts of one category in a statistics reply: `countSource` and the
// bin's source each replace the value before, so the last entry wins.
struct SourceCounts
{
    int count = 0;
    int binCount = 0;
};

SourceCounts CountsOf(const std::vector<DataObject>& data, const char* countSource, const char* binSource)
{
    SourceCounts counts;
    for (const DataObject& entry : data) {
        if (entry.source == countSource) {
            counts.count = entry.sumNum;
        } else if (entry.source == binSource) {
            counts.binCount = entry.sumNum;
        }
    }
    return counts;
}

// The word for a version 2 category in the reader's log lines; null for a
// category the version 2 query does not serve. It is only a word: the query
// asks for "[note]" where the log says "notepad".
const char* VersionTwoKindWord(CloudSpaceType type)
{
    static constexpr struct
    {
        CloudSpaceType type;
        const char* word;
    } kWords[] = {{Contact, "contact"}, {Notepad, "notepad"}, {Wlan, "wlan"}, {Calendar, "calendar"}};
    for (const auto& entry : kWords) {
        if (entry.type == type) {
            return entry.word;
        }
    }
    return nullptr;
}

} // namespace

std::string CloudSpaceManagementViewModel::GetPimDataVersion(const AdvancedIntEnumType& type)
{
    const auto reply = RunRequest<GetPimDataVersionResponse>(&type, nullptr);
    if (!reply) {
        return std::string();
    }
    SPACE_LOG_INFO("CloudSpaceManagementViewModel::GetPimDataVersion",
                   "Getting pim data version successfully.");
    // A store that names no version is the old one.
    return reply->dataVersion.empty() ? std::string("v1.0") : reply->dataVersion;
}

int CloudSpaceManagementViewModel::GetNumFromPIMDS(const PimdsType& type)
{
    constexpr const char* kFunction = "CloudSpaceManagementViewModel::GetNumFromPIMDS";
    const auto reply = RunRequest<StatisticResponse>(&type, nullptr);
    if (!reply) {
        SPACE_LOG_ERROR(kFunction, "Getting statistic response failed,query PIMDS Failed Response is null");
        return 0;
    }
    if (!reply->result) {
        SPACE_LOG_ERROR(kFunction,
                        "Getting statistic response failed,query PIMDS Failed Code: data->result is null");
        return 0;
    }
    if (reply->result->code != 0) {
        SPACE_LOG_ERROR(kFunction, "Getting statistic response failed,query PIMDS Failed Code: " +
                                       std::to_string(reply->result->code));
        return 0;
    }
    SPACE_LOG_DEBUG(kFunction, "Getting statistic response successfully.");
    int64_t sum = 0;
    if (reply->data) {
        for (const DataObject& entry : *reply->data) {
            sum += entry.sumNum;
        }
    }
    return static_cast<int>(sum);
}

std::shared_ptr<StatisticResponse> CloudSpaceManagementViewModel::GetContactNumFromPIMDS()
{
    return QueryStatistics(kPimdsType0, {"CloudSpaceManagementViewModel::GetContactNumFromPIMDS",
                                         "QueryContactCount Query PIMDS Failed Response is null.",
                                         "QueryContactCount Query PIMDS Failed Code : ", ", info:"});
}

std::shared_ptr<StatisticResponse> CloudSpaceManagementViewModel::GetBrowserNumFromPIMDS()
{
    return QueryStatistics(kPimdsType4, {"CloudSpaceManagementViewModel::GetBrowserNumFromPIMDS",
                                         "QueryBrowserCount Query PIMDS Failed Response is null",
                                         "QueryBrowserCount Query PIMDS Failed Code : ", ", info: "});
}

void CloudSpaceManagementViewModel::GetV1ContactData(std::shared_ptr<CloudSpaceItem>& item)
{
    const auto reply = GetContactNumFromPIMDS();
    if (!HasData(reply)) {
        return;
    }
    const SourceCounts counts = CountsOf(*reply->data, "contact", "recycleContact");
    const int count = std::max(counts.count, 0);
    if (count <= 0) {
        return;
    }
    item = NewCategoryItem(Contact);
    item->count = std::to_string(count);
    item->recycle = std::max(counts.binCount, 0);
}

void CloudSpaceManagementViewModel::GetV1BrowserData(std::shared_ptr<CloudSpaceItem>& item)
{
    const auto reply = GetBrowserNumFromPIMDS();
    if (!reply || !reply->data) {
        return;
    }
    item = NewCategoryItem(Browser);
    int64_t total = 0;
    for (const DataObject& entry : *reply->data) {
        if (entry.source == "browser") {
            continue;
        }
        if (entry.source == "bookmark") {
            item->bookmarkCount = entry.sumNum;
        } else if (entry.source == "infoflow") {
            item->infoflowCount = entry.sumNum;
        }
        total += entry.sumNum;
    }
    if (total >= 1) {
        item->count = std::to_string(total);
    }
    item->bookmarkCount = std::max(item->bookmarkCount, 0);
    item->infoflowCount = std::max(item->infoflowCount, 0);
    if (total < 1) {
        item.reset();
    }
}

void CloudSpaceManagementViewModel::GetV1NotepadData(std::shared_ptr<CloudSpaceItem>& item, std::string token)
{
    constexpr const char* kFunction = "CloudSpaceManagementViewModel::GetV1NotepadData";
    int64_t space = 0;
    const auto attributes = RunRequest<NSPFoldersResponse>(
        &kNspRequestType6, MakeNspGetAttr(token, {"/Sync/note"}, {"name", "space"}));
    if (attributes && attributes->successList && attributes->successList->size() == 1) {
        SPACE_LOG_INFO(kFunction, "Getting nsp attributes successfully.");
        const auto& folder = attributes->successList->front();
        space = folder ? std::max<int64_t>(std::atoi(folder->space.c_str()), 0) : 0;
    }

    SourceCounts counts;
    const auto statistics = RunRequest<StatisticResponse>(&kPimdsType3, nullptr);
    if (statistics && statistics->result && statistics->result->code == 0 && HasData(statistics)) {
        SPACE_LOG_INFO(kFunction, "Getting notepad v1 data success.");
        counts = CountsOf(*statistics->data, "notepad", "recycleNotepad");
    }

    // Either source alone is enough for a row; bytes without a count show
    // a count of "0".
    if (space > 0 || counts.count > 0) {
        item = NewCategoryItem(Notepad);
        item->count = std::to_string(counts.count);
        item->space = space;
        item->recycle = counts.binCount;
    }
}

void CloudSpaceManagementViewModel::GetSpaceFromPim(std::string kinds, std::string serviceId,
                                                    std::shared_ptr<CloudSpaceItem>& item, std::string token,
                                                    CloudSpaceType type)
{
    QuotaUsedQuery query;
    query.q = "collection=private and kind in " + kinds + " and (trashed=true or trashed=false)";
    query.serviceType = serviceId;
    query.accessToken = token;
    const auto reply = RunRequest<GetQuotaUsedInfoResponseBk>(
        &kFamilyShareType0, std::make_shared<PostableString>(ToFormText(query)));
    if (type == Browser) {
        GetV2BrowserData(item, reply, type);
    } else if (const char* kind = VersionTwoKindWord(type)) {
        GetV2PimData(item, reply, type, kind);
    }
}

void CloudSpaceManagementViewModel::GetV2PimData(std::shared_ptr<CloudSpaceItem>& item,
                                                 std::shared_ptr<GetQuotaUsedInfoResponseBk> reply,
                                                 CloudSpaceType type, std::string kind)
{
    constexpr const char* kFunction = "CloudSpaceManagementViewModel::GetV2PimData";
    if (!reply) {
        SPACE_LOG_ERROR(kFunction, "Getting v2 pim data fail. kind is " + kind);
        return;
    }
    if (reply->quotaDetails.empty()) {
        return;
    }
    SPACE_LOG_INFO(kFunction, "Getting v2 pim data success. kind is " + kind);
    int64_t count = 0;
    int64_t space = 0;
    int64_t binCount = 0;
    // Each entry replaces the value before it: the last of each kind wins.
    for (const QuotaDetailBk& detail : reply->quotaDetails) {
        if (detail.trashed == "false") {
            count = detail.recordsCount;
            space = detail.assetsQuotadSpace;
        } else {
            binCount = detail.recordsCount;
        }
    }
    if (count > 0) {
        item = NewCategoryItem(type);
        item->space = space;
        item->count = std::to_string(count);
        item->recycle = binCount;
    }
}

void CloudSpaceManagementViewModel::GetV2BrowserData(std::shared_ptr<CloudSpaceItem>& item,
                                                     std::shared_ptr<GetQuotaUsedInfoResponseBk> reply,
                                                     CloudSpaceType type)
{
    constexpr const char* kFunction = "CloudSpaceManagementViewModel::GetV2BrowserData";
    if (!reply) {
        SPACE_LOG_ERROR(kFunction, "Getting v2 pim data fail. kind is browser.");
        return;
    }
    if (reply->quotaDetails.empty()) {
        return;
    }
    SPACE_LOG_INFO(kFunction, "Getting v2 pim data success.kind is browser.");
    item = std::make_shared<CloudSpaceItem>();
    int64_t total = 0;
    for (const QuotaDetailBk& detail : reply->quotaDetails) {
        if (detail.trashed != "false") {
            continue;
        }
        if (detail.kind == "bookmark") {
            item->bookmarkCount = static_cast<int32_t>(detail.recordsCount);
            total += detail.recordsCount;
        } else if (detail.kind == "infoflow") {
            item->infoflowCount = static_cast<int32_t>(detail.recordsCount);
            total += detail.recordsCount;
        }
    }
    if (total > 0) {
        item->type = type;
        item->sortType = type;
        item->count = std::to_string(total);
    } else {
        item.reset();
    }
}
