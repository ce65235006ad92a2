#include "foundation/file_path.h"

#include <filesystem>

#include "foundation/utilities.h"

std::string CanonicalNarrowPath(const std::wstring& path)
{
    std::string narrow;
    if (!WideToNarrow(path, narrow, kCodePageSystem)) {
        return {};
    }
    return std::filesystem::path(narrow).lexically_normal().string();
}
