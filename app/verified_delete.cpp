#include "app/verified_delete.h"

#include <cstdlib>
#include <memory>
#include <utility>
#include <vector>

#include "app/display_text.h"
#include "app/usage_report.h"

namespace app {
namespace {

// What a reload found, as the sentence the program prints.
struct Found
{
    bool remains = false;
    std::string sentence; // "3621 messages remain on the service."
};

Found Remains(std::string sentence)
{
    return {true, std::move(sentence)};
}

Found NothingLeft(std::string sentence)
{
    return {false, std::move(sentence)};
}

// The backup rows the module knows; they also set the generation and the
// version 1 id map that the deletion needs, as a load would.
std::vector<BackUpModel> LoadBackupRows(CloudSpaceManagementViewModel& viewModel)
{
    const auto backup = viewModel.GetBackUpData();
    return backup ? backup->models : std::vector<BackUpModel>();
}

BackUpModel RowFor(const std::vector<BackUpModel>& rows, const std::string& deviceId)
{
    for (const BackUpModel& row : rows) {
        if (row.deviceId == deviceId) {
            return row;
        }
    }
    BackUpModel unknown;
    unknown.deviceId = deviceId;
    return unknown;
}

Found ReloadBackup(CloudSpaceManagementViewModel& viewModel, const std::string& deviceId)
{
    const std::string device = EscapeForTerminal(deviceId);
    for (const BackUpModel& row : LoadBackupRows(viewModel)) {
        if (row.deviceId == deviceId) {
            const std::string name = row.deviceName.empty() ? std::string() : " (" + row.deviceName + ")";
            return Remains("The backup of device " + device + EscapeForTerminal(name) +
                           " remains on the service: " + row.sizeText + ".");
        }
    }
    return NothingLeft("No backup of device " + device + " remains on the service.");
}

Found ReloadCategory(CloudSpaceManagementViewModel& viewModel, CloudSpaceType type, const char* noun)
{
    std::vector<std::shared_ptr<CloudSpaceItem>> items;
    const auto item = viewModel.GetItemSpace(type, items);
    const std::string none = std::string("No ") + noun + " remain on the service.";
    if (type == HarassmentInterception) {
        if (item && item->space > 0) {
            return Remains(CategorySizeText(*item) + " of " + noun + " remain on the service.");
        }
        return NothingLeft(none);
    }
    const long count = item ? std::atol(item->count.c_str()) : 0;
    if (count > 0) {
        return Remains(item->count + " " + noun + " remain on the service.");
    }
    return NothingLeft(none);
}

DeleteResult Delete(CloudSpaceManagementViewModel& viewModel, const CommandLine& line)
{
    switch (line.target) {
    case DeleteTarget::Messages:
        return viewModel.DeleteMessage(Message);
    case DeleteTarget::Calls:
        return viewModel.DeleteMessage(Phone);
    case DeleteTarget::Harassment:
        return viewModel.DeleteMessage(HarassmentInterception);
    case DeleteTarget::Backup:
        break;
    }
    const std::vector<BackUpModel> rows = LoadBackupRows(viewModel);
    viewModel.model->backups = rows;
    return viewModel.DeleteBackUp(RowFor(rows, line.deviceId));
}

Found Reload(CloudSpaceManagementViewModel& viewModel, const CommandLine& line)
{
    switch (line.target) {
    case DeleteTarget::Messages:
        return ReloadCategory(viewModel, Message, "messages");
    case DeleteTarget::Calls:
        return ReloadCategory(viewModel, Phone, "call records");
    case DeleteTarget::Harassment:
        return ReloadCategory(viewModel, HarassmentInterception, "harassment filter records");
    case DeleteTarget::Backup:
        break;
    }
    return ReloadBackup(viewModel, line.deviceId);
}

} // namespace

DeleteOutcome RunVerifiedDelete(CloudSpaceManagementViewModel& viewModel, const CommandLine& line,
                                const ExchangeLog& log)
{
    DeleteOutcome outcome;
    outcome.result = Delete(viewModel, line);
    const size_t failuresBefore = log.Failures().size();
    const Found found = Reload(viewModel, line);
    if (log.Failures().size() != failuresBefore) {
        outcome.verdict = ReloadVerdict::NotChecked;
        outcome.finding = "Could not check the service: the reload failed.";
    } else {
        outcome.verdict = found.remains ? ReloadVerdict::Remains : ReloadVerdict::NothingLeft;
        outcome.finding = found.sentence;
    }
    return outcome;
}

const char* DeleteResultName(DeleteResult result)
{
    switch (result) {
    case DeleteSuccess:
        return "DeleteSuccess";
    case DeleteFailed:
        return "DeleteFailed";
    case DeletePartFailed:
        return "DeletePartFailed";
    }
    return "unknown";
}

int ExitCodeOf(const DeleteOutcome& outcome)
{
    if (outcome.result != DeleteSuccess) {
        return kExitDeleteFailed;
    }
    switch (outcome.verdict) {
    case ReloadVerdict::NothingLeft:
        return kExitOk;
    case ReloadVerdict::Remains:
        return kExitDeletionContradicted;
    case ReloadVerdict::NotChecked:
        break;
    }
    return kExitExchangeFailed;
}

} // namespace app
