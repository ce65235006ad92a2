#pragma once
// The bar's numbers travel from a load thread to the window as a heap record
// in a posted WM_SPACE_SHOW_CLOUD; the window owns the record once the post
// has succeeded. A window destroyed before it handles the message would take
// the record down with the message, unreleased. So a posted record waits
// here until the window takes it, and the load thread releases, after its
// load, what a window that has gone never took.
#include <map>
#include <memory>
#include <mutex>
#include <vector>

#include "platform/win32.h"
#include "window/space_window_types.h"

class DisplayHandover
{
public:
    static DisplayHandover& Instance();

    // Posts `data` to `hWnd`; false, with the record released, when the post
    // fails.
    bool Post(HWND hWnd, std::unique_ptr<SpaceDisplayData> data);
    // Window thread, on WM_SPACE_SHOW_CLOUD: the record the message carries.
    // A record that was posted some other way is taken over as it is.
    std::unique_ptr<SpaceDisplayData> Take(SpaceDisplayData* posted);
    // Releases what was posted to `hWnd` and never taken, once the window is
    // gone; nothing while it exists.
    void ReleaseUntaken(HWND hWnd);
    // Records waiting for their window.
    std::size_t Waiting() const;

private:
    DisplayHandover() = default;

    mutable std::mutex mutex_;
    std::map<HWND, std::vector<std::unique_ptr<SpaceDisplayData>>> waiting_;
};
