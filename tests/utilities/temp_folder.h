// A fresh folder under the build tree for one test, removed afterwards.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>

class TempFolder
{
public:
    TempFolder()
    {
        const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
        path_ = std::filesystem::path(SPACEMGM_BINARY_DIR) / "test-tmp" / "utilities" /
                (std::string(info->test_suite_name()) + "." + info->name());
        std::filesystem::remove_all(path_);
        std::filesystem::create_directories(path_);
    }
    ~TempFolder()
    {
        std::error_code ec;
        std::filesystem::remove_all(path_, ec);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }

    std::filesystem::path Write(const std::string& name, const std::string& content) const
    {
        const auto file = path_ / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream out(file, std::ios::binary);
        out << content;
        return file;
    }

private:
    std::filesystem::path path_;
};

inline std::wstring WidePath(const std::filesystem::path& path)
{
    return path.wstring();
}
