#pragma once
// A fresh folder under /tmp for one test, removed with everything in it.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace spacemgm_test {

class ScratchFolder
{
public:
    ScratchFolder()
    {
        char pattern[] = "/tmp/spacemgm-cloud-test-XXXXXX";
        if (!::mkdtemp(pattern))
            throw std::runtime_error("mkdtemp failed");
        path_ = pattern;
    }
    ~ScratchFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::string& Path() const { return path_; }
    std::string operator/(const std::string& name) const { return path_ + "/" + name; }

    // Writes `text` to `name` (folders created as needed) and returns its path.
    std::string Write(const std::string& name, const std::string& text) const
    {
        const std::filesystem::path file = *this / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << text;
        return file.string();
    }

private:
    std::string path_;
};

} // namespace spacemgm_test
