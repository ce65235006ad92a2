// Digests and sizes of files, read through buffered streams. A file that
// cannot be opened or read gives an empty digest (and a size of 0).
#include "foundation/utilities.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

#include <openssl/md5.h>
#include <openssl/sha.h>

#include "foundation/file_path.h"
#include "foundation/hex_digest.h"

namespace {

struct FileCloser
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using FilePtr = std::unique_ptr<std::FILE, FileCloser>;

FilePtr OpenForReading(const std::string& canonicalPath)
{
    if (canonicalPath.empty()) {
        return nullptr;
    }
    return FilePtr(std::fopen(canonicalPath.c_str(), "rb"));
}

constexpr size_t kStreamBlock = 102400;

// Feeds the whole file to `update` in blocks; false on a read error.
template <typename Update> bool ReadBlocks(std::FILE* file, Update update)
{
    std::vector<unsigned char> block(kStreamBlock);
    for (;;) {
        const size_t got = std::fread(block.data(), 1, block.size(), file);
        if (got > 0) {
            update(block.data(), got);
        }
        if (got < block.size()) {
            return std::ferror(file) == 0;
        }
    }
}

} // namespace

// The MD5_* and SHA256_* interfaces are deprecated in OpenSSL 3 but are the
// ones this module uses; they stay available and give the same digests.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

std::string Md5OfFile(const std::wstring& path, uint64_t& size)
{
    size = 0;
    FilePtr file = OpenForReading(CanonicalNarrowPath(path));
    if (!file) {
        return {};
    }
    MD5_CTX context;
    MD5_Init(&context);
    uint64_t total = 0;
    const bool ok = ReadBlocks(file.get(), [&](const unsigned char* data, size_t length) {
        MD5_Update(&context, data, length);
        total += length;
    });
    unsigned char digest[MD5_DIGEST_LENGTH];
    MD5_Final(digest, &context);
    if (!ok) {
        return {};
    }
    size = total;
    return HexDigest(digest, sizeof digest, HexCase::Lower);
}

std::string Sha256OfFile(const std::wstring& path)
{
    FilePtr file = OpenForReading(CanonicalNarrowPath(path));
    if (!file) {
        return {};
    }
    SHA256_CTX context;
    SHA256_Init(&context);
    const bool ok = ReadBlocks(
        file.get(), [&](const unsigned char* data, size_t length) { SHA256_Update(&context, data, length); });
    unsigned char digest[SHA256_DIGEST_LENGTH];
    SHA256_Final(digest, &context);
    if (!ok) {
        return {};
    }
    return HexDigest(digest, sizeof digest, HexCase::Lower);
}

#pragma GCC diagnostic pop

uint64_t GetFileSize64(const std::wstring& path)
{
    FilePtr file = OpenForReading(CanonicalNarrowPath(path));
    if (!file || fseeko(file.get(), 0, SEEK_END) != 0) {
        return 0;
    }
    const off_t end = ftello(file.get());
    return end < 0 ? 0 : static_cast<uint64_t>(end);
}

std::string FileSampleHashes(const std::wstring& path, const std::string& md5)
{
    const std::string canonicalPath = CanonicalNarrowPath(path);
    uint64_t size = 0;
    std::string digest = md5;
    // Only a call that computes the MD5 itself learns the size; with a given
    // MD5 the size stays 0 and the result is empty, which is what callers expect.
    if (digest.empty()) {
        digest = Md5OfFile(path, size);
    }
    FilePtr file = OpenForReading(canonicalPath);
    if (size == 0 || !file) {
        return {};
    }
    std::string samples[2];
    const char* const salts[] = {"1", "2"};
    for (int i = 0; i < 2; ++i) {
        const uint64_t start = Crc32(digest + salts[i]) % size;
        const uint64_t end = std::min(start + 4096, size - 1);
        // A short read leaves zero bytes, and those are hashed too.
        std::string buffer(static_cast<size_t>(end - start + 1), '\0');
        if (fseeko(file.get(), static_cast<off_t>(start), SEEK_SET) == 0) {
            std::fread(buffer.data(), 1, buffer.size(), file.get());
        }
        samples[i] = Md5OfString(buffer);
    }
    return "[\"" + samples[0] + "\",\"" + samples[1] + "\"]";
}
