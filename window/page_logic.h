#pragma once
// Which page the window shows: after a load, when the network is lost, and
// which page of `tab_right` a page value stands for.
#include "window/space_window_types.h"

// `onLoadDataEnd`: the failed page when the network is down, whatever the
// load found; else the empty page without items, the list with them.
PageType PageAfterLoad(bool networkAlive, bool hasItems);

// `tab_right`: the failed panel (1) for PageFailed, the item panel (0) for
// every other value.
int RightPageIndex(PageType page);
inline constexpr int kRightItemPanel = 0;
inline constexpr int kRightFailedPanel = 1;

// Losing the network: once a list was built it stays, with the failed panel
// beside it; before that the whole window shows the failed page.
enum class FailureView
{
    RightPanel,
    WholePage,
};
FailureView FailureViewFor(bool loaded);
