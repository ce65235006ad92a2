#pragma once
#include <string>
#include <sys/types.h>

namespace cloud {

// Files that hold the session token are for their owner alone.
constexpr mode_t kOwnerOnly = 0600;
constexpr mode_t kReadableByAll = 0644;

// Replaces `path` by `contents` with the given permissions, so that a crash
// at any moment leaves either the old file or the new one: write a temporary
// beside it, fsync, rename over, fsync the folder. Returns false with `error`
// set on failure.
bool WriteFileAtomically(const std::string& path, const std::string& contents, mode_t mode,
                         std::string& error);

} // namespace cloud
