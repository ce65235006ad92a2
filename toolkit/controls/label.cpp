#include "toolkit/controls/label.h"

#include <unordered_map>

#include "toolkit/paint/paint_manager.h"

namespace DuiLib {

namespace {

UINT ReplaceBits(UINT style, UINT mask, UINT bits)
{
    return (style & ~mask) | bits;
}

} // namespace

CLabelUI::CLabelUI() = default;

LPCTSTR CLabelUI::GetClass() const
{
    return L"LabelUI";
}

LPVOID CLabelUI::GetInterface(LPCTSTR pstrName)
{
    if (CompareNoCase(pstrName, DUI_CTR_LABEL) == 0)
        return static_cast<CLabelUI*>(this);
    return CControlUI::GetInterface(pstrName);
}

void CLabelUI::SetTextStyle(UINT uStyle)
{
    if (Assign(m_uTextStyle, uStyle))
        Invalidate();
}

void CLabelUI::SetTextColor(DWORD dwTextColor)
{
    if (Assign(m_dwTextColor, dwTextColor))
        Invalidate();
}

void CLabelUI::SetDisabledTextColor(DWORD dwTextColor)
{
    if (Assign(m_dwDisabledTextColor, dwTextColor))
        Invalidate();
}

void CLabelUI::SetFont(int index)
{
    if (m_iFont == index)
        return;
    m_iFont = index;
    if (m_bAutoCalcWidth)
        NeedParentUpdate();
    Invalidate();
}

void CLabelUI::SetTextPadding(RECT rc)
{
    m_rcTextPadding = rc;
    NeedParentUpdate();
    Invalidate();
}

void CLabelUI::SetAutoCalcWidth(bool bAutoCalcWidth)
{
    if (m_bAutoCalcWidth == bAutoCalcWidth)
        return;
    m_bAutoCalcWidth = bAutoCalcWidth;
    NeedParentUpdate();
}

SIZE CLabelUI::EstimateSize(SIZE szAvailable)
{
    SIZE size = CControlUI::EstimateSize(szAvailable);
    if (m_bAutoCalcWidth && m_pManager != nullptr) {
        const HFONT font = m_pManager->GetFont(m_iFont);
        const SIZE text =
            MeasureText(m_sText.str(), *font, DT_SINGLELINE, 0, m_pManager->GetDPIObj()->GetScaleFactor());
        size.cx = text.cx + m_rcTextPadding.left + m_rcTextPadding.right;
    }
    return size;
}

DWORD CLabelUI::CurrentTextColor() const
{
    if (!IsEnabled() && m_dwDisabledTextColor != 0)
        return m_dwDisabledTextColor;
    if (m_dwTextColor != 0)
        return m_dwTextColor;
    return m_pManager != nullptr ? m_pManager->GetDefaultFontColor() : 0xFF000000;
}

void CLabelUI::PaintText(RenderContext& ctx)
{
    if (m_sText.IsEmpty() || m_pManager == nullptr)
        return;
    RECT rc = m_rcItem;
    rc.left += m_rcTextPadding.left;
    rc.top += m_rcTextPadding.top;
    rc.right -= m_rcTextPadding.right;
    rc.bottom -= m_rcTextPadding.bottom;
    ctx.DrawText(rc, m_sText.str(), *m_pManager->GetFont(m_iFont), CurrentTextColor(), m_uTextStyle);
}

void CLabelUI::SetAttribute(LPCTSTR pstrName, LPCTSTR pstrValue)
{
    using Setter = AttributeSetter<CLabelUI>;
    static const std::unordered_map<std::wstring, Setter> table = {
        {L"textcolor",
         [](CLabelUI& c, const wchar_t* n, const wchar_t* v) { c.SetTextColor(attr::ParseColor(n, v)); }},
        {L"disabledtextcolor", [](CLabelUI& c, const wchar_t* n,
                                  const wchar_t* v) { c.SetDisabledTextColor(attr::ParseColor(n, v)); }},
        {L"font", [](CLabelUI& c, const wchar_t* n, const wchar_t* v) { c.SetFont(attr::ParseInt(n, v)); }},
        {L"textpadding",
         [](CLabelUI& c, const wchar_t* n, const wchar_t* v) { c.SetTextPadding(attr::ParseRect(n, v)); }},
        {L"autocalcwidth",
         [](CLabelUI& c, const wchar_t* n, const wchar_t* v) { c.SetAutoCalcWidth(attr::ParseBool(n, v)); }},
        {L"align",
         [](CLabelUI& c, const wchar_t* n, const wchar_t* v) {
             c.SetTextStyle(ReplaceBits(c.GetTextStyle(), DT_LEFT | DT_CENTER | DT_RIGHT,
                                        attr::ParseHorizontalAlign(n, v)));
         }},
        {L"valign",
         [](CLabelUI& c, const wchar_t* n, const wchar_t* v) {
             c.SetTextStyle(ReplaceBits(c.GetTextStyle(), DT_TOP | DT_VCENTER | DT_BOTTOM,
                                        attr::ParseVerticalAlign(n, v)));
         }},
        {L"endellipsis",
         [](CLabelUI& c, const wchar_t* n, const wchar_t* v) {
             c.SetTextStyle(
                 ReplaceBits(c.GetTextStyle(), DT_END_ELLIPSIS, attr::ParseBool(n, v) ? DT_END_ELLIPSIS : 0));
         }},
        {L"multiline",
         [](CLabelUI& c, const wchar_t* n, const wchar_t* v) {
             const bool multi = attr::ParseBool(n, v);
             c.SetTextStyle(ReplaceBits(c.GetTextStyle(), DT_SINGLELINE | DT_WORDBREAK,
                                        multi ? DT_WORDBREAK : DT_SINGLELINE));
         }},
    };
    if (ApplyFromTable(table, *this, pstrName, pstrValue))
        return;
    CControlUI::SetAttribute(pstrName, pstrValue);
}

CTextUI::CTextUI()
{
    m_uTextStyle = DT_WORDBREAK;
}

LPCTSTR CTextUI::GetClass() const
{
    return L"TextUI";
}

LPVOID CTextUI::GetInterface(LPCTSTR pstrName)
{
    if (CompareNoCase(pstrName, DUI_CTR_TEXT) == 0)
        return static_cast<CTextUI*>(this);
    return CLabelUI::GetInterface(pstrName);
}

} // namespace DuiLib
