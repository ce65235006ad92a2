#include <algorithm>

#include "toolkit/controls/container.h"

namespace DuiLib {

namespace {

int Clamp(int value, int low, int high)
{
    return std::max(low, std::min(value, high));
}

struct Child
{
    CControlUI* control;
    SIZE wanted;
    RECT padding;
};

std::vector<Child> VisibleChildren(CContainerUI& owner, SIZE available)
{
    std::vector<Child> children;
    for (const auto& item : owner.items()) {
        if (!item->IsVisible() || item->IsFloat())
            continue;
        children.push_back(Child{item.get(), item->EstimateSize(available), item->GetPadding()});
    }
    return children;
}

// Position of a child of `size` within [start, start + room) by alignment.
int Align(int start, int room, int size, bool centre, bool end)
{
    if (centre)
        return start + (room - size) / 2;
    if (end)
        return start + room - size;
    return start;
}

// A stretch of one axis: where a child starts and how long it is.
struct Span
{
    int start;
    int size;
};

RECT ToRect(Span x, Span y)
{
    return RECT{x.start, y.start, x.start + x.size, y.start + y.size};
}

// One direction of a layout: how a child is measured along it and how the
// owner aligns children in it. A stack runs along one axis and places its
// children across the other.
struct VerticalAxis
{
    static int Wanted(const Child& c) { return c.wanted.cy; }
    static int Before(const Child& c) { return c.padding.top; }
    static int After(const Child& c) { return c.padding.bottom; }
    static int Min(const Child& c) { return c.control->GetMinHeight(); }
    static int Max(const Child& c) { return c.control->GetMaxHeight(); }
    static int Start(const RECT& r) { return r.top; }
    static int Extent(SIZE s) { return s.cy; }
    static bool Centred(const CContainerUI& owner) { return (owner.GetChildVAlign() & DT_VCENTER) != 0; }
    static bool AtEnd(const CContainerUI& owner) { return (owner.GetChildVAlign() & DT_BOTTOM) != 0; }
    static RECT Compose(Span along, Span across) { return ToRect(across, along); }
};

struct HorizontalAxis
{
    static int Wanted(const Child& c) { return c.wanted.cx; }
    static int Before(const Child& c) { return c.padding.left; }
    static int After(const Child& c) { return c.padding.right; }
    static int Min(const Child& c) { return c.control->GetMinWidth(); }
    static int Max(const Child& c) { return c.control->GetMaxWidth(); }
    static int Start(const RECT& r) { return r.left; }
    static int Extent(SIZE s) { return s.cx; }
    static bool Centred(const CContainerUI& owner) { return (owner.GetChildAlign() & DT_CENTER) != 0; }
    static bool AtEnd(const CContainerUI& owner) { return (owner.GetChildAlign() & DT_RIGHT) != 0; }
    static RECT Compose(Span along, Span across) { return ToRect(along, across); }
};

// Where a child goes along an axis it does not share with its siblings: its
// own size (or all the room), aligned in the room.
template <class Axis> Span PlaceAlone(const Child& child, const CContainerUI& owner, const RECT& area)
{
    const int room = Axis::Extent(SIZE{area.right - area.left, area.bottom - area.top}) -
                     Axis::Before(child) - Axis::After(child);
    const int size =
        Clamp(Axis::Wanted(child) > 0 ? Axis::Wanted(child) : room, Axis::Min(child), Axis::Max(child));
    const int start =
        Align(Axis::Start(area) + Axis::Before(child), room, size, Axis::Centred(owner), Axis::AtEnd(owner));
    return Span{start, size};
}

// The children's extents along a stack of `room` pixels: a child with a
// size of its own keeps it (within its limits); the others share what is
// left, the last of them taking the rounding remainder.
struct StackSplit
{
    std::vector<int> sizes;
    int fixedTotal = 0; // paddings, gaps and own sizes: the stack's extent when nothing is flexible
    int flexible = 0;
};

template <class Axis> StackSplit SplitStack(const std::vector<Child>& children, int room, int childPadding)
{
    StackSplit split;
    split.fixedTotal = childPadding * static_cast<int>(children.size() - 1);
    for (const auto& child : children) {
        split.fixedTotal += Axis::Before(child) + Axis::After(child);
        if (Axis::Wanted(child) > 0) {
            split.fixedTotal += Clamp(Axis::Wanted(child), Axis::Min(child), Axis::Max(child));
        } else {
            ++split.flexible;
        }
    }
    int remaining = std::max(0, room - split.fixedTotal);
    int flexibleLeft = split.flexible;
    for (const auto& child : children) {
        int size = Axis::Wanted(child);
        if (size <= 0) {
            size = flexibleLeft == 1 ? remaining : remaining / flexibleLeft;
            remaining -= size;
            --flexibleLeft;
        }
        split.sizes.push_back(Clamp(size, Axis::Min(child), Axis::Max(child)));
    }
    return split;
}

// Stacks the children along `Main` and places each across `Cross`, all
// shifted up by `scrollY`; returns the extents the children take along
// (cx) and across (cy) the stack.
template <class Main, class Cross> SIZE ArrangeStack(CContainerUI& owner, const RECT& area, int scrollY)
{
    const SIZE available{area.right - area.left, area.bottom - area.top};
    auto children = VisibleChildren(owner, available);
    if (children.empty())
        return SIZE{0, 0};
    const StackSplit split = SplitStack<Main>(children, Main::Extent(available), owner.GetChildPadding());
    int at = Main::Start(area);
    if (split.flexible == 0)
        at = Align(at, Main::Extent(available), split.fixedTotal, Main::Centred(owner), Main::AtEnd(owner));
    const int first = at;
    int crossExtent = 0;
    for (std::size_t i = 0; i < children.size(); ++i) {
        const Child& child = children[i];
        const Span across = PlaceAlone<Cross>(child, owner, area);
        at += Main::Before(child);
        RECT rc = Main::Compose(Span{at, split.sizes[i]}, across);
        rc.top -= scrollY;
        rc.bottom -= scrollY;
        child.control->SetPos(rc, false);
        at += split.sizes[i] + Main::After(child);
        if (i + 1 < children.size())
            at += owner.GetChildPadding();
        crossExtent = std::max(crossExtent, across.size + Cross::Before(child) + Cross::After(child));
    }
    return SIZE{at - first, crossExtent};
}

// What the children of a stack along `Main` want: the sum along it, the
// largest across it.
template <class Main, class Cross> std::pair<int, int> EstimateStack(CContainerUI& owner, SIZE available)
{
    int along = 0;
    int across = 0;
    const auto children = VisibleChildren(owner, available);
    for (const auto& child : children) {
        along += Main::Wanted(child) + Main::Before(child) + Main::After(child);
        across = std::max(across, Cross::Wanted(child) + Cross::Before(child) + Cross::After(child));
    }
    if (!children.empty())
        along += owner.GetChildPadding() * static_cast<int>(children.size() - 1);
    return {along, across};
}

} // namespace

int StackLayout::Arrange(CContainerUI& owner, const RECT& area, int scrollY)
{
    const SIZE available{area.right - area.left, area.bottom - area.top};
    int contentHeight = 0;
    for (const auto& child : VisibleChildren(owner, available)) {
        const Span x = PlaceAlone<HorizontalAxis>(child, owner, area);
        const Span y = PlaceAlone<VerticalAxis>(child, owner, area);
        child.control->SetPos(ToRect(x, Span{y.start - scrollY, y.size}), false);
        contentHeight = std::max(contentHeight, y.size + child.padding.top + child.padding.bottom);
    }
    return contentHeight;
}

SIZE StackLayout::Estimate(CContainerUI& owner, SIZE available)
{
    SIZE size{0, 0};
    for (const auto& child : VisibleChildren(owner, available)) {
        size.cx = std::max<LONG>(size.cx, child.wanted.cx + child.padding.left + child.padding.right);
        size.cy = std::max<LONG>(size.cy, child.wanted.cy + child.padding.top + child.padding.bottom);
    }
    return size;
}

int VerticalStackLayout::Arrange(CContainerUI& owner, const RECT& area, int scrollY)
{
    return ArrangeStack<VerticalAxis, HorizontalAxis>(owner, area, scrollY).cx;
}

SIZE VerticalStackLayout::Estimate(CContainerUI& owner, SIZE available)
{
    const auto [along, across] = EstimateStack<VerticalAxis, HorizontalAxis>(owner, available);
    return SIZE{across, along};
}

int HorizontalStackLayout::Arrange(CContainerUI& owner, const RECT& area, int scrollY)
{
    return ArrangeStack<HorizontalAxis, VerticalAxis>(owner, area, scrollY).cy;
}

SIZE HorizontalStackLayout::Estimate(CContainerUI& owner, SIZE available)
{
    const auto [along, across] = EstimateStack<HorizontalAxis, VerticalAxis>(owner, available);
    return SIZE{along, across};
}

} // namespace DuiLib
