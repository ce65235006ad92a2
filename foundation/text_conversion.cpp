// Conversions between narrow text in a code page and wide text (UTF-32 on
// Linux). UTF-8 is decoded and encoded here, strictly; any other code page
// goes through iconv(3) with UTF-8 as the pivot.
#include "foundation/utilities.h"

#include <cerrno>
#include <iconv.h>

namespace {

bool IsScalarValue(uint32_t cp)
{
    return cp <= 0x10FFFF && !(cp >= 0xD800 && cp <= 0xDFFF);
}

bool DecodeUtf8(const std::string& in, std::wstring& out)
{
    std::wstring result;
    result.reserve(in.size());
    size_t i = 0;
    const size_t n = in.size();
    while (i < n) {
        const auto lead = static_cast<unsigned char>(in[i]);
        if (lead < 0x80) {
            result.push_back(static_cast<wchar_t>(lead));
            ++i;
            continue;
        }
        // Continuation bytes after the lead, the lead's payload bits, and the
        // smallest value that needs this length (anything less is overlong).
        size_t extra = 0;
        uint32_t cp = 0;
        uint32_t minimum = 0;
        if ((lead & 0xE0) == 0xC0) {
            extra = 1;
            cp = lead & 0x1F;
            minimum = 0x80;
        } else if ((lead & 0xF0) == 0xE0) {
            extra = 2;
            cp = lead & 0x0F;
            minimum = 0x800;
        } else if ((lead & 0xF8) == 0xF0) {
            extra = 3;
            cp = lead & 0x07;
            minimum = 0x10000;
        } else {
            return false;
        }
        if (n - i <= extra) {
            return false;
        }
        for (size_t k = 1; k <= extra; ++k) {
            const auto next = static_cast<unsigned char>(in[i + k]);
            if ((next & 0xC0) != 0x80) {
                return false;
            }
            cp = (cp << 6) | (next & 0x3F);
        }
        if (cp < minimum || !IsScalarValue(cp)) {
            return false;
        }
        result.push_back(static_cast<wchar_t>(cp));
        i += extra + 1;
    }
    out.swap(result);
    return true;
}

bool EncodeUtf8(const std::wstring& in, std::string& out)
{
    std::string result;
    result.reserve(in.size());
    for (wchar_t wc : in) {
        const auto cp = static_cast<uint32_t>(wc);
        if (!IsScalarValue(cp)) {
            return false;
        }
        if (cp < 0x80) {
            result.push_back(static_cast<char>(cp));
        } else if (cp < 0x800) {
            result.push_back(static_cast<char>(0xC0 | (cp >> 6)));
            result.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
        } else if (cp < 0x10000) {
            result.push_back(static_cast<char>(0xE0 | (cp >> 12)));
            result.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
            result.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
        } else {
            result.push_back(static_cast<char>(0xF0 | (cp >> 18)));
            result.push_back(static_cast<char>(0x80 | ((cp >> 12) & 0x3F)));
            result.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
            result.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
        }
    }
    out.swap(result);
    return true;
}

bool IsUtf8CodePage(unsigned int codePage)
{
    return codePage == kCodePageUtf8 || codePage == kCodePageSystem;
}

std::string IconvName(unsigned int codePage)
{
    if (codePage == kCodePageGbk) {
        return "GBK";
    }
    return "CP" + std::to_string(codePage);
}

// Converts the whole of `in`; false on any invalid or incomplete sequence.
bool Iconv(const std::string& from, const std::string& to, const std::string& in, std::string& out)
{
    iconv_t cd = iconv_open(to.c_str(), from.c_str());
    if (cd == reinterpret_cast<iconv_t>(-1)) {
        return false;
    }
    std::string result(in.size() * 4 + 16, '\0');
    char* src = const_cast<char*>(in.data());
    size_t srcLeft = in.size();
    char* dst = result.data();
    size_t dstLeft = result.size();
    bool ok = true;
    while (srcLeft > 0) {
        if (iconv(cd, &src, &srcLeft, &dst, &dstLeft) == static_cast<size_t>(-1)) {
            if (errno == E2BIG) {
                const size_t used = result.size() - dstLeft;
                result.resize(result.size() * 2);
                dst = result.data() + used;
                dstLeft = result.size() - used;
                continue;
            }
            ok = false;
            break;
        }
    }
    if (ok && iconv(cd, nullptr, nullptr, &dst, &dstLeft) == static_cast<size_t>(-1)) {
        ok = false;
    }
    iconv_close(cd);
    if (!ok) {
        return false;
    }
    result.resize(result.size() - dstLeft);
    out.swap(result);
    return true;
}

} // namespace

bool NarrowToWide(const std::string& in, std::wstring& out, unsigned int codePage)
{
    if (in.empty()) {
        return false;
    }
    std::string utf8;
    if (IsUtf8CodePage(codePage)) {
        utf8 = in;
    } else if (!Iconv(IconvName(codePage), "UTF-8", in, utf8)) {
        return false;
    }
    std::wstring converted;
    if (!DecodeUtf8(utf8, converted) || converted.empty()) {
        return false;
    }
    out.swap(converted);
    return true;
}

bool WideToNarrow(const std::wstring& in, std::string& out, unsigned int codePage)
{
    if (in.empty()) {
        return false;
    }
    std::string utf8;
    if (!EncodeUtf8(in, utf8)) {
        return false;
    }
    if (!IsUtf8CodePage(codePage)) {
        std::string encoded;
        if (!Iconv("UTF-8", IconvName(codePage), utf8, encoded)) {
            return false;
        }
        utf8.swap(encoded);
    }
    out.swap(utf8);
    return true;
}

std::string WideToNarrowCopy(const std::wstring& in, unsigned int codePage)
{
    std::string out;
    if (!WideToNarrow(in, out, codePage)) {
        return {};
    }
    return out;
}

std::string WideToUtf8(const std::wstring& in)
{
    return WideToNarrowCopy(in, kCodePageUtf8);
}
