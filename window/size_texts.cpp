#include "window/size_texts.h"

#include "foundation/utilities.h"

namespace {

constexpr const wchar_t* kThaiLanguage = L"th-TH";

// Blanks and control characters (codes below 30) at either end go.
std::string StripEnds(const std::string& text)
{
    auto strippable = [](char c) { return c == ' ' || static_cast<unsigned char>(c) < 30; };
    std::size_t first = 0;
    std::size_t last = text.size();
    while (first < last && strippable(text[first]))
        ++first;
    while (last > first && strippable(text[last - 1]))
        --last;
    return text.substr(first, last - first);
}

void EraseAll(std::wstring& text, const std::wstring& part)
{
    for (std::size_t at = text.find(part); at != std::wstring::npos; at = text.find(part, at))
        text.erase(at, part.size());
}

} // namespace

std::string TidySizeText(std::string sizeText, const std::wstring& language)
{
    if (sizeText.empty() || sizeText.find('.') == std::string::npos)
        return sizeText;
    const std::size_t blank = sizeText.find(' ');
    std::string number = sizeText.substr(0, blank);
    // substr throws std::out_of_range for a text with no blank.
    std::string unit = sizeText.substr(blank);
    while (!number.empty() && number.back() == '0')
        number.pop_back();
    if (!number.empty() && number.back() == '.')
        number.pop_back();
    if (language == kThaiLanguage) {
        number = StripEnds(number);
        unit = StripEnds(unit);
    }
    return number + unit;
}

std::wstring SizeDisplayText(double bytes, const std::wstring& language)
{
    return WidenUtf8(TidySizeText(FormatSizeText(bytes), language));
}

std::wstring WidenUtf8(const std::string& text)
{
    std::wstring wide;
    NarrowToWide(text, wide, kCodePageUtf8);
    return wide;
}

std::wstring UnitText(const WindowTexts& texts, int count, const std::wstring& baseKey)
{
    std::wstring unit = texts.Text(PluralKey(texts.language, count, baseKey));
    EraseAll(unit, L"%d");
    return unit;
}

std::wstring StripesUnit(const WindowTexts& texts, int count)
{
    return UnitText(texts, count, kStripesUnitKey);
}

std::wstring ItemUnit(const WindowTexts& texts, CloudSpaceType type, int count)
{
    return UnitText(texts, count, type == CloudBackUp ? kBackupCountUnitKey : kRecordCountUnitKey);
}
