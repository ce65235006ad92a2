#include "text_rules.h"

#include <cwctype>

namespace texts {

namespace {

bool IsSpaceLike(wchar_t c)
{
    return std::iswspace(static_cast<wint_t>(c)) != 0 || c == 0x00A0 || c == 0x1680 ||
           (c >= 0x2000 && c <= 0x200B) || c == 0x202F || c == 0x205F || c == 0x3000 || c == 0xFEFF;
}

bool IsControl(wchar_t c)
{
    return c < 0x20 || (c >= 0x7F && c <= 0x9F);
}

std::size_t CountOf(const std::wstring& text, const std::wstring& part)
{
    std::size_t count = 0;
    for (auto at = text.find(part); at != std::wstring::npos; at = text.find(part, at + part.size()))
        ++count;
    return count;
}

} // namespace

std::wstring WhitespaceProblem(const std::wstring& text)
{
    if (text.empty())
        return L"";
    if (IsSpaceLike(text.front()) || IsSpaceLike(text.back()))
        return L"starts or ends with a blank";
    for (std::size_t i = 0; i < text.size(); ++i) {
        const wchar_t c = text[i];
        if (c != L' ' && IsSpaceLike(c))
            return L"holds a space character other than the plain blank";
        if (c != L' ' && IsControl(c))
            return L"holds a control character";
        if (c == L' ' && i + 1 < text.size() && IsSpaceLike(text[i + 1]))
            return L"holds two blanks in a row";
    }
    return L"";
}

std::wstring UsedOfTotalProblem(const std::wstring& text)
{
    const auto used = text.find(L"%1$s");
    const auto total = text.find(L"%2$s");
    if (used == std::wstring::npos || total == std::wstring::npos)
        return L"lacks \"%1$s\" for the used size or \"%2$s\" for the total";
    if (used > total)
        return L"names the total before the used size; the window always passes the used size first";
    if (CountOf(text, L"%") != 2)
        return L"holds a '%' besides \"%1$s\" and \"%2$s\"";
    if (CountOf(text, L"1$") != 1 || CountOf(text, L"2$") != 1)
        return L"holds \"1$\" or \"2$\" outside its placeholders; the window deletes every one";
    if (text.find(L'.') != std::wstring::npos)
        return L"holds a '.', which the decimal-comma rule would turn into ','";
    return L"";
}

std::wstring SingleStringPlaceholderProblem(const std::wstring& text)
{
    if (CountOf(text, L"%s") != 1)
        return L"does not hold exactly one \"%s\"";
    if (CountOf(text, L"%") != 1)
        return L"holds a '%' besides its \"%s\"";
    return L"";
}

std::wstring UnitProblem(const std::wstring& text)
{
    if (CountOf(text, L"%d") != 1 || CountOf(text, L"%") != 1)
        return L"does not hold exactly one \"%d\" and no other '%'";
    if (text.compare(0, 2, L"%d") != 0)
        return L"does not start with \"%d\"; the window writes the digits before the unit";
    const std::wstring unit = text.substr(2);
    const std::size_t word = unit.find_first_not_of(L' ');
    if (word == std::wstring::npos)
        return L"names no unit after \"%d\"";
    if (word > 1)
        return L"puts more than one blank between the count and the unit";
    return L"";
}

std::wstring TitleProblem(const std::wstring& text)
{
    if (!text.empty() && (text.back() == L':' || text.back() == 0xFF1A))
        return L"ends with a colon; the titles before a value go without one";
    return PlainTextProblem(text);
}

std::wstring PlainTextProblem(const std::wstring& text)
{
    if (text.find(L'%') != std::wstring::npos)
        return L"holds a '%', which the window would show as it stands";
    return L"";
}

std::wstring LegendOffsetProblem(const std::wstring& text)
{
    if (text.empty())
        return L"";
    const std::size_t digits = text.front() == L'-' ? 1 : 0;
    if (text.size() == digits || text.size() > digits + 2 ||
        text.find_first_not_of(L"0123456789", digits) != std::wstring::npos)
        return L"is neither empty nor a whole number of at most two digits";
    return L"";
}

} // namespace texts
