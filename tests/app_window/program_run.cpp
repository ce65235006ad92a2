#include "program_run.h"

#include "../app/program_run.h"

#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>

namespace app_window_test {

ProgramResult RunProgram(const std::vector<std::string>& arguments,
                         const std::map<std::string, std::string>& environment)
{
    app_test::ProgramOptions options;
    options.arguments = arguments;
    options.environment = environment;
    options.timeoutSeconds = 120;
    const app_test::ProgramRun run = app_test::RunProgram(options);
    return ProgramResult{run.exitCode, run.out, run.err};
}

ProgramResult RunWindow(const spacemgm_test::CloudEmulator& cloud, std::vector<std::string> arguments,
                        std::map<std::string, std::string> environment)
{
    arguments.insert(arguments.begin(), {"window", "--config", cloud.ConfigPath()});
    environment.emplace("XDG_DATA_HOME", cloud.WorkDir() + "/data");
    return RunProgram(arguments, environment);
}

std::string OutputFolder(const std::string& name)
{
    const std::filesystem::path dir =
        std::filesystem::path(SPACEMGM_BINARY_DIR) / "test-output" / "app_window" / name;
    std::filesystem::create_directories(dir);
    return dir.string();
}

std::string CopyOfResources(const std::string& name)
{
    namespace fs = std::filesystem;
    const fs::path root = fs::path(OutputFolder("resources")) / name;
    fs::remove_all(root);
    fs::create_directories(root);
    fs::copy(fs::path(SPACEMGM_SOURCE_DIR) / "Res", root / "Res", fs::copy_options::recursive);
    return root.string();
}

std::string ReadWhole(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}

Json::Value ReadDump(const std::string& path)
{
    const std::string text = ReadWhole(path);
    Json::CharReaderBuilder builder;
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    Json::Value root;
    std::string errors;
    if (!reader->parse(text.data(), text.data() + text.size(), &root, &errors))
        return Json::Value();
    return root;
}

const Json::Value* FindControl(const Json::Value& control, const std::string& name)
{
    if (!control.isObject())
        return nullptr;
    if (control["name"].asString() == name)
        return &control;
    for (const Json::Value& child : control["children"]) {
        if (const Json::Value* found = FindControl(child, name))
            return found;
    }
    return nullptr;
}

bool PngSize(const std::string& path, int& width, int& height)
{
    const std::string data = ReadWhole(path);
    if (data.size() < 24 || data.compare(1, 3, "PNG") != 0)
        return false;
    auto word = [&data](std::size_t at) {
        unsigned value = 0;
        for (std::size_t i = 0; i < 4; ++i)
            value = (value << 8) | static_cast<unsigned char>(data[at + i]);
        return static_cast<int>(value);
    };
    width = word(16);
    height = word(20);
    return true;
}

} // namespace app_window_test
