#pragma once
// CButtonUI: a label that can be clicked. States: normal, hot (pointer
// over it), pushed (pressed and the pointer still over it), disabled, and
// focused (Tab). A click is a press and release over the button, or Enter
// or Space while it has the focus; it raises "click".

#include "toolkit/controls/label.h"

namespace DuiLib {

class CButtonUI : public CLabelUI
{
public:
    CButtonUI();
    LPCTSTR GetClass() const override;
    LPVOID GetInterface(LPCTSTR pstrName) override;
    UINT GetControlFlags() const override;

    bool Activate() override;
    void SetEnabled(bool bEnable = true) override;
    void DoEvent(TEventUI& event) override;

    UINT GetButtonState() const { return m_uButtonState; }
    void SetNormalImage(LPCTSTR image);
    void SetHotImage(LPCTSTR image);
    void SetPushedImage(LPCTSTR image);
    void SetDisabledImage(LPCTSTR image);
    void SetFocusedImage(LPCTSTR image);
    void SetHotBkColor(DWORD color);
    DWORD GetHotBkColor() const { return m_dwHotBkColor; }
    void SetPushedBkColor(DWORD color);
    DWORD GetPushedBkColor() const { return m_dwPushedBkColor; }
    void SetDisabledBkColor(DWORD color);
    void SetHotTextColor(DWORD color);
    void SetPushedTextColor(DWORD color);
    void SetFocusedTextColor(DWORD color);

    void SetAttribute(LPCTSTR pstrName, LPCTSTR pstrValue) override;
    void PaintBkColor(RenderContext& ctx) override;
    void PaintStatusImage(RenderContext& ctx) override;

protected:
    DWORD CurrentTextColor() const override;
    void SetState(UINT state, bool on);

    UINT m_uButtonState = 0;
    CDuiString m_sNormalImage;
    CDuiString m_sHotImage;
    CDuiString m_sPushedImage;
    CDuiString m_sDisabledImage;
    CDuiString m_sFocusedImage;
    DWORD m_dwHotBkColor = 0;
    DWORD m_dwPushedBkColor = 0;
    DWORD m_dwDisabledBkColor = 0;
    DWORD m_dwHotTextColor = 0;
    DWORD m_dwPushedTextColor = 0;
    DWORD m_dwFocusedTextColor = 0;
};

} // namespace DuiLib
