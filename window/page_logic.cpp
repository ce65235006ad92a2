#include "window/page_logic.h"

PageType PageAfterLoad(bool networkAlive, bool hasItems)
{
    if (!networkAlive)
        return PageFailed;
    return hasItems ? PageContent : PageEmpty;
}

int RightPageIndex(PageType page)
{
    return page == PageFailed ? kRightFailedPanel : kRightItemPanel;
}

FailureView FailureViewFor(bool loaded)
{
    return loaded ? FailureView::RightPanel : FailureView::WholePage;
}
