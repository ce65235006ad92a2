// The command line of the `spacemgm` program.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace app {

enum class Command
{
    Usage,
    Delete,
    Help,
    Version,
};

enum class DeleteTarget
{
    Messages,
    Calls,
    Harassment,
    Backup,
};

struct CommandLine
{
    Command command = Command::Help;
    DeleteTarget target = DeleteTarget::Messages;
    std::string deviceId; // with DeleteTarget::Backup
    std::optional<std::string> configPath;
    bool json = false;
    std::optional<int> timeoutSeconds;
};

// A command line that cannot be run; the message names the word at fault.
class UsageError : public std::runtime_error
{
public:
    using runtime_error::runtime_error;
};

CommandLine ParseCommandLine(const std::vector<std::string>& arguments);

// The short form, for the end of an error message.
const char* ShortUsage();
// Everything --help prints: subcommands, options, exit codes.
std::string HelpText();
std::string VersionText();

// The exit codes of the program.
constexpr int kExitOk = 0;
constexpr int kExitDeleteFailed = 1;
constexpr int kExitBadUsage = 2;
constexpr int kExitExchangeFailed = 3;
constexpr int kExitDeletionContradicted = 4;

} // namespace app
