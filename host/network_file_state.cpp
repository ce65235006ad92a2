// The "file" network mode: a word in a file, followed with inotify.

#include <sys/inotify.h>

#include <array>
#include <cerrno>
#include <climits>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "host/network_states.h"

namespace host {
namespace {

constexpr std::chrono::milliseconds kFolderRetry{10};
// Longer than any word we know; a longer file is no known word anyway.
constexpr std::size_t kLongestWord = 64;

constexpr uint32_t kFileEvents = IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE | IN_ATTRIB;
// The folder itself going away or moving: the watch no longer names the path.
constexpr uint32_t kFolderGone = IN_DELETE_SELF | IN_MOVE_SELF | IN_IGNORED;

std::string FolderOf(const std::string& path)
{
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    return folder.empty() ? "." : folder.string();
}

} // namespace

unsigned NetworkStateOfWord(std::string_view word)
{
    constexpr std::string_view kSpace = " \t\r\n\v\f";
    const std::size_t begin = word.find_first_not_of(kSpace);
    word = begin == std::string_view::npos ? std::string_view() : word.substr(begin);
    word = word.substr(0, word.find_last_not_of(kSpace) + 1);
    if (word.empty() || word == "online") {
        return kOnline;
    }
    if (word == "lan") {
        return kOnNetwork;
    }
    if (word == "wan") {
        return kInternetRoute;
    }
    return kOffline;
}

FileNetworkState::FileNetworkState(const std::string& path)
    : path_(path), folder_(FolderOf(path)), name_(std::filesystem::path(path).filename().string()),
      inotify_(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK))
{
    if (!inotify_) {
        throw std::system_error(errno, std::generic_category(), "inotify_init1");
    }
    std::lock_guard<std::mutex> lock(mutex_);
    // Watch first, then read, so that a change in between is not lost.
    if (!WatchFolder()) {
        nextFolderAttempt_ = std::chrono::steady_clock::now() + kFolderRetry;
    }
    ReadFile();
}

unsigned FileNetworkState::Current() const
{
    std::lock_guard<std::mutex> lock(mutex_);
    CatchUp();
    return state_;
}

void FileNetworkState::CatchUp() const
{
    if (watch_ >= 0) {
        if (DrainEvents()) {
            ReadFile();
        }
        if (watch_ >= 0) {
            return;
        }
        // The folder went with that change; look for it again below.
    }
    const auto now = std::chrono::steady_clock::now();
    if (now < nextFolderAttempt_) {
        return;
    }
    if (WatchFolder()) {
        ReadFile();
    } else {
        nextFolderAttempt_ = now + kFolderRetry;
    }
}

bool FileNetworkState::DrainEvents() const
{
    alignas(inotify_event) char buffer[16 * (sizeof(inotify_event) + NAME_MAX + 1)];
    bool changed = false;
    bool folderGone = false;
    ssize_t length;
    while ((length = ::read(inotify_.Get(), buffer, sizeof buffer)) > 0) {
        for (char* at = buffer; at < buffer + length;) {
            const auto* event = reinterpret_cast<const inotify_event*>(at);
            // Only the current watch counts: removing an old one reports
            // IN_IGNORED for it later.
            folderGone = folderGone || ((event->mask & kFolderGone) != 0 && event->wd == watch_);
            changed = changed || (event->len > 0 && name_ == event->name);
            at += sizeof(inotify_event) + event->len;
        }
    }
    if (folderGone) {
        ::inotify_rm_watch(inotify_.Get(), watch_); // fails harmlessly when already gone
        watch_ = -1;
        // A folder moved away leaves the file behind with it; one made again
        // under the same name is watched on the next attempt.
        if (!WatchFolder()) {
            nextFolderAttempt_ = std::chrono::steady_clock::now() + kFolderRetry;
        }
    }
    return changed || folderGone;
}

bool FileNetworkState::WatchFolder() const
{
    watch_ = ::inotify_add_watch(inotify_.Get(), folder_.c_str(), kFileEvents | kFolderGone | IN_ONLYDIR);
    return watch_ >= 0;
}

void FileNetworkState::ReadFile() const
{
    std::ifstream in(path_, std::ios::binary);
    if (!in) {
        state_ = kOffline; // no file, or one that cannot be read
        return;
    }
    std::array<char, kLongestWord + 1> text{};
    in.read(text.data(), static_cast<std::streamsize>(text.size()));
    const auto length = static_cast<std::size_t>(in.gcount());
    state_ = length > kLongestWord ? kOffline : NetworkStateOfWord(std::string_view(text.data(), length));
}

} // namespace host
