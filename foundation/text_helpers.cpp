// Text helpers: plural keys, URL and Base64 encoding, case-insensitive
// replacement, splitting, digit parsing and the small string utilities.
#include "foundation/utilities.h"

#include <array>
#include <cctype>
#include <cwctype>

std::wstring PluralKey(const std::wstring& language, int count, const std::wstring& key)
{
    const wchar_t* suffix;
    if (language == L"ru-RU") {
        const int tens = count % 100;
        const int units = count % 10;
        if (units == 1) {
            suffix = tens != 11 ? L"_ONE" : L"_OTHER";
        } else if (units >= 2 && units <= 4) {
            // 12 to 14 take "_OTHER", not "_MANY": the resources are written that way.
            suffix = (tens >= 12 && tens <= 14) ? L"_OTHER" : L"_FEW";
        } else {
            suffix = L"_MANY";
        }
    } else {
        suffix = count < 2 ? L"_ONE" : L"_OTHER";
    }
    return key + suffix;
}

std::string UrlEncode(std::string text)
{
    static const char kHex[] = "0123456789abcdef";
    std::string encoded;
    encoded.reserve(text.size() * 3);
    for (char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const bool plain = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
                           (byte >= '0' && byte <= '9') || byte == '*' || byte == '-' || byte == '.' ||
                           byte == '_';
        if (plain) {
            encoded.push_back(c);
        } else {
            encoded.push_back('%');
            encoded.push_back(kHex[byte >> 4]);
            encoded.push_back(kHex[byte & 0x0F]);
        }
    }
    return encoded;
}

std::string Base64Encode(const void* data, int length)
{
    static const char kAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    if (data == nullptr || length <= 0) {
        return {};
    }
    const auto* bytes = static_cast<const unsigned char*>(data);
    const auto size = static_cast<size_t>(length);
    std::string encoded;
    encoded.reserve((size + 2) / 3 * 4);
    size_t i = 0;
    for (; i + 3 <= size; i += 3) {
        const uint32_t triple = (bytes[i] << 16) | (bytes[i + 1] << 8) | bytes[i + 2];
        encoded.push_back(kAlphabet[(triple >> 18) & 0x3F]);
        encoded.push_back(kAlphabet[(triple >> 12) & 0x3F]);
        encoded.push_back(kAlphabet[(triple >> 6) & 0x3F]);
        encoded.push_back(kAlphabet[triple & 0x3F]);
    }
    const size_t rest = size - i;
    if (rest > 0) {
        uint32_t triple = bytes[i] << 16;
        if (rest == 2) {
            triple |= bytes[i + 1] << 8;
        }
        encoded.push_back(kAlphabet[(triple >> 18) & 0x3F]);
        encoded.push_back(kAlphabet[(triple >> 12) & 0x3F]);
        encoded.push_back(rest == 2 ? kAlphabet[(triple >> 6) & 0x3F] : '=');
        encoded.push_back('=');
    }
    return encoded;
}

namespace {

char LowerByte(char c)
{
    return static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
}

wchar_t LowerWide(wchar_t c)
{
    return static_cast<wchar_t>(std::towlower(static_cast<wint_t>(c)));
}

// Matches are found in lower-cased copies; the replacement is written into
// the original text, whose unmatched parts keep their case. When `to` is
// longer, the text is sized for all matches first so it is rewritten once.
template <typename String, typename Lower>
void ReplaceNoCaseImpl(const String& from, const String& to, String& text, Lower lower)
{
    if (from.empty() || text.empty()) {
        return;
    }
    String lowerText = text;
    String lowerFrom = from;
    for (auto& c : lowerText) {
        c = lower(c);
    }
    for (auto& c : lowerFrom) {
        c = lower(c);
    }
    std::vector<size_t> matches;
    for (size_t pos = lowerText.find(lowerFrom); pos != String::npos;
         pos = lowerText.find(lowerFrom, pos + lowerFrom.size())) {
        matches.push_back(pos);
    }
    if (matches.empty()) {
        return;
    }
    String result;
    if (to.size() > from.size()) {
        result.reserve(text.size() + matches.size() * (to.size() - from.size()));
    } else {
        result.reserve(text.size());
    }
    size_t copied = 0;
    for (size_t pos : matches) {
        result.append(text, copied, pos - copied);
        result.append(to);
        copied = pos + from.size();
    }
    result.append(text, copied, String::npos);
    text.swap(result);
}

} // namespace

void ReplaceNoCase(const std::string& from, const std::string& to, std::string& text)
{
    ReplaceNoCaseImpl(from, to, text, LowerByte);
}

void ReplaceNoCase(const std::wstring& from, const std::wstring& to, std::wstring& text)
{
    ReplaceNoCaseImpl(from, to, text, LowerWide);
}

void SplitByAny(const std::string& text, const std::vector<std::string>& delimiters,
                std::vector<std::string>& out)
{
    out.clear();
    size_t position = 0;
    while (position < text.size()) {
        // The first delimiter of the list that occurs at all wins, even if a
        // later one would occur sooner.
        size_t match = std::string::npos;
        size_t matchLength = 0;
        for (const auto& delimiter : delimiters) {
            if (delimiter.empty()) {
                continue;
            }
            match = text.find(delimiter, position);
            if (match != std::string::npos) {
                matchLength = delimiter.size();
                break;
            }
        }
        if (match == std::string::npos) {
            break;
        }
        out.push_back(text.substr(position, match - position));
        position = match + matchLength;
    }
    if (position < text.size()) {
        out.push_back(text.substr(position));
    }
}

std::vector<std::string> SplitList(const std::string& text)
{
    std::vector<std::string> tokens;
    const char* p = text.c_str();
    const auto isSpace = [](char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; };
    do {
        while (isSpace(*p)) {
            ++p;
        }
        std::string token;
        while (*p != '\0' && !isSpace(*p) && *p != ',') {
            // Appends the rest of the text from here on, not the one
            // character: callers only read a leading single digit from it.
            token.append(p);
            ++p;
        }
        tokens.push_back(token);
        while (isSpace(*p)) {
            ++p;
        }
        if (*p == ',') {
            ++p;
        }
    } while (*p != '\0');
    return tokens;
}

bool ParseDigits(const std::string& text, uint32_t& value)
{
    value = 0;
    for (char c : text) {
        if (c < '0' || c > '9') {
            return false;
        }
        value = value * 10u + static_cast<uint32_t>(c - '0');
    }
    return true;
}

std::string ToLowerCopy(const std::string& text)
{
    std::string lower = text;
    for (auto& c : lower) {
        c = LowerByte(c);
    }
    return lower;
}

bool Contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

size_t FindLastOf(const char* text, size_t length, const char* set, size_t setLength)
{
    if (length == 0 || setLength == 0) {
        return std::string::npos;
    }
    std::array<bool, 256> inSet{};
    for (size_t i = 0; i < setLength; ++i) {
        inSet[static_cast<unsigned char>(set[i])] = true;
    }
    for (size_t i = length; i-- > 0;) {
        if (inSet[static_cast<unsigned char>(text[i])]) {
            return i;
        }
    }
    return std::string::npos;
}

uint32_t HashString(const std::string& text)
{
    uint32_t hash = 13;
    for (char c : text) {
        hash = hash * 131u + static_cast<uint32_t>(static_cast<int32_t>(static_cast<signed char>(c)));
    }
    return hash;
}

std::wstring UIntToWide(uint32_t value)
{
    return std::to_wstring(value);
}
