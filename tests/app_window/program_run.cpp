#include "program_run.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>

namespace app_window_test {

namespace {

std::string ShellQuoted(const std::string& word)
{
    std::string quoted = "'";
    for (char c : word)
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + "'";
}

} // namespace

ProgramResult RunProgram(const std::vector<std::string>& arguments, const std::string& environment)
{
    static int runs = 0;
    const std::string folder = OutputFolder("runs");
    const std::string stem = folder + "/run" + std::to_string(::getpid()) + "_" + std::to_string(++runs);
    std::string command = environment + " " + ShellQuoted(SPACEMGM_PROGRAM_PATH);
    for (const std::string& argument : arguments)
        command += " " + ShellQuoted(argument);
    command += " >" + ShellQuoted(stem + ".out") + " 2>" + ShellQuoted(stem + ".err") + " </dev/null";
    const int status = std::system(command.c_str());
    ProgramResult result;
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    result.out = ReadWhole(stem + ".out");
    result.err = ReadWhole(stem + ".err");
    return result;
}

ProgramResult RunWindow(const spacemgm_test::CloudEmulator& cloud, std::vector<std::string> arguments,
                        const std::string& environment)
{
    arguments.insert(arguments.begin(), {"window", "--config", cloud.ConfigPath()});
    return RunProgram(arguments,
                      "XDG_DATA_HOME=" + ShellQuoted(cloud.WorkDir() + "/data") + " " + environment);
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
