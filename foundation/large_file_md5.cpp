// MD5 of a large file through the system's file interface: positioned reads
// of 4 MiB chunks, digest in upper-case hexadecimal.
#include "foundation/utilities.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <new>
#include <sys/stat.h>
#include <unistd.h>

#include <openssl/md5.h>

#include "foundation/file_path.h"
#include "foundation/hex_digest.h"

namespace {

constexpr size_t kChunk = 4194304;

class FileDescriptor
{
public:
    explicit FileDescriptor(int descriptor) : fd(descriptor) {}
    ~FileDescriptor()
    {
        if (fd >= 0) {
            close(fd);
        }
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    int get() const { return fd; }

private:
    int fd;
};

enum class ChunkRead
{
    Done,
    Unavailable, // interrupted twice: skipped, the walk goes on
    Failed,
};

// Reads one chunk at its offset. An interrupted read is retried once, the
// counterpart of waiting on a pending overlapped read.
ChunkRead ReadChunk(int fd, unsigned char* buffer, size_t length, off_t offset, size_t& got)
{
    for (int attempt = 0; attempt < 2; ++attempt) {
        const ssize_t n = pread(fd, buffer, length, offset);
        if (n >= 0) {
            got = static_cast<size_t>(n);
            return ChunkRead::Done;
        }
        if (errno != EINTR && errno != EAGAIN) {
            return ChunkRead::Failed;
        }
    }
    return ChunkRead::Unavailable;
}

} // namespace

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

std::string Md5OfFileLarge(const std::wstring& path)
{
    const std::string canonicalPath = CanonicalNarrowPath(path);
    if (canonicalPath.empty()) {
        return {};
    }
    FileDescriptor file(open(canonicalPath.c_str(), O_RDONLY | O_CLOEXEC));
    if (file.get() < 0) {
        return {};
    }
    std::unique_ptr<unsigned char[]> buffer(new (std::nothrow) unsigned char[kChunk]);
    if (!buffer) {
        return {};
    }
    struct stat info;
    if (fstat(file.get(), &info) != 0) {
        return {};
    }
    const auto fileSize = static_cast<uint64_t>(info.st_size);

    MD5_CTX context;
    MD5_Init(&context);
    for (uint64_t offset = 0; offset < fileSize; offset += kChunk) {
        const auto length = static_cast<size_t>(std::min<uint64_t>(kChunk, fileSize - offset));
        size_t got = 0;
        const ChunkRead read = ReadChunk(file.get(), buffer.get(), length, static_cast<off_t>(offset), got);
        if (read == ChunkRead::Failed) {
            std::memset(buffer.get(), 0, kChunk);
            return {};
        }
        if (read == ChunkRead::Done) {
            MD5_Update(&context, buffer.get(), got);
        }
    }
    unsigned char digest[MD5_DIGEST_LENGTH];
    MD5_Final(digest, &context);
    std::memset(buffer.get(), 0, kChunk);
    return HexDigest(digest, sizeof digest, HexCase::Upper);
}

#pragma GCC diagnostic pop
