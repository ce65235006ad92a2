// CPaintManagerUI's fonts: kept by index in logical sizes and made again at
// device size whenever the DPI changes.

#include "toolkit/paint/paint_manager.h"

namespace DuiLib {

FontPtr CPaintManagerUI::MakeScaled(const FontEntry& entry) const
{
    return MakeFont(entry.family, m_dpi.Scale(entry.size), entry.bold, entry.italic, entry.underline);
}

HFONT CPaintManagerUI::AddFont(int id, LPCTSTR pStrFontName, int nSize, bool bBold, bool bUnderline,
                               bool bItalic, bool)
{
    FontEntry& stored = m_fonts[id] = MakeEntry(pStrFontName, nSize, bBold, bUnderline, bItalic);
    Invalidate();
    return stored.font.get();
}

HFONT CPaintManagerUI::GetFont(int id)
{
    const auto found = m_fonts.find(id);
    return found != m_fonts.end() ? found->second.font.get() : m_defaultFont.font.get();
}

void CPaintManagerUI::SetDefaultFont(LPCTSTR pStrFontName, int nSize, bool bBold, bool bUnderline,
                                     bool bItalic, bool)
{
    m_defaultFont = MakeEntry(pStrFontName, nSize, bBold, bUnderline, bItalic);
    Invalidate();
}

CPaintManagerUI::FontEntry CPaintManagerUI::MakeEntry(LPCTSTR family, int size, bool bold, bool underline,
                                                      bool italic) const
{
    FontEntry entry;
    entry.family = family ? family : L"";
    entry.size = size;
    entry.bold = bold;
    entry.underline = underline;
    entry.italic = italic;
    entry.font = MakeScaled(entry);
    return entry;
}

void CPaintManagerUI::RebuildFonts()
{
    m_defaultFont.font = MakeScaled(m_defaultFont);
    for (auto& entry : m_fonts)
        entry.second.font = MakeScaled(entry.second);
}

void CPaintManagerUI::SetDPI(int iDPI)
{
    if (iDPI == m_dpi.GetDPI())
        return;
    m_dpi.SetScale(iDPI);
    RebuildFonts();
    NeedUpdate();
    Invalidate();
}

} // namespace DuiLib
