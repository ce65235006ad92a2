#include "app/command_line.h"

#include <cerrno>
#include <climits>
#include <cstdlib>

#include "app/display_text.h"

namespace app {
namespace {

std::string Quoted(const std::string& word)
{
    return "\"" + EscapeForTerminal(word) + "\"";
}

int TimeoutFrom(const std::string& text)
{
    char* end = nullptr;
    errno = 0;
    const long value = std::strtol(text.c_str(), &end, 10);
    if (text.empty() || *end != '\0' || errno == ERANGE || value <= 0 || value > INT_MAX) {
        throw UsageError("--timeout needs a whole number of seconds above 0, not " + Quoted(text));
    }
    return static_cast<int>(value);
}

void ReadDeleteTarget(const std::vector<std::string>& words, CommandLine& line)
{
    if (words.size() < 2) {
        throw UsageError("delete needs what to delete: messages, calls, harassment or backup DEVICE");
    }
    const std::string& what = words[1];
    const size_t expected = what == "backup" ? 3 : 2;
    if (what == "messages") {
        line.target = DeleteTarget::Messages;
    } else if (what == "calls") {
        line.target = DeleteTarget::Calls;
    } else if (what == "harassment") {
        line.target = DeleteTarget::Harassment;
    } else if (what == "backup") {
        line.target = DeleteTarget::Backup;
        if (words.size() < 3) {
            throw UsageError("delete backup needs the device's id");
        }
        line.deviceId = words[2];
    } else {
        throw UsageError("cannot delete " + Quoted(what) + ": messages, calls, harassment or backup DEVICE");
    }
    if (words.size() > expected) {
        throw UsageError("unexpected argument " + Quoted(words[expected]));
    }
}

} // namespace

CommandLine ParseCommandLine(const std::vector<std::string>& arguments)
{
    CommandLine line;
    std::vector<std::string> words;
    bool help = false;
    bool version = false;
    for (size_t i = 0; i < arguments.size(); ++i) {
        const std::string& arg = arguments[i];
        const bool hasValue = i + 1 < arguments.size();
        if (arg == "--config" || arg == "--timeout") {
            if (!hasValue) {
                throw UsageError(arg + (arg == "--config" ? " needs a file" : " needs a number of seconds"));
            }
            const std::string& value = arguments[++i];
            if (arg == "--config") {
                line.configPath = value;
            } else {
                line.timeoutSeconds = TimeoutFrom(value);
            }
        } else if (arg == "--json") {
            line.json = true;
        } else if (arg == "--help" || arg == "-h") {
            help = true;
        } else if (arg == "--version") {
            version = true;
        } else if (!arg.empty() && arg[0] == '-') {
            throw UsageError("unknown option " + Quoted(arg));
        } else {
            words.push_back(arg);
        }
    }
    if (help || version) {
        line.command = help ? Command::Help : Command::Version;
        return line;
    }
    if (words.empty()) {
        throw UsageError("no subcommand given");
    }
    if (words[0] == "usage") {
        line.command = Command::Usage;
        if (words.size() > 1) {
            throw UsageError("unexpected argument " + Quoted(words[1]));
        }
    } else if (words[0] == "delete") {
        line.command = Command::Delete;
        ReadDeleteTarget(words, line);
        if (line.json) {
            throw UsageError("--json applies to usage only");
        }
    } else {
        throw UsageError("unknown subcommand " + Quoted(words[0]));
    }
    return line;
}

const char* ShortUsage()
{
    return "usage: spacemgm [window] [--png FILE] [--dump-controls FILE] [--lang L] [--scale S]\n"
           "                [--select TYPE] [--timeout SECONDS] [--res DIR] [--config FILE]\n"
           "       spacemgm usage [--json] [--config FILE] [--timeout SECONDS]\n"
           "       spacemgm delete messages|calls|harassment|backup DEVICE [--config FILE] [--timeout "
           "SECONDS]\n"
           "       spacemgm --help | --version\n";
}

std::string HelpText()
{
    return std::string("spacemgm: the cloud space management window of the desktop client.\n\n") +
           ShortUsage() +
           "\n"
           "Subcommands:\n"
           "  window              (the default) show the space window; when it closes, print its\n"
           "                      answer on one line: \"exit 1\" (closed) or \"exit 0 jump MESSAGE PARAM\"\n"
           "  usage               load the account once, as the window does, and print the quota, the\n"
           "                      five quota groups, the twelve categories and the backed-up devices\n"
           "  delete messages     delete all messages kept by the cloud backup service\n"
           "  delete calls        delete all call records kept by the cloud backup service\n"
           "  delete harassment   delete the harassment filter records kept in the file service\n"
           "  delete backup DEVICE\n"
           "                      delete the cloud backup of one device (its id, as usage lists it)\n"
           "  A deletion prints what the module returned, then loads the category again and says\n"
           "  whether the service still holds what was deleted.\n"
           "\n"
           "Options of window:\n"
           "  --png FILE          no real window: render offscreen once the load has ended and the\n"
           "                      bar stands still, and write the picture\n"
           "  --dump-controls FILE\n"
           "                      the control tree as JSON (docs/control-dump.md); with a real\n"
           "                      window, rewritten after each frame that changes it\n"
           "  --lang L            a language of Res/lang: en-US, zh-CN, ru-RU, th-TH (default: the\n"
           "                      configuration's)\n"
           "  --scale S           1 to 4 (default 1)\n"
           "  --select TYPE       with --png: click the row of a category, by number or name\n"
           "                      (Gallery, CloudBackUp, Phone, ...)\n"
           "  --timeout SECONDS   with --png: how long to wait for the load (default 30)\n"
           "  --res DIR           the folder holding Res/ (else $SPACEMGM_RESOURCE_ROOT, else the\n"
           "                      source tree)\n"
           "\n"
           "Exit status of window:\n"
           "  0  the window closed (its answer is on stdout), or the files were written\n"
           "  1  an output file cannot be written\n"
           "  2  bad command line or host configuration, a skin, image or language file that\n"
           "     cannot be used, a category with no row, or no display for a real window\n"
           "  3  the load did not end within --timeout; the files show what the window showed\n"
           "\n"
           "Options of usage and delete:\n"
           "  --config FILE       the host configuration (else $SPACEMGM_CONFIG, else\n"
           "                      $XDG_CONFIG_HOME/spacemgm/spacemgm.json); see docs/host-config.md\n"
           "  --json              usage: print one JSON document instead of text, with the failed\n"
           "                      exchanges under \"errors\"\n"
           "  --timeout SECONDS   end any exchange with a service that takes longer than this\n"
           "  -h, --help          print this help and exit\n"
           "  --version           print the version and exit\n"
           "\n"
           "Each exchange with a service that failed is listed on stderr, one line each.\n"
           "\n"
           "Exit status of usage and delete:\n"
           "  0  done; for delete, the reload confirms the deletion\n"
           "  1  delete: the module reported that the deletion failed\n"
           "  2  bad command line or host configuration, or no service configured\n"
           "  3  an exchange with a service failed; for delete, the reload that checks the\n"
           "     deletion could not be done\n"
           "  4  delete: the module reported success, but the service still holds what was deleted\n";
}

std::string VersionText()
{
    return std::string("spacemgm ") + SPACEMGM_VERSION + "\n";
}

} // namespace app
