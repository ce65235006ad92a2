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
        if (!item->IsVisible())
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

// How a stack measures its children along the axis it stacks them on.
struct VerticalAxis
{
    static int Wanted(const Child& c) { return c.wanted.cy; }
    static int Before(const Child& c) { return c.padding.top; }
    static int After(const Child& c) { return c.padding.bottom; }
    static int Min(const Child& c) { return c.control->GetMinHeight(); }
    static int Max(const Child& c) { return c.control->GetMaxHeight(); }
};

struct HorizontalAxis
{
    static int Wanted(const Child& c) { return c.wanted.cx; }
    static int Before(const Child& c) { return c.padding.left; }
    static int After(const Child& c) { return c.padding.right; }
    static int Min(const Child& c) { return c.control->GetMinWidth(); }
    static int Max(const Child& c) { return c.control->GetMaxWidth(); }
};

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

} // namespace

int StackLayout::Arrange(CContainerUI& owner, const RECT& area, int scrollY)
{
    const SIZE available{area.right - area.left, area.bottom - area.top};
    int contentHeight = 0;
    for (auto& child : VisibleChildren(owner, available)) {
        const RECT& pad = child.padding;
        const int roomW = available.cx - pad.left - pad.right;
        const int roomH = available.cy - pad.top - pad.bottom;
        const int w = Clamp(child.wanted.cx > 0 ? child.wanted.cx : roomW, child.control->GetMinWidth(),
                            child.control->GetMaxWidth());
        const int h = Clamp(child.wanted.cy > 0 ? child.wanted.cy : roomH, child.control->GetMinHeight(),
                            child.control->GetMaxHeight());
        const int x = Align(area.left + pad.left, roomW, w, owner.GetChildAlign() & DT_CENTER,
                            owner.GetChildAlign() & DT_RIGHT);
        const int y = Align(area.top + pad.top, roomH, h, owner.GetChildVAlign() & DT_VCENTER,
                            owner.GetChildVAlign() & DT_BOTTOM) -
                      scrollY;
        child.control->SetPos(RECT{x, y, x + w, y + h}, false);
        contentHeight = std::max(contentHeight, h + pad.top + pad.bottom);
    }
    return contentHeight;
}

SIZE StackLayout::Estimate(CContainerUI& owner, SIZE available)
{
    SIZE size{0, 0};
    for (auto& child : VisibleChildren(owner, available)) {
        size.cx = std::max<LONG>(size.cx, child.wanted.cx + child.padding.left + child.padding.right);
        size.cy = std::max<LONG>(size.cy, child.wanted.cy + child.padding.top + child.padding.bottom);
    }
    return size;
}

int VerticalStackLayout::Arrange(CContainerUI& owner, const RECT& area, int scrollY)
{
    const SIZE available{area.right - area.left, area.bottom - area.top};
    auto children = VisibleChildren(owner, available);
    if (children.empty())
        return 0;

    const StackSplit split = SplitStack<VerticalAxis>(children, available.cy, owner.GetChildPadding());

    int y = area.top - scrollY;
    if (split.flexible == 0) {
        y = Align(y, available.cy, split.fixedTotal, owner.GetChildVAlign() & DT_VCENTER,
                  owner.GetChildVAlign() & DT_BOTTOM);
    }
    const int top = y;
    for (std::size_t i = 0; i < children.size(); ++i) {
        auto& child = children[i];
        const RECT& pad = child.padding;
        const int h = split.sizes[i];
        const int roomW = available.cx - pad.left - pad.right;
        const int w = Clamp(child.wanted.cx > 0 ? child.wanted.cx : roomW, child.control->GetMinWidth(),
                            child.control->GetMaxWidth());
        const int x = Align(area.left + pad.left, roomW, w, owner.GetChildAlign() & DT_CENTER,
                            owner.GetChildAlign() & DT_RIGHT);
        y += pad.top;
        child.control->SetPos(RECT{x, y, x + w, y + h}, false);
        y += h + pad.bottom;
        if (i + 1 < children.size())
            y += owner.GetChildPadding();
    }
    return y - top;
}

SIZE VerticalStackLayout::Estimate(CContainerUI& owner, SIZE available)
{
    SIZE size{0, 0};
    auto children = VisibleChildren(owner, available);
    for (const auto& child : children) {
        size.cx = std::max<LONG>(size.cx, child.wanted.cx + child.padding.left + child.padding.right);
        size.cy += child.wanted.cy + child.padding.top + child.padding.bottom;
    }
    if (!children.empty())
        size.cy += owner.GetChildPadding() * static_cast<int>(children.size() - 1);
    return size;
}

int HorizontalStackLayout::Arrange(CContainerUI& owner, const RECT& area, int scrollY)
{
    const SIZE available{area.right - area.left, area.bottom - area.top};
    auto children = VisibleChildren(owner, available);
    if (children.empty())
        return 0;

    const StackSplit split = SplitStack<HorizontalAxis>(children, available.cx, owner.GetChildPadding());

    int x = area.left;
    if (split.flexible == 0) {
        x = Align(x, available.cx, split.fixedTotal, owner.GetChildAlign() & DT_CENTER,
                  owner.GetChildAlign() & DT_RIGHT);
    }
    int contentHeight = 0;
    for (std::size_t i = 0; i < children.size(); ++i) {
        auto& child = children[i];
        const RECT& pad = child.padding;
        const int w = split.sizes[i];
        const int roomH = available.cy - pad.top - pad.bottom;
        const int h = Clamp(child.wanted.cy > 0 ? child.wanted.cy : roomH, child.control->GetMinHeight(),
                            child.control->GetMaxHeight());
        const int y = Align(area.top + pad.top, roomH, h, owner.GetChildVAlign() & DT_VCENTER,
                            owner.GetChildVAlign() & DT_BOTTOM) -
                      scrollY;
        x += pad.left;
        child.control->SetPos(RECT{x, y, x + w, y + h}, false);
        x += w + pad.right;
        if (i + 1 < children.size())
            x += owner.GetChildPadding();
        contentHeight = std::max(contentHeight, h + pad.top + pad.bottom);
    }
    return contentHeight;
}

SIZE HorizontalStackLayout::Estimate(CContainerUI& owner, SIZE available)
{
    SIZE size{0, 0};
    auto children = VisibleChildren(owner, available);
    for (const auto& child : children) {
        size.cx += child.wanted.cx + child.padding.left + child.padding.right;
        size.cy = std::max<LONG>(size.cy, child.wanted.cy + child.padding.top + child.padding.bottom);
    }
    if (!children.empty())
        size.cx += owner.GetChildPadding() * static_cast<int>(children.size() - 1);
    return size;
}

} // namespace DuiLib
