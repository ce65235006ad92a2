#pragma once
// The `spacemgm` program pointed at a running spacemgm-cloud, with a private
// data folder, and the fault rules a test sets on the emulator.
#include <string>
#include <vector>

#include <json/json.h>

#include "cloud_emulator.h"
#include "program_run.h"

namespace app_test {

inline ProgramRun RunAgainst(const spacemgm_test::CloudEmulator& cloud, std::vector<std::string> arguments,
                             bool stderrOnTerminal = false)
{
    ProgramOptions options;
    options.arguments = std::move(arguments);
    options.arguments.push_back("--config");
    options.arguments.push_back(cloud.ConfigPath());
    options.environment["XDG_DATA_HOME"] = cloud.WorkDir() + "/xdg";
    options.stderrOnTerminal = stderrOnTerminal;
    return RunProgram(options);
}

inline Json::Value Rule(const std::string& service, const std::string& kind)
{
    Json::Value rule;
    rule["service"] = service;
    rule["kind"] = kind;
    return rule;
}

inline Json::Value StatusRule(const std::string& service, int status, const std::string& body = "")
{
    Json::Value rule = Rule(service, "status");
    rule["status"] = status;
    if (!body.empty()) {
        rule["body"] = body;
    }
    return rule;
}

} // namespace app_test
