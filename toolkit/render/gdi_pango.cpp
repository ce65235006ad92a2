// The GDI text-measuring calls of platform/win32_gdi.h, answered with pango.

#include <string>

#include "platform/win32_gdi.h"
#include "toolkit/render/fonts.h"
#include "toolkit/render/text_measure.h"

using DuiLib::DefaultContextFont;

HDC GetDC(HWND)
{
    thread_local HDC__ context;
    context.defaultFont = DefaultContextFont();
    context.selected = context.defaultFont;
    return &context;
}

int ReleaseDC(HWND, HDC hdc)
{
    return hdc != nullptr ? 1 : 0;
}

HGDIOBJ SelectObject(HDC hdc, HGDIOBJ object)
{
    if (hdc == nullptr || object == nullptr)
        return nullptr;
    HFONT previous = hdc->selected;
    hdc->selected = static_cast<HFONT>(object);
    return previous;
}

BOOL GetTextExtentPoint32W(HDC hdc, const wchar_t* text, int count, SIZE* size)
{
    if (hdc == nullptr || size == nullptr || (text == nullptr && count > 0) || count < 0)
        return FALSE;
    const HFONT font = hdc->selected != nullptr ? hdc->selected : DefaultContextFont();
    *size =
        DuiLib::MeasureSingleLine(*font, std::wstring(text ? text : L"", static_cast<std::size_t>(count)));
    return TRUE;
}
