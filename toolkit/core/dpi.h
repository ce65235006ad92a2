#pragma once
// DPI scaling. Skins and layouts are written in logical units (96 DPI);
// surfaces, fonts and text extents are in device pixels. CDPI converts
// between the two for one paint manager; the process-wide scale is what new
// paint managers start with.

namespace DuiLib {

class CDPI
{
public:
    CDPI();
    // 96 is 100 %, 144 is 150 %, 192 is 200 %.
    void SetScale(int dpi);
    int GetDPI() const { return m_dpi; }
    int GetScale() const { return m_dpi * 100 / 96; }
    double GetScaleFactor() const { return m_dpi / 96.0; }
    // Logical to device pixels, rounded to the nearest.
    int Scale(int value) const;
    // Device to logical pixels, rounded to the nearest.
    int ScaleBack(int value) const;

    static void SetProcessDPI(int dpi);
    static int GetProcessDPI();

private:
    int m_dpi;
};

} // namespace DuiLib
