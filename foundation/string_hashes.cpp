// Digests of text: MD5 for signatures and samples, CRC-32 for sample offsets.
#include "foundation/utilities.h"

#include <cstdio>
#include <mutex>

#include <openssl/md5.h>

#include "foundation/hex_digest.h"

std::string Md5OfString(const std::string& text)
{
    unsigned char digest[MD5_DIGEST_LENGTH];
// The MD5_* interface is deprecated in OpenSSL 3 but is what this module
// uses; it stays available and gives the same digests.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    MD5_CTX context;
    MD5_Init(&context);
    MD5_Update(&context, text.data(), text.size());
    MD5_Final(digest, &context);
#pragma GCC diagnostic pop
    return HexDigest(digest, sizeof digest, HexCase::Lower);
}

namespace {

// The table is process-wide and rebuilt on every call. It is sized once, so
// it never moves under a reader, and the rebuild with the checksum that
// reads it run under one lock, so concurrent calls cannot race on it.
std::mutex crcTableMutex;
std::vector<uint32_t> crcTable(256);

void RebuildCrcTable()
{
    for (uint32_t i = 0; i < 256; ++i) {
        uint32_t entry = i;
        for (int bit = 0; bit < 8; ++bit) {
            entry = (entry & 1u) ? (entry >> 1) ^ 0xEDB88320u : entry >> 1;
        }
        crcTable[i] = entry;
    }
}

} // namespace

uint64_t Crc32(const std::string& text)
{
    std::lock_guard<std::mutex> lock(crcTableMutex);
    RebuildCrcTable();
    uint32_t crc = 0xFFFFFFFFu;
    for (char c : text) {
        crc = crcTable[(crc ^ static_cast<unsigned char>(c)) & 0xFFu] ^ (crc >> 8);
    }
    return static_cast<uint64_t>(crc ^ 0xFFFFFFFFu);
}
