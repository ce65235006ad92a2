#pragma once
// CProgressUI: a horizontal bar filled from the left in the fore colour, in
// proportion of value between min and max, over its background colour.
// The filled part takes the border round; SetRoundRectDirection chooses
// which of its ends are rounded.

#include "toolkit/controls/label.h"

namespace DuiLib {

class CProgressUI : public CLabelUI
{
public:
    CProgressUI();
    LPCTSTR GetClass() const override;
    LPVOID GetInterface(LPCTSTR pstrName) override;

    int GetMinValue() const { return m_nMin; }
    void SetMinValue(int nMin);
    int GetMaxValue() const { return m_nMax; }
    void SetMaxValue(int nMax);
    int GetValue() const { return m_nValue; }
    void SetValue(int nValue);
    // 0: both ends rounded; 1: only the left (start) end; 2: only the right.
    int GetRoundRectDirection() const { return m_iRoundDirection; }
    void SetRoundRectDirection(int direction);
    void SetForeImage(LPCTSTR image);

    // Width in logical pixels of the filled part for the current values.
    int GetFilledWidth() const;

    void SetAttribute(LPCTSTR pstrName, LPCTSTR pstrValue) override;
    RoundCorners GetRoundCorners() const override;
    void PaintBkColor(RenderContext& ctx) override;
    void PaintStatusImage(RenderContext& ctx) override;

private:
    int m_nMin = 0;
    int m_nMax = 100;
    int m_nValue = 0;
    int m_iRoundDirection = 0;
    CDuiString m_sForeImage;
};

} // namespace DuiLib
