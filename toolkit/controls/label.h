#pragma once
// CLabelUI: a control that shows one text in a font of the paint manager,
// aligned in its rectangle; CTextUI: a label that wraps its lines.

#include "toolkit/controls/control.h"

namespace DuiLib {

class CLabelUI : public CControlUI
{
public:
    CLabelUI();
    LPCTSTR GetClass() const override;
    LPVOID GetInterface(LPCTSTR pstrName) override;

    void SetTextStyle(UINT uStyle);
    UINT GetTextStyle() const { return m_uTextStyle; }
    // Text colours ignore the alpha byte, as GDI text does: 0x00RRGGBB
    // draws opaque.
    void SetTextColor(DWORD dwTextColor);
    DWORD GetTextColor() const { return m_dwTextColor; }
    void SetDisabledTextColor(DWORD dwTextColor);
    DWORD GetDisabledTextColor() const { return m_dwDisabledTextColor; }
    // Index into the paint manager's fonts; -1 is the default font.
    void SetFont(int index);
    int GetFont() const { return m_iFont; }
    RECT GetTextPadding() const { return m_rcTextPadding; }
    void SetTextPadding(RECT rc);
    bool IsAutoCalcWidth() const { return m_bAutoCalcWidth; }
    // With automatic width the label is as wide as its text plus padding.
    void SetAutoCalcWidth(bool bAutoCalcWidth);

    SIZE EstimateSize(SIZE szAvailable) override;
    void SetAttribute(LPCTSTR pstrName, LPCTSTR pstrValue) override;
    void PaintText(RenderContext& ctx) override;

protected:
    // The colour the text is painted in for the current state.
    virtual DWORD CurrentTextColor() const;

    DWORD m_dwTextColor = 0;
    DWORD m_dwDisabledTextColor = 0;
    int m_iFont = -1;
    UINT m_uTextStyle = DT_VCENTER | DT_SINGLELINE;
    RECT m_rcTextPadding{0, 0, 0, 0};
    bool m_bAutoCalcWidth = false;
};

class CTextUI : public CLabelUI
{
public:
    CTextUI();
    LPCTSTR GetClass() const override;
    LPVOID GetInterface(LPCTSTR pstrName) override;
};

} // namespace DuiLib
