#pragma once
// Runs `spacemgm window` as a child process, the way a person or a script
// does (through the program runner of tests/app), and reads what it wrote.
#include <map>
#include <string>
#include <vector>

#include <json/json.h>

#include "cloud_emulator.h"

namespace app_window_test {

struct ProgramResult
{
    int exitCode = -1;
    std::string out;
    std::string err;
};

// `environment` is set on top of the test's own; an empty value unsets.
ProgramResult RunProgram(const std::vector<std::string>& arguments,
                         const std::map<std::string, std::string>& environment = {});

// `spacemgm window ARGUMENTS` against the emulator's account, with a data
// folder of the emulator's.
ProgramResult RunWindow(const spacemgm_test::CloudEmulator& cloud, std::vector<std::string> arguments,
                        std::map<std::string, std::string> environment = {});

// A fresh folder under build/test-output/app_window/.
std::string OutputFolder(const std::string& name);
// A copy of Res/ under a fresh folder, for a test that breaks one file.
std::string CopyOfResources(const std::string& name);

std::string ReadWhole(const std::string& path);
// The control dump in `path`; a null value when it cannot be parsed.
Json::Value ReadDump(const std::string& path);
// The first control of that name, depth first, or null.
const Json::Value* FindControl(const Json::Value& control, const std::string& name);

// Width and height from a PNG's header; false if it is not a PNG.
bool PngSize(const std::string& path, int& width, int& height);

} // namespace app_window_test
