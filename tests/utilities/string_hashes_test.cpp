#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "foundation/utilities.h"

TEST(Md5OfString, Rfc1321TestSuite)
{
    const std::pair<const char*, const char*> suite[] = {
        {"", "d41d8cd98f00b204e9800998ecf8427e"},
        {"a", "0cc175b9c0f1b6a831c399e269772661"},
        {"abc", "900150983cd24fb0d6963f7d28e17f72"},
        {"message digest", "f96b697d7cb7938d525a2f31aaf161d0"},
        {"abcdefghijklmnopqrstuvwxyz", "c3fcd3d76192e4007dfb496cca67e13b"},
        {"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789",
         "d174ab98d277d9f5a5611c2c9f419d9f"},
        {"12345678901234567890123456789012345678901234567890123456789012345678901234567890",
         "57edf4a22be3c955ac49da2e2107b67a"},
    };
    for (const auto& [input, digest] : suite) {
        EXPECT_EQ(Md5OfString(input), digest) << input;
    }
}

TEST(Md5OfString, HashesEmbeddedZeroBytes)
{
    EXPECT_NE(Md5OfString(std::string("a\0b", 3)), Md5OfString("a"));
    EXPECT_EQ(Md5OfString(std::string(1, '\0')), "93b885adfe0da089cdf634904fd59f71");
}

TEST(Crc32, CheckValueOf123456789)
{
    EXPECT_EQ(Crc32("123456789"), 0xCBF43926u);
}

TEST(Crc32, EmptyTextGivesZero)
{
    EXPECT_EQ(Crc32(""), 0u);
}

TEST(Crc32, ChecksumSitsInTheLowThirtyTwoBits)
{
    EXPECT_EQ(Crc32("The quick brown fox jumps over the lazy dog"), 0x414FA339u);
    EXPECT_EQ(Crc32("a") >> 32, 0u);
}

TEST(Crc32, ConcurrentCallsAgree)
{
    std::atomic<int> wrong{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < 6; ++t) {
        threads.emplace_back([&wrong] {
            for (int i = 0; i < 500; ++i) {
                if (Crc32("123456789") != 0xCBF43926u) {
                    ++wrong;
                }
            }
        });
    }
    for (auto& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(wrong.load(), 0);
}
