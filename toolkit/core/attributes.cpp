#include "toolkit/core/attributes.h"

#include <cwchar>
#include <cwctype>
#include <initializer_list>
#include <utility>
#include <vector>

namespace DuiLib {

AttributeError::AttributeError(Kind kind, std::wstring name, std::wstring value)
    : std::runtime_error(kind == Kind::UnknownAttribute ? "unknown attribute '" + attr::Narrow(name) + "'"
                                                        : "bad value '" + attr::Narrow(value) +
                                                              "' for attribute '" + attr::Narrow(name) + "'"),
      m_kind(kind), m_name(std::move(name)), m_value(std::move(value))
{
}

std::string SkinError::ToString() const
{
    // Line 0: the file as a whole (it cannot be opened).
    return line > 0 ? file + ":" + std::to_string(line) + ": " + message : file + ": " + message;
}

namespace attr {

namespace {

[[noreturn]] void Bad(const wchar_t* name, const wchar_t* value)
{
    throw AttributeError(AttributeError::Kind::BadValue, name ? name : L"", value ? value : L"");
}

std::wstring Trim(const std::wstring& text)
{
    std::size_t begin = 0;
    std::size_t end = text.size();
    while (begin < end && std::iswspace(static_cast<wint_t>(text[begin])))
        ++begin;
    while (end > begin && std::iswspace(static_cast<wint_t>(text[end - 1])))
        --end;
    return text.substr(begin, end - begin);
}

bool ReadLong(const std::wstring& text, long& out)
{
    const std::wstring trimmed = Trim(text);
    if (trimmed.empty())
        return false;
    wchar_t* end = nullptr;
    out = std::wcstol(trimmed.c_str(), &end, 10);
    return end != nullptr && *end == 0;
}

std::vector<long> ReadNumbers(const wchar_t* name, const wchar_t* value, std::size_t count)
{
    std::vector<long> numbers;
    std::wstring part;
    const std::wstring text = value ? value : L"";
    for (std::size_t i = 0; i <= text.size(); ++i) {
        if (i == text.size() || text[i] == L',') {
            long number = 0;
            if (!ReadLong(part, number))
                Bad(name, value);
            numbers.push_back(number);
            part.clear();
        } else {
            part += text[i];
        }
    }
    if (numbers.size() != count)
        Bad(name, value);
    return numbers;
}

// The value of the keyword `value` is, from `words`.
UINT ParseKeyword(const wchar_t* name, const wchar_t* value,
                  std::initializer_list<std::pair<const wchar_t*, UINT>> words)
{
    const std::wstring text = value ? value : L"";
    for (const auto& word : words) {
        if (text == word.first)
            return word.second;
    }
    Bad(name, value);
}

} // namespace

DWORD ParseColor(const wchar_t* name, const wchar_t* value)
{
    std::wstring text = Trim(value ? value : L"");
    if (!text.empty() && text[0] == L'#') {
        text.erase(0, 1);
    } else if (text.size() > 2 && text[0] == L'0' && (text[1] == L'x' || text[1] == L'X')) {
        text.erase(0, 2);
    } else {
        Bad(name, value);
    }
    if (text.size() != 6 && text.size() != 8)
        Bad(name, value);
    for (wchar_t ch : text) {
        if (!std::iswxdigit(static_cast<wint_t>(ch)))
            Bad(name, value);
    }
    // As in DuiLib, the digits are read as one number: six digits leave the
    // alpha byte 0, which fills and borders treat as transparent and text
    // ignores.
    return static_cast<DWORD>(std::wcstoul(text.c_str(), nullptr, 16));
}

int ParseInt(const wchar_t* name, const wchar_t* value)
{
    long number = 0;
    if (!ReadLong(value ? value : L"", number))
        Bad(name, value);
    return static_cast<int>(number);
}

bool ParseBool(const wchar_t* name, const wchar_t* value)
{
    const std::wstring text = Trim(value ? value : L"");
    if (text == L"true")
        return true;
    if (text == L"false")
        return false;
    Bad(name, value);
}

SIZE ParseSize(const wchar_t* name, const wchar_t* value)
{
    const auto n = ReadNumbers(name, value, 2);
    SIZE size;
    size.cx = static_cast<LONG>(n[0]);
    size.cy = static_cast<LONG>(n[1]);
    return size;
}

RECT ParseRect(const wchar_t* name, const wchar_t* value)
{
    const auto n = ReadNumbers(name, value, 4);
    RECT rect;
    rect.left = static_cast<LONG>(n[0]);
    rect.top = static_cast<LONG>(n[1]);
    rect.right = static_cast<LONG>(n[2]);
    rect.bottom = static_cast<LONG>(n[3]);
    return rect;
}

UINT ParseHorizontalAlign(const wchar_t* name, const wchar_t* value)
{
    return ParseKeyword(name, value, {{L"left", DT_LEFT}, {L"center", DT_CENTER}, {L"right", DT_RIGHT}});
}

UINT ParseVerticalAlign(const wchar_t* name, const wchar_t* value)
{
    return ParseKeyword(
        name, value,
        {{L"top", DT_TOP}, {L"vcenter", DT_VCENTER}, {L"center", DT_VCENTER}, {L"bottom", DT_BOTTOM}});
}

std::string Narrow(const std::wstring& text)
{
    std::string out;
    for (wchar_t wc : text) {
        const auto c = static_cast<std::uint32_t>(wc);
        if (c < 0x80) {
            out += static_cast<char>(c);
        } else if (c < 0x800) {
            out += static_cast<char>(0xC0 | (c >> 6));
            out += static_cast<char>(0x80 | (c & 0x3F));
        } else if (c < 0x10000) {
            out += static_cast<char>(0xE0 | (c >> 12));
            out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        } else {
            out += static_cast<char>(0xF0 | (c >> 18));
            out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
            out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    return out;
}

std::wstring Widen(const std::string& utf8)
{
    std::wstring out;
    std::size_t i = 0;
    while (i < utf8.size()) {
        const auto c = static_cast<unsigned char>(utf8[i]);
        std::uint32_t code = 0;
        std::size_t extra = 0;
        if (c < 0x80) {
            code = c;
        } else if ((c & 0xE0) == 0xC0) {
            code = c & 0x1F;
            extra = 1;
        } else if ((c & 0xF0) == 0xE0) {
            code = c & 0x0F;
            extra = 2;
        } else if ((c & 0xF8) == 0xF0) {
            code = c & 0x07;
            extra = 3;
        } else {
            out += L'\uFFFD';
            ++i;
            continue;
        }
        bool valid = true;
        for (std::size_t k = 1; k <= extra; ++k) {
            if (i + k >= utf8.size() || (static_cast<unsigned char>(utf8[i + k]) & 0xC0) != 0x80) {
                valid = false;
                break;
            }
            code = (code << 6) | (static_cast<unsigned char>(utf8[i + k]) & 0x3F);
        }
        if (!valid) {
            out += L'\uFFFD';
            ++i;
            continue;
        }
        out += static_cast<wchar_t>(code);
        i += extra + 1;
    }
    return out;
}

} // namespace attr
} // namespace DuiLib
