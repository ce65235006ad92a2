#include "state_file.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace cloud {

static bool WriteAll(int fd, const std::string& contents)
{
    size_t done = 0;
    while (done < contents.size()) {
        ssize_t n = ::write(fd, contents.data() + done, contents.size() - done);
        if (n < 0) {
            if (errno == EINTR)
                continue;
            return false;
        }
        done += static_cast<size_t>(n);
    }
    return true;
}

bool WriteFileAtomically(const std::string& path, const std::string& contents, mode_t mode,
                         std::string& error)
{
    std::string temporary = path + ".tmp." + std::to_string(::getpid());
    int fd = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, mode);
    if (fd < 0) {
        error = temporary + ": " + std::strerror(errno);
        return false;
    }
    // A temporary left by an earlier run keeps its old mode through O_TRUNC.
    bool written = ::fchmod(fd, mode) == 0 && WriteAll(fd, contents) && ::fsync(fd) == 0;
    int saved = errno;
    ::close(fd);
    if (!written) {
        ::unlink(temporary.c_str());
        error = temporary + ": " + std::strerror(saved);
        return false;
    }
    if (::rename(temporary.c_str(), path.c_str()) != 0) {
        error = path + ": " + std::strerror(errno);
        ::unlink(temporary.c_str());
        return false;
    }
    std::string folder = path.find('/') == std::string::npos ? "." : path.substr(0, path.rfind('/'));
    if (folder.empty())
        folder = "/";
    int dir = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (dir >= 0) {
        ::fsync(dir);
        ::close(dir);
    }
    return true;
}

} // namespace cloud
