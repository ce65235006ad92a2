#pragma once
// The event with which the host says that it has answered a backup message.
// One holder owns one event for one query and closes it when it goes; the
// messages of that query share it.
#include "platform/win32.h"

class HostAnswerEvent
{
public:
    // Automatic reset, not signalled.
    HostAnswerEvent();
    ~HostAnswerEvent();
    HostAnswerEvent(const HostAnswerEvent&) = delete;
    HostAnswerEvent& operator=(const HostAnswerEvent&) = delete;

    // Sends `message` to `window` with the event as wParam and `data` as
    // lParam, then waits until the host sets the event. There is no timeout:
    // the host owns that protocol, and a host that never answers holds the
    // caller for ever.
    void Ask(HWND window, unsigned message, void* data);

private:
    HANDLE handle;
};
