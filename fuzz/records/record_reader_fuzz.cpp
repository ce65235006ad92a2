// Feeds arbitrary reply text to every wire record. Whatever a server sends,
// reading must neither crash nor throw, and a record must be able to write
// itself out and read that text back. Equality after the round trip is not
// required: some records read a written null list as an empty one, and some
// keep nested JSON as styled text, which grows on every pass.
//
// Every record reads every input, so an input is a reply as it came from the
// wire: the seed corpus (fuzz/corpus/fuzz_record_reader/) holds the
// emulator's real replies, and the dictionary
// (fuzz/corpus/fuzz_record_reader.dict) their keys.
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "request/records/backup_records.h"
#include "request/records/nsp_records.h"
#include "request/records/quota_records.h"
#include "request/serializable_object.h"

namespace {

using RecordFactory = std::function<std::unique_ptr<SerializableObject>()>;

template <class Record> RecordFactory Make()
{
    return [] { return std::make_unique<Record>(); };
}

const std::vector<RecordFactory>& Factories()
{
    static const std::vector<RecordFactory> factories = {
        Make<QuotaDetail>(),
        Make<GetQuotaUsedInfoResponse>(),
        Make<QuotaDetailBk>(),
        Make<GetQuotaUsedInfoResponseBk>(),
        Make<GetSpaceFromUrl>(),
        Make<DataObject>(),
        Make<ResultObject>(),
        Make<StatisticResponse>(),
        Make<BaseRsp>(),
        Make<BaseResult>(),
        Make<AboutResponse>(),
        Make<GetPimDataVersionResponse>(),
        Make<BackUpDevice>(),
        Make<BackupRecord>(),
        Make<QueryAllBackUpResponse>(),
        Make<BackUpSmsAndCallLogRecord>(),
        Make<QueryBackUpSmsAndCallLogResponse>(),
        Make<NspFiles>(),
        Make<NspFolders>(),
        Make<NspDelFiles>(),
        Make<NspGetAttr>(),
        Make<FolderOrFilesInfo>(),
        Make<NSPResponse>(),
        Make<NSPFilesResponse>(),
        Make<NSPFoldersResponse>(),
    };
    return factories;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    for (const RecordFactory& make : Factories()) {
        auto record = make();
        ReadRecord(*record, text);

        const std::string written = record->ToJsonString();
        auto again = make();
        ReadRecord(*again, written);
        (void)again->ToJsonString();
    }
    return 0;
}
