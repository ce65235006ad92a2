// `spacemgm delete`: one deletion through the view model, as the window runs
// it, then a reload of the affected category that tells whether the service
// still holds what was deleted. The module's result is kept as it is; the
// reload is the program's own check of it.
#pragma once

#include <string>

#include "app/command_line.h"
#include "app/exchange_log.h"
#include "space_data/cloud_space_view_model.h"

namespace app {

enum class ReloadVerdict
{
    NothingLeft, // the reload finds nothing of what was deleted
    Remains,     // the service still holds it
    NotChecked,  // an exchange of the reload failed
};

struct DeleteOutcome
{
    DeleteResult result = DeleteFailed;
    ReloadVerdict verdict = ReloadVerdict::NotChecked;
    // One sentence on what the reload found.
    std::string finding;
};

// `log` must be attached to the transport: it tells a reload that failed
// from one that found nothing.
DeleteOutcome RunVerifiedDelete(CloudSpaceManagementViewModel& viewModel, const CommandLine& line,
                                const ExchangeLog& log);

const char* DeleteResultName(DeleteResult result);

// The program's exit code for an outcome.
int ExitCodeOf(const DeleteOutcome& outcome);

} // namespace app
