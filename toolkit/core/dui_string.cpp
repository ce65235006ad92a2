#include "toolkit/core/dui_string.h"

#include <cstdarg>
#include <cwchar>
#include <cwctype>
#include <vector>

namespace DuiLib {

namespace {

// Skin texts are written with the Windows wide-printf conventions, where %s
// and %c take wide arguments and %S and %C narrow ones; glibc reads them the
// other way round, so conversions are rewritten to the explicit forms.
std::wstring ToPortableFormat(const wchar_t* format)
{
    std::wstring out;
    for (const wchar_t* p = format; *p != 0; ++p) {
        out += *p;
        if (*p != L'%')
            continue;
        if (p[1] == L'%') {
            out += *++p;
            continue;
        }
        bool hasLength = false;
        while (p[1] != 0 && std::wcschr(L"-+ #0123456789.*hlLqjzt", p[1]) != nullptr) {
            if (std::wcschr(L"hlLqjzt", p[1]) != nullptr)
                hasLength = true;
            out += *++p;
        }
        const wchar_t conversion = p[1];
        if (conversion == 0)
            break;
        ++p;
        if (!hasLength && (conversion == L's' || conversion == L'c')) {
            out += L'l';
            out += conversion;
        } else if (!hasLength && (conversion == L'S' || conversion == L'C')) {
            out += static_cast<wchar_t>(std::towlower(static_cast<wint_t>(conversion)));
        } else {
            out += conversion;
        }
    }
    return out;
}

int FormatInto(std::wstring& out, const wchar_t* rawFormat, va_list args)
{
    out.clear();
    if (rawFormat == nullptr)
        return 0;
    const std::wstring portable = ToPortableFormat(rawFormat);
    const wchar_t* format = portable.c_str();
    // vswprintf reports truncation only by failing, so grow until it fits.
    std::vector<wchar_t> buffer(256);
    for (int attempt = 0; attempt < 16; ++attempt) {
        va_list copy;
        va_copy(copy, args);
        const int written = std::vswprintf(buffer.data(), buffer.size(), format, copy);
        va_end(copy);
        if (written >= 0) {
            out.assign(buffer.data(), static_cast<std::size_t>(written));
            return written;
        }
        buffer.resize(buffer.size() * 4);
        if (buffer.size() > (1u << 24))
            break;
    }
    return -1;
}

} // namespace

int CompareNoCase(const wchar_t* a, const wchar_t* b)
{
    if (a == nullptr)
        a = L"";
    if (b == nullptr)
        b = L"";
    for (;; ++a, ++b) {
        const wint_t ca = std::towlower(static_cast<wint_t>(*a));
        const wint_t cb = std::towlower(static_cast<wint_t>(*b));
        if (ca != cb)
            return ca < cb ? -1 : 1;
        if (ca == 0)
            return 0;
    }
}

void CDuiString::Assign(const wchar_t* text, int length)
{
    if (text == nullptr) {
        m_text.clear();
    } else if (length < 0) {
        m_text = text;
    } else {
        m_text.assign(text, static_cast<std::size_t>(length));
    }
}

int CDuiString::Compare(const wchar_t* other) const
{
    return m_text.compare(other ? other : L"");
}

int CDuiString::CompareNoCase(const wchar_t* other) const
{
    return DuiLib::CompareNoCase(m_text.c_str(), other);
}

void CDuiString::MakeUpper()
{
    for (auto& ch : m_text)
        ch = static_cast<wchar_t>(std::towupper(static_cast<wint_t>(ch)));
}

void CDuiString::MakeLower()
{
    for (auto& ch : m_text)
        ch = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(ch)));
}

CDuiString CDuiString::Left(int length) const
{
    if (length < 0)
        length = 0;
    return CDuiString(m_text.substr(0, static_cast<std::size_t>(length)));
}

CDuiString CDuiString::Mid(int pos, int length) const
{
    if (pos < 0)
        pos = 0;
    if (static_cast<std::size_t>(pos) >= m_text.size())
        return CDuiString();
    return CDuiString(m_text.substr(static_cast<std::size_t>(pos),
                                    length < 0 ? std::wstring::npos : static_cast<std::size_t>(length)));
}

CDuiString CDuiString::Right(int length) const
{
    if (length <= 0)
        return CDuiString();
    if (static_cast<std::size_t>(length) >= m_text.size())
        return *this;
    return CDuiString(m_text.substr(m_text.size() - static_cast<std::size_t>(length)));
}

int CDuiString::Find(wchar_t ch, int pos) const
{
    const auto found = m_text.find(ch, static_cast<std::size_t>(pos < 0 ? 0 : pos));
    return found == std::wstring::npos ? -1 : static_cast<int>(found);
}

int CDuiString::Find(const wchar_t* text, int pos) const
{
    const auto found = m_text.find(text ? text : L"", static_cast<std::size_t>(pos < 0 ? 0 : pos));
    return found == std::wstring::npos ? -1 : static_cast<int>(found);
}

int CDuiString::Replace(const wchar_t* from, const wchar_t* to)
{
    const std::wstring needle = from ? from : L"";
    const std::wstring replacement = to ? to : L"";
    if (needle.empty())
        return 0;
    int count = 0;
    std::size_t pos = 0;
    while ((pos = m_text.find(needle, pos)) != std::wstring::npos) {
        m_text.replace(pos, needle.size(), replacement);
        pos += replacement.size();
        ++count;
    }
    return count;
}

int CDuiString::Format(const wchar_t* format, ...)
{
    va_list args;
    va_start(args, format);
    const int length = FormatInto(m_text, format, args);
    va_end(args);
    return length;
}

} // namespace DuiLib
