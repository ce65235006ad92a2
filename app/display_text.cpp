#include "app/display_text.h"

#include <cstdint>
#include <cstdio>

namespace app {
namespace {

// Decodes one UTF-8 sequence at `at`; returns its length, or 0 when the
// bytes there are not a well-formed, shortest-form sequence.
size_t DecodeUtf8(const std::string& text, size_t at, std::uint32_t& codePoint)
{
    const auto byte = [&](size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(at);
    size_t length = 0;
    std::uint32_t minimum = 0;
    if (lead < 0x80) {
        codePoint = lead;
        return 1;
    }
    if ((lead & 0xE0) == 0xC0) {
        length = 2, codePoint = lead & 0x1Fu, minimum = 0x80;
    } else if ((lead & 0xF0) == 0xE0) {
        length = 3, codePoint = lead & 0x0Fu, minimum = 0x800;
    } else if ((lead & 0xF8) == 0xF0) {
        length = 4, codePoint = lead & 0x07u, minimum = 0x10000;
    } else {
        return 0;
    }
    if (at + length > text.size()) {
        return 0;
    }
    for (size_t i = 1; i < length; ++i) {
        if ((byte(at + i) & 0xC0) != 0x80) {
            return 0;
        }
        codePoint = (codePoint << 6) | (byte(at + i) & 0x3Fu);
    }
    const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    return codePoint < minimum || codePoint > 0x10FFFF || surrogate ? 0 : length;
}

bool NeedsEscape(std::uint32_t c)
{
    const bool control = c < 0x20 || c == 0x7F || (c >= 0x80 && c <= 0x9F);
    const bool bidi = c == 0x061C || c == 0x200E || c == 0x200F || (c >= 0x202A && c <= 0x202E) ||
                      (c >= 0x2066 && c <= 0x2069);
    const bool separator = c == 0x2028 || c == 0x2029;
    return control || bidi || separator || c == '\\';
}

std::string Escaped(const char* format, unsigned value)
{
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, format, value);
    return buffer;
}

} // namespace

std::string EscapeForTerminal(const std::string& text)
{
    std::string out;
    out.reserve(text.size());
    for (size_t at = 0; at < text.size();) {
        std::uint32_t c = 0;
        const size_t length = DecodeUtf8(text, at, c);
        if (length == 0) {
            out += Escaped("\\x%02X", static_cast<unsigned char>(text[at]));
            ++at;
            continue;
        }
        if (c == '\\') {
            out += "\\\\";
        } else if (NeedsEscape(c)) {
            out += c < 0x80 ? Escaped("\\x%02X", c) : Escaped("\\u%04X", c);
        } else {
            out.append(text, at, length);
        }
        at += length;
    }
    return out;
}

} // namespace app
