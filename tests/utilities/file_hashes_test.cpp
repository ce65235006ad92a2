#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

#include "foundation/utilities.h"
#include "temp_folder.h"

namespace {

std::string Upper(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::toupper(c); });
    return text;
}

std::string PatternBytes(size_t size)
{
    std::string bytes(size, '\0');
    uint32_t state = 12345;
    for (auto& b : bytes) {
        state = state * 1103515245u + 12345u;
        b = static_cast<char>(state >> 24);
    }
    return bytes;
}

} // namespace

TEST(Md5OfFile, DigestAndSizeOfAFile)
{
    TempFolder folder;
    const auto file = folder.Write("message.txt", "message digest");
    uint64_t size = 0;
    EXPECT_EQ(Md5OfFile(WidePath(file), size), "f96b697d7cb7938d525a2f31aaf161d0");
    EXPECT_EQ(size, 14u);
}

TEST(Md5OfFile, SpansSeveralReadBlocks)
{
    TempFolder folder;
    const std::string content = PatternBytes(102400 * 3 + 17);
    const auto file = folder.Write("blocks.bin", content);
    uint64_t size = 0;
    EXPECT_EQ(Md5OfFile(WidePath(file), size), Md5OfString(content));
    EXPECT_EQ(size, content.size());
}

TEST(Md5OfFile, MissingFileGivesEmptyAndSizeZero)
{
    TempFolder folder;
    uint64_t size = 77;
    EXPECT_EQ(Md5OfFile(WidePath(folder.Path() / "absent"), size), "");
    EXPECT_EQ(size, 0u);
}

TEST(Md5OfFile, ReadErrorGivesEmpty)
{
    TempFolder folder;
    uint64_t size = 77;
    // A folder opens but cannot be read.
    EXPECT_EQ(Md5OfFile(WidePath(folder.Path()), size), "");
    EXPECT_EQ(size, 0u);
}

TEST(Md5OfFile, PathIsCanonicalisedLexically)
{
    TempFolder folder;
    const auto file = folder.Write("abc.txt", "abc");
    uint64_t size = 0;
    const std::wstring path = WidePath(folder.Path() / "no-such-folder" / ".." / "." / "abc.txt");
    EXPECT_EQ(Md5OfFile(path, size), "900150983cd24fb0d6963f7d28e17f72");
}

TEST(Sha256OfFile, Fips180Vectors)
{
    TempFolder folder;
    const std::pair<std::string, const char*> vectors[] = {
        {"abc", "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"},
        {"abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq",
         "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1"},
        {std::string(1000000, 'a'), "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0"},
    };
    int index = 0;
    for (const auto& [content, digest] : vectors) {
        const auto file = folder.Write("v" + std::to_string(index++), content);
        EXPECT_EQ(Sha256OfFile(WidePath(file)), digest);
    }
}

TEST(Sha256OfFile, MissingFileGivesEmpty)
{
    TempFolder folder;
    EXPECT_EQ(Sha256OfFile(WidePath(folder.Path() / "absent")), "");
}

TEST(Md5OfFileLarge, UpperCaseDigest)
{
    TempFolder folder;
    const auto file = folder.Write("abc.txt", "abc");
    EXPECT_EQ(Md5OfFileLarge(WidePath(file)), "900150983CD24FB0D6963F7D28E17F72");
}

TEST(Md5OfFileLarge, ReadsInFourMebibyteChunks)
{
    TempFolder folder;
    const std::string content = PatternBytes(4194304 * 2 + 123);
    const auto file = folder.Write("large.bin", content);
    EXPECT_EQ(Md5OfFileLarge(WidePath(file)), Upper(Md5OfString(content)));
}

TEST(Md5OfFileLarge, EmptyFileIsTheDigestOfNothing)
{
    TempFolder folder;
    const auto file = folder.Write("empty", "");
    EXPECT_EQ(Md5OfFileLarge(WidePath(file)), "D41D8CD98F00B204E9800998ECF8427E");
}

TEST(Md5OfFileLarge, MissingFileOrReadErrorGivesEmpty)
{
    TempFolder folder;
    EXPECT_EQ(Md5OfFileLarge(WidePath(folder.Path() / "absent")), "");
    EXPECT_EQ(Md5OfFileLarge(WidePath(folder.Path())), "");
}

TEST(GetFileSize64, SizeOfACanonicalisedPath)
{
    TempFolder folder;
    folder.Write("sized.bin", std::string(12345, 'x'));
    EXPECT_EQ(GetFileSize64(WidePath(folder.Path() / "missing" / ".." / "sized.bin")), 12345u);
}

TEST(GetFileSize64, MissingFileIsZero)
{
    TempFolder folder;
    EXPECT_EQ(GetFileSize64(WidePath(folder.Path() / "absent")), 0u);
}

TEST(FileSampleHashes, EmptyFileReturnsEmpty)
{
    TempFolder folder;
    const auto file = folder.Write("empty", "");
    EXPECT_EQ(FileSampleHashes(WidePath(file), ""), "");
}

TEST(FileSampleHashes, GivenMd5ReturnsEmpty)
{
    TempFolder folder;
    const auto file = folder.Write("data", "some content");
    EXPECT_EQ(FileSampleHashes(WidePath(file), Md5OfString("some content")), "");
}

TEST(FileSampleHashes, MissingFileReturnsEmpty)
{
    TempFolder folder;
    EXPECT_EQ(FileSampleHashes(WidePath(folder.Path() / "absent"), ""), "");
}

TEST(FileSampleHashes, TwoSaltedSamplesAsAJsonArray)
{
    TempFolder folder;
    const std::string content = PatternBytes(20000);
    const auto file = folder.Write("sampled.bin", content);
    const std::string md5 = Md5OfString(content);

    std::string expected[2];
    const char* salts[] = {"1", "2"};
    for (int i = 0; i < 2; ++i) {
        const uint64_t start = Crc32(md5 + salts[i]) % content.size();
        const uint64_t end = std::min<uint64_t>(start + 4096, content.size() - 1);
        expected[i] = Md5OfString(content.substr(start, end - start + 1));
    }
    EXPECT_EQ(FileSampleHashes(WidePath(file), ""), "[\"" + expected[0] + "\",\"" + expected[1] + "\"]");
}

TEST(FileSampleHashes, SampleOfASmallFileEndsAtItsLastByte)
{
    TempFolder folder;
    const std::string content = "hello world";
    const auto file = folder.Write("small.txt", content);
    const std::string md5 = Md5OfString(content);
    const uint64_t start = Crc32(md5 + "1") % content.size();
    const std::string result = FileSampleHashes(WidePath(file), "");
    ASSERT_EQ(result.size(), 2u + 32u + 3u + 32u + 2u);
    EXPECT_EQ(result.substr(2, 32), Md5OfString(content.substr(start)));
}
