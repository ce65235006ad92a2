#include "toolkit/controls/progress.h"

#include <algorithm>
#include <unordered_map>

namespace DuiLib {

CProgressUI::CProgressUI()
{
    m_uTextStyle = DT_SINGLELINE | DT_VCENTER | DT_CENTER;
}

LPCTSTR CProgressUI::GetClass() const
{
    return L"ProgressUI";
}

LPVOID CProgressUI::GetInterface(LPCTSTR pstrName)
{
    if (CompareNoCase(pstrName, DUI_CTR_PROGRESS) == 0)
        return static_cast<CProgressUI*>(this);
    return CLabelUI::GetInterface(pstrName);
}

void CProgressUI::SetMinValue(int nMin)
{
    if (Assign(m_nMin, nMin))
        Invalidate();
}

void CProgressUI::SetMaxValue(int nMax)
{
    if (Assign(m_nMax, nMax))
        Invalidate();
}

void CProgressUI::SetValue(int nValue)
{
    if (Assign(m_nValue, nValue))
        Invalidate();
}

void CProgressUI::SetRoundRectDirection(int direction)
{
    if (Assign(m_iRoundDirection, direction))
        Invalidate();
}

void CProgressUI::SetForeImage(LPCTSTR image)
{
    if (Assign(m_sForeImage, CDuiString(image)))
        Invalidate();
}

int CProgressUI::GetFilledWidth() const
{
    if (m_nMax <= m_nMin)
        return 0;
    const long long value = std::max(m_nMin, std::min(m_nValue, m_nMax)) - m_nMin;
    return static_cast<int>(value * (m_rcItem.right - m_rcItem.left) / (m_nMax - m_nMin));
}

namespace {

RoundCorners ToCorners(int direction)
{
    if (direction == 1)
        return RoundCorners::Left;
    if (direction == 2)
        return RoundCorners::Right;
    return RoundCorners::All;
}

} // namespace

RoundCorners CProgressUI::GetRoundCorners() const
{
    return ToCorners(m_iRoundDirection);
}

void CProgressUI::PaintBkColor(RenderContext& ctx)
{
    ctx.FillRoundRect(m_rcItem, m_dwBackColor, m_cxyBorderRound, ToCorners(m_iRoundDirection));
}

void CProgressUI::PaintStatusImage(RenderContext& ctx)
{
    const int filled = GetFilledWidth();
    if (filled <= 0)
        return;
    RECT bar = m_rcItem;
    bar.right = bar.left + filled;
    if (!m_sForeImage.IsEmpty()) {
        ctx.PushClip(bar);
        DrawImage(ctx, m_sForeImage);
        ctx.PopClip();
        return;
    }
    ctx.FillRoundRect(bar, m_dwForeColor, m_cxyBorderRound, ToCorners(m_iRoundDirection));
}

void CProgressUI::SetAttribute(LPCTSTR pstrName, LPCTSTR pstrValue)
{
    using Setter = AttributeSetter<CProgressUI>;
    static const std::unordered_map<std::wstring, Setter> table = {
        {L"min",
         [](CProgressUI& c, const wchar_t* n, const wchar_t* v) { c.SetMinValue(attr::ParseInt(n, v)); }},
        {L"max",
         [](CProgressUI& c, const wchar_t* n, const wchar_t* v) { c.SetMaxValue(attr::ParseInt(n, v)); }},
        {L"value",
         [](CProgressUI& c, const wchar_t* n, const wchar_t* v) { c.SetValue(attr::ParseInt(n, v)); }},
        {L"rounddirection", [](CProgressUI& c, const wchar_t* n,
                               const wchar_t* v) { c.SetRoundRectDirection(attr::ParseInt(n, v)); }},
        {L"foreimage", [](CProgressUI& c, const wchar_t*, const wchar_t* v) { c.SetForeImage(v); }},
        {L"hor",
         [](CProgressUI&, const wchar_t* n, const wchar_t* v) {
             if (!attr::ParseBool(n, v))
                 throw AttributeError(AttributeError::Kind::BadValue, n, v);
         }},
    };
    if (ApplyFromTable(table, *this, pstrName, pstrValue))
        return;
    CLabelUI::SetAttribute(pstrName, pstrValue);
}

} // namespace DuiLib
