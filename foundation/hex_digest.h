// Writes a digest as hexadecimal text, two digits per byte.
#pragma once

#include <cstddef>
#include <string>

enum class HexCase
{
    Lower,
    Upper
};

inline std::string HexDigest(const unsigned char* digest, size_t length, HexCase hexCase)
{
    const char* digits = hexCase == HexCase::Lower ? "0123456789abcdef" : "0123456789ABCDEF";
    std::string text;
    text.reserve(length * 2);
    for (size_t i = 0; i < length; ++i) {
        text.push_back(digits[digest[i] >> 4]);
        text.push_back(digits[digest[i] & 0x0F]);
    }
    return text;
}
