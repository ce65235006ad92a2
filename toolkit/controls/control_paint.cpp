// CControlUI's painting: the fixed order of steps, each from the control's
// current state.

#include "toolkit/controls/control.h"
#include "toolkit/paint/paint_manager.h"
#include "toolkit/render/images.h"

namespace DuiLib {

void CControlUI::DoPaint(RenderContext& ctx, const RECT& rcPaint)
{
    if (!RectsIntersect(rcPaint, m_rcItem))
        return;
    const bool rounded = m_cxyBorderRound.cx > 0 && m_cxyBorderRound.cy > 0;
    if (rounded)
        ctx.PushClip(m_rcItem, m_cxyBorderRound, GetRoundCorners());
    PaintBkColor(ctx);
    PaintBkImage(ctx);
    PaintStatusImage(ctx);
    PaintText(ctx);
    if (rounded)
        ctx.PopClip();
    PaintBorder(ctx);
}

void CControlUI::PaintBkColor(RenderContext& ctx)
{
    ctx.FillRect(m_rcItem, m_dwBackColor);
}

void CControlUI::PaintBkImage(RenderContext& ctx)
{
    if (!m_sBkImage.IsEmpty())
        DrawImage(ctx, m_sBkImage);
}

void CControlUI::PaintStatusImage(RenderContext&) {}

void CControlUI::PaintText(RenderContext&) {}

void CControlUI::PaintBorder(RenderContext& ctx)
{
    const DWORD color =
        (ShowsFocusRing() && m_dwFocusBorderColor != 0) ? m_dwFocusBorderColor : m_dwBorderColor;
    ctx.DrawBorder(m_rcItem, m_nBorderSize, color, m_cxyBorderRound);
}

bool CControlUI::DrawImage(RenderContext& ctx, const CDuiString& image)
{
    if (m_pManager == nullptr || image.IsEmpty())
        return false;
    ImageSpec spec;
    if (!ImageSpec::Parse(image.str(), spec))
        return false;
    const auto loaded = m_pManager->GetImage(spec.file.c_str());
    if (!loaded)
        return false;
    RECT dest = m_rcItem;
    if (spec.hasDest) {
        dest.left = m_rcItem.left + spec.dest[0];
        dest.top = m_rcItem.top + spec.dest[1];
        dest.right = m_rcItem.left + spec.dest[2];
        dest.bottom = m_rcItem.top + spec.dest[3];
    }
    ctx.DrawImage(dest, *loaded, spec.fade);
    return true;
}

} // namespace DuiLib
