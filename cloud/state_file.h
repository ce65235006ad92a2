#pragma once
#include <string>

namespace cloud {

// Replaces `path` by `contents` so that a crash at any moment leaves either
// the old file or the new one: write a temporary beside it, fsync, rename
// over, fsync the folder. Returns false with `error` set on failure.
bool WriteFileAtomically(const std::string& path, const std::string& contents, std::string& error);

} // namespace cloud
