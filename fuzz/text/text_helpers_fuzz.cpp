// Arbitrary bytes through the text helpers that read what a server or a user
// sends: conversions must round-trip whatever they accept, and the parsers
// must stay inside their input.
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "foundation/utilities.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);

    std::wstring wide;
    if (NarrowToWide(text, wide, kCodePageUtf8)) {
        std::string back;
        if (!WideToNarrow(wide, back, kCodePageUtf8) || back != text) {
            __builtin_trap();
        }
    }

    // SplitList builds long tokens on purpose; keep the input short enough
    // that its quadratic growth stays cheap.
    if (size <= 256) {
        (void)SplitList(text);
    }
    uint32_t value = 0;
    (void)ParseDigits(text, value);

    const size_t half = size / 2;
    std::string subject = text.substr(0, half);
    ReplaceNoCase(text.substr(half, 4), "<>", subject);

    std::vector<std::string> parts;
    SplitByAny(text, {",", ";", ""}, parts);

    const std::string encoded = UrlEncode(text);
    for (char c : encoded) {
        const bool plain = std::isalnum(static_cast<unsigned char>(c)) || c == '%' || c == '*' || c == '-' ||
                           c == '.' || c == '_';
        if (!plain) {
            __builtin_trap();
        }
    }
    (void)Base64Encode(data, static_cast<int>(size));
    (void)HashString(text);

    Json::Value parsed;
    (void)ParseJson(text, parsed);
    return 0;
}
