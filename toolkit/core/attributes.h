#pragma once
// Shared parsers for attribute values written in skins (colours, sizes,
// rectangles, flags) and the error a skin gets for a bad attribute.
//
// A control's SetAttribute throws AttributeError for a name it does not know
// or a value it cannot read; CDialogBuilder turns that into one SkinError
// carrying the file and the line of the element.

#include <stdexcept>
#include <string>

#include "platform/win32.h"
#include "platform/win32_gdi.h"
#include "toolkit/core/dui_string.h"

namespace DuiLib {

class AttributeError : public std::runtime_error
{
public:
    enum class Kind
    {
        UnknownAttribute,
        BadValue
    };
    AttributeError(Kind kind, std::wstring name, std::wstring value);
    Kind kind() const { return m_kind; }
    const std::wstring& name() const { return m_name; }
    const std::wstring& value() const { return m_value; }

private:
    Kind m_kind;
    std::wstring m_name;
    std::wstring m_value;
};

// What went wrong while building a skin: file (or "<string>"), 1-based line,
// the element or attribute name concerned and a one-line description.
struct SkinError
{
    std::string file;
    int line = 0;
    std::wstring name;
    std::string message;

    // "file:line: message" on one line ("file: message" for line 0).
    std::string ToString() const;
};

namespace attr {

// "#AARRGGBB" or "0xAARRGGBB"; "#RRGGBB" is read as DuiLib reads it, with
// an alpha of 0 (no fill or border; text colours ignore alpha).
DWORD ParseColor(const wchar_t* name, const wchar_t* value);
// A whole decimal number.
int ParseInt(const wchar_t* name, const wchar_t* value);
// "true" or "false".
bool ParseBool(const wchar_t* name, const wchar_t* value);
// "cx,cy".
SIZE ParseSize(const wchar_t* name, const wchar_t* value);
// "left,top,right,bottom".
RECT ParseRect(const wchar_t* name, const wchar_t* value);

// "left", "center" or "right" as DT_LEFT, DT_CENTER or DT_RIGHT.
UINT ParseHorizontalAlign(const wchar_t* name, const wchar_t* value);
// "top", "vcenter" (or "center") or "bottom" as DT_TOP, DT_VCENTER or
// DT_BOTTOM.
UINT ParseVerticalAlign(const wchar_t* name, const wchar_t* value);

// Reads an attribute list of the form  a="1" b='x y'  (used by <Default>).
// Returns false for malformed text.
template <typename Fn> bool ForEachInList(const wchar_t* list, Fn&& fn);

std::string Narrow(const std::wstring& text);
std::wstring Widen(const std::string& utf8);

} // namespace attr

template <typename Fn> bool attr::ForEachInList(const wchar_t* list, Fn&& fn)
{
    const wchar_t* p = list;
    while (p != nullptr && *p != 0) {
        while (*p == L' ' || *p == L'\t' || *p == L'\n' || *p == L'\r')
            ++p;
        if (*p == 0)
            break;
        std::wstring key;
        while (*p != 0 && *p != L'=' && *p != L' ')
            key += *p++;
        while (*p == L' ')
            ++p;
        if (*p++ != L'=')
            return false;
        while (*p == L' ')
            ++p;
        const wchar_t quote = *p;
        if (quote != L'"' && quote != L'\'')
            return false;
        ++p;
        std::wstring value;
        while (*p != 0 && *p != quote)
            value += *p++;
        if (*p != quote)
            return false;
        ++p;
        fn(key, value);
    }
    return true;
}

} // namespace DuiLib
