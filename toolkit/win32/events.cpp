// Events: CreateEventW, SetEvent, ResetEvent.

#include <memory>

#include "toolkit/win32/kernel_objects.h"

namespace toolkit_win32 {
namespace {

class EventObject : public KernelObject
{
public:
    EventObject(bool manualReset, bool signalled) : manualReset_(manualReset), signalled_(signalled) {}

    bool IsSignalledLocked() const override { return signalled_; }

    // An auto-reset event releases one wait per signal; a manual one every
    // wait until it is reset.
    void TakeSignalLocked() override
    {
        if (!manualReset_) {
            signalled_ = false;
        }
    }

    void SetLocked()
    {
        signalled_ = true;
        WakeWaitersLocked();
    }

    void ResetLocked() { signalled_ = false; }

private:
    const bool manualReset_;
    bool signalled_;
};

} // namespace
} // namespace toolkit_win32

using toolkit_win32::DispatcherMutex;
using toolkit_win32::EventObject;
using toolkit_win32::HandleTable;

HANDLE CreateEventW(void* /*securityAttributes*/, BOOL manualReset, BOOL initialState,
                    const wchar_t* /*name*/)
{
    return HandleTable::Instance().Add(
        std::make_shared<EventObject>(manualReset != FALSE, initialState != FALSE));
}

BOOL SetEvent(HANDLE event)
{
    auto object = HandleTable::Instance().FindAs<EventObject>(event);
    if (!object) {
        return FALSE;
    }
    std::lock_guard<std::mutex> lock(DispatcherMutex());
    object->SetLocked();
    return TRUE;
}

BOOL ResetEvent(HANDLE event)
{
    auto object = HandleTable::Instance().FindAs<EventObject>(event);
    if (!object) {
        return FALSE;
    }
    std::lock_guard<std::mutex> lock(DispatcherMutex());
    object->ResetLocked();
    return TRUE;
}
