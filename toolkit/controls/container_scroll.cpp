// CContainerUI's vertical scrolling: the scroll position, the thumb, and
// the wheel and mouse events that move them.

#include <algorithm>

#include "toolkit/controls/container.h"
#include "toolkit/paint/paint_manager.h"

namespace DuiLib {

namespace {

constexpr int kWheelStep = 40; // logical pixels per wheel notch
constexpr DWORD kThumbColor = 0x66000000;

} // namespace

void CContainerUI::EnableScrollBar(bool bEnableVertical)
{
    if (m_bVScroll == bEnableVertical)
        return;
    m_bVScroll = bEnableVertical;
    if (!m_bVScroll)
        m_iScrollY = 0;
    NeedUpdate();
}

int CContainerUI::GetScrollRange() const
{
    const int viewport = (m_rcItem.bottom - m_rcItem.top) - m_rcInset.top - m_rcInset.bottom;
    return std::max(0, m_iContentHeight - viewport);
}

void CContainerUI::SetScrollPos(int y)
{
    if (!m_bVScroll)
        return;
    y = std::max(0, std::min(y, GetScrollRange()));
    if (y == m_iScrollY)
        return;
    m_iScrollY = y;
    ArrangeChildren();
    Invalidate();
    if (m_pManager != nullptr)
        m_pManager->SendNotify(this, DUI_MSGTYPE_SCROLL, static_cast<WPARAM>(y));
}

void CContainerUI::LineUp()
{
    SetScrollPos(m_iScrollY - kWheelStep);
}

void CContainerUI::LineDown()
{
    SetScrollPos(m_iScrollY + kWheelStep);
}

void CContainerUI::EnsureVisible(CControlUI* pControl)
{
    if (!m_bVScroll || pControl == nullptr)
        return;
    const RECT& r = pControl->GetPos();
    const int viewTop = m_rcItem.top + m_rcInset.top;
    const int viewBottom = m_rcItem.bottom - m_rcInset.bottom;
    if (r.top < viewTop) {
        SetScrollPos(m_iScrollY - (viewTop - r.top));
    } else if (r.bottom > viewBottom) {
        SetScrollPos(m_iScrollY + (r.bottom - viewBottom));
    }
}

RECT CContainerUI::GetScrollThumbRect() const
{
    const int range = GetScrollRange();
    if (!m_bVScroll || range <= 0)
        return RECT{0, 0, 0, 0};
    const int trackTop = m_rcItem.top + m_rcInset.top;
    const int trackHeight = (m_rcItem.bottom - m_rcInset.bottom) - trackTop;
    const int thumbHeight = std::max(20, trackHeight * trackHeight / std::max(1, m_iContentHeight));
    const int thumbTop = trackTop + (trackHeight - thumbHeight) * m_iScrollY / range;
    return RECT{m_rcItem.right - kScrollBarWidth, thumbTop, m_rcItem.right - 2, thumbTop + thumbHeight};
}

void CContainerUI::PaintScrollBar(RenderContext& ctx)
{
    const RECT thumb = GetScrollThumbRect();
    if (RectIsEmpty(thumb))
        return;
    ctx.FillRoundRect(thumb, kThumbColor, SIZE{6, 6});
}

bool CContainerUI::HandleScrollEvent(TEventUI& event)
{
    if (!m_bVScroll || GetScrollRange() <= 0)
        return false;
    if (event.Type == UIEVENT_SCROLLWHEEL) {
        const short delta = GET_WHEEL_DELTA_WPARAM(event.wParam);
        const int notches = delta / WHEEL_DELTA != 0 ? delta / WHEEL_DELTA : (delta > 0 ? 1 : -1);
        SetScrollPos(m_iScrollY - notches * kWheelStep);
        return true;
    }
    if (event.Type == UIEVENT_BUTTONDOWN && event.pSender == this) {
        const RECT thumb = GetScrollThumbRect();
        if (event.ptMouse.y >= thumb.top && event.ptMouse.y < thumb.bottom) {
            m_bScrollDragging = true;
            m_iDragStartY = event.ptMouse.y;
            m_iDragStartScroll = m_iScrollY;
        } else {
            const int page = (m_rcItem.bottom - m_rcItem.top) - m_rcInset.top - m_rcInset.bottom;
            SetScrollPos(m_iScrollY + (event.ptMouse.y < thumb.top ? -page : page));
        }
        return true;
    }
    if (event.Type == UIEVENT_MOUSEMOVE && m_bScrollDragging) {
        const RECT thumb = GetScrollThumbRect();
        const int track = (m_rcItem.bottom - m_rcInset.bottom) - (m_rcItem.top + m_rcInset.top) -
                          (thumb.bottom - thumb.top);
        if (track > 0) {
            SetScrollPos(m_iDragStartScroll + (event.ptMouse.y - m_iDragStartY) * GetScrollRange() / track);
        }
        return true;
    }
    if (event.Type == UIEVENT_BUTTONUP && m_bScrollDragging) {
        m_bScrollDragging = false;
        return true;
    }
    return false;
}

} // namespace DuiLib
