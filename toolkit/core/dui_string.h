#pragma once
// CDuiString: the toolkit's wide string, a thin value type over std::wstring
// with the members the window code uses (Format, GetData, CompareNoCase...).

#include <cstddef>
#include <string>

// Wide text pointers under their Windows names; global, as window code
// spells them without a namespace.
using LPCTSTR = const wchar_t*;
using LPTSTR = wchar_t*;
using LPCWSTR = const wchar_t*;

namespace DuiLib {

using ::LPCTSTR;
using ::LPTSTR;

class CDuiString
{
public:
    CDuiString() = default;
    CDuiString(const wchar_t* text) : m_text(text ? text : L"") {} // NOLINT: implicit like DuiLib
    CDuiString(const wchar_t* text, int length)
        : m_text(text ? std::wstring(text, static_cast<std::size_t>(length)) : L"")
    {
    }
    CDuiString(const std::wstring& text) : m_text(text) {}       // NOLINT
    CDuiString(std::wstring&& text) : m_text(std::move(text)) {} // NOLINT
    CDuiString(wchar_t ch) : m_text(1, ch) {}                    // NOLINT

    bool IsEmpty() const { return m_text.empty(); }
    int GetLength() const { return static_cast<int>(m_text.size()); }
    void Empty() { m_text.clear(); }
    const wchar_t* GetData() const { return m_text.c_str(); }
    operator const wchar_t*() const { return m_text.c_str(); } // NOLINT
    const std::wstring& str() const { return m_text; }
    wchar_t GetAt(int index) const { return m_text[static_cast<std::size_t>(index)]; }
    wchar_t operator[](int index) const { return GetAt(index); }

    void Assign(const wchar_t* text, int length = -1);
    void Append(const wchar_t* text) { m_text += text ? text : L""; }

    CDuiString& operator=(const wchar_t* text)
    {
        m_text = text ? text : L"";
        return *this;
    }
    CDuiString& operator+=(const wchar_t* text)
    {
        Append(text);
        return *this;
    }
    CDuiString& operator+=(const CDuiString& other)
    {
        m_text += other.m_text;
        return *this;
    }
    CDuiString& operator+=(wchar_t ch)
    {
        m_text += ch;
        return *this;
    }

    friend CDuiString operator+(const CDuiString& a, const CDuiString& b)
    {
        return CDuiString(a.m_text + b.m_text);
    }
    friend CDuiString operator+(const CDuiString& a, const wchar_t* b)
    {
        return CDuiString(a.m_text + (b ? b : L""));
    }
    friend CDuiString operator+(const wchar_t* a, const CDuiString& b)
    {
        return CDuiString((a ? a : L"") + b.m_text);
    }

    bool operator==(const wchar_t* other) const { return Compare(other) == 0; }
    bool operator!=(const wchar_t* other) const { return Compare(other) != 0; }
    bool operator==(const CDuiString& other) const { return m_text == other.m_text; }
    bool operator!=(const CDuiString& other) const { return m_text != other.m_text; }
    bool operator<(const CDuiString& other) const { return m_text < other.m_text; }

    int Compare(const wchar_t* other) const;
    int CompareNoCase(const wchar_t* other) const;

    void MakeUpper();
    void MakeLower();
    CDuiString Left(int length) const;
    CDuiString Mid(int pos, int length = -1) const;
    CDuiString Right(int length) const;
    int Find(wchar_t ch, int pos = 0) const;
    int Find(const wchar_t* text, int pos = 0) const;
    int Replace(const wchar_t* from, const wchar_t* to);

    // printf-style formatting into this string; returns the new length, or
    // -1 (leaving the string empty) when the format cannot be expanded.
    int Format(const wchar_t* format, ...);
    // DuiLib's variant for short results; the same as Format here.
    template <class... Args> int SmallFormat(const wchar_t* format, Args... args)
    {
        return Format(format, args...);
    }

private:
    std::wstring m_text;
};

// Case-insensitive comparison of two wide strings (null counts as empty).
int CompareNoCase(const wchar_t* a, const wchar_t* b);

} // namespace DuiLib
