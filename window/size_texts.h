#pragma once
// Size and count texts of the list and the panel.
#include <string>

#include "space_data/cloud_space_types.h"
#include "window/window_texts.h"

// The text of `FormatSize`: the zeros that FormatSizeText leaves after the
// decimal point go, then the point if nothing follows it ("1.50 GB" gives
// "1.5 GB", "2.00 GB" gives "2 GB"). A text without a point is returned as
// it is, so a decimal comma keeps its zeros. With "th-TH" the number and the
// unit are joined with no blank. A text with a point and no blank throws
// std::out_of_range; FormatSizeText never makes one.
std::string TidySizeText(std::string sizeText, const std::wstring& language);

// FormatSizeText of `bytes`, tidied, widened from UTF-8: what a row and the
// panel show for a size.
std::wstring SizeDisplayText(double bytes, const std::wstring& language);

// UTF-8 to wide; empty or malformed text gives an empty string.
std::wstring WidenUtf8(const std::string& text);

// Base keys of the unit texts. The two count keys read the wrong way round:
// the cloud backup row counts devices with NUMUNITS, every other row counts
// records with CLOUDBACKNUMUNITS.
inline constexpr const wchar_t* kStripesUnitKey = L"IDS_SPACEMANAGEMENT_UNIT_STRIPES";
inline constexpr const wchar_t* kBackupCountUnitKey = L"IDS_SPACEMANAGEMENT_NUMUNITS";
inline constexpr const wchar_t* kRecordCountUnitKey = L"IDS_SPACEMANAGEMENT_CLOUDBACKNUMUNITS";

// The bare unit for `count`: the plural form of `baseKey` for the current
// language with every "%d" deleted, since the caller writes the digits.
std::wstring UnitText(const WindowTexts& texts, int count, const std::wstring& baseKey);
// `WhetherToAdds`: the unit of a count of entries.
std::wstring StripesUnit(const WindowTexts& texts, int count);
// `WhetherToAddItem`: the unit of a row's count.
std::wstring ItemUnit(const WindowTexts& texts, CloudSpaceType type, int count);
