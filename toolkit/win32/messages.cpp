// Window handles, posting, sending and the message loop primitives.

#include <unistd.h>

#include <memory>

#include "toolkit/win32/message_queue.h"
#include "toolkit/win32/window_registry.h"

using toolkit_win32::CurrentThreadQueue;
using toolkit_win32::MessageFilter;
using toolkit_win32::SentCall;
using toolkit_win32::WindowRecord;
using toolkit_win32::WindowRegistry;

namespace {

MSG MakeMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return MSG{hwnd, message, wParam, lParam, GetTickCount(), POINT{0, 0}};
}

bool OwnedByCallingThread(const WindowRecord& window)
{
    return window.owner == CurrentThreadQueue();
}

// A window is in the table from its creation until after its WM_NCDESTROY.
bool WindowExists(HWND hwnd)
{
    return WindowRegistry::Instance().FindWindowRecord(hwnd) != nullptr;
}

} // namespace

HWND CreateWindowHandle(WindowProcedure procedure, LPARAM createParam)
{
    if (!procedure) {
        return nullptr;
    }
    auto window = std::make_shared<WindowRecord>();
    window->owner = CurrentThreadQueue();
    window->procedure = std::move(procedure);
    const HWND hwnd = WindowRegistry::Instance().AddWindow(window);
    if (window->procedure(hwnd, WM_CREATE, 0, createParam) == -1) {
        DestroyWindow(hwnd);
        return nullptr;
    }
    return hwnd;
}

BOOL DestroyWindow(HWND hWnd)
{
    auto window = WindowRegistry::Instance().FindWindowRecord(hWnd);
    if (!window || !OwnedByCallingThread(*window) || window->destroying) {
        return FALSE;
    }
    window->destroying = true;
    window->procedure(hWnd, WM_DESTROY, 0, 0);
    window->procedure(hWnd, WM_NCDESTROY, 0, 0);
    // Gone from the table first, so IsWindow is FALSE before anything that
    // was still queued for the window is dropped.
    WindowRegistry::Instance().RemoveWindow(hWnd);
    window->owner->ForgetWindow(*window);
    return TRUE;
}

BOOL IsWindow(HWND hWnd)
{
    return hWnd != nullptr && WindowExists(hWnd) ? TRUE : FALSE;
}

DWORD GetWindowThreadProcessId(HWND hWnd, DWORD* processId)
{
    auto window = WindowRegistry::Instance().FindWindowRecord(hWnd);
    if (!window) {
        return 0;
    }
    if (processId != nullptr) {
        *processId = static_cast<DWORD>(::getpid());
    }
    return window->owner->ThreadId();
}

BOOL PostMessageW(HWND hWnd, UINT msg, WPARAM wParam, LPARAM lParam)
{
    if (hWnd == nullptr) {
        return CurrentThreadQueue()->Post(MakeMessage(nullptr, msg, wParam, lParam), nullptr) ? TRUE : FALSE;
    }
    auto window = WindowRegistry::Instance().FindWindowRecord(hWnd);
    if (!window) {
        return FALSE;
    }
    return window->owner->Post(MakeMessage(hWnd, msg, wParam, lParam), window.get()) ? TRUE : FALSE;
}

BOOL PostThreadMessageW(DWORD threadId, UINT msg, WPARAM wParam, LPARAM lParam)
{
    auto queue = WindowRegistry::Instance().FindThread(threadId);
    if (!queue) {
        return FALSE;
    }
    return queue->Post(MakeMessage(nullptr, msg, wParam, lParam), nullptr) ? TRUE : FALSE;
}

LRESULT SendMessageW(HWND hWnd, UINT msg, WPARAM wParam, LPARAM lParam)
{
    auto window = WindowRegistry::Instance().FindWindowRecord(hWnd);
    if (!window) {
        return 0;
    }
    const auto& self = CurrentThreadQueue();
    if (window->owner == self) {
        return window->procedure(hWnd, msg, wParam, lParam);
    }
    auto call = std::make_shared<SentCall>();
    call->window = window;
    call->message = msg;
    call->wParam = wParam;
    call->lParam = lParam;
    call->sender = self;
    if (!window->owner->QueueSend(call)) {
        return 0;
    }
    return self->WaitForReply(*call);
}

void PostQuitMessage(int exitCode)
{
    CurrentThreadQueue()->PostQuit(exitCode);
}

BOOL PeekMessageW(MSG* msg, HWND hWnd, UINT msgFilterMin, UINT msgFilterMax, UINT removeMsg)
{
    if (msg == nullptr) {
        return FALSE;
    }
    const MessageFilter filter{hWnd, msgFilterMin, msgFilterMax};
    return CurrentThreadQueue()->Take(msg, filter, (removeMsg & PM_REMOVE) != 0) ? TRUE : FALSE;
}

BOOL GetMessageW(MSG* msg, HWND hWnd, UINT msgFilterMin, UINT msgFilterMax)
{
    if (msg == nullptr || (hWnd != nullptr && !WindowExists(hWnd))) {
        return -1;
    }
    const MessageFilter filter{hWnd, msgFilterMin, msgFilterMax};
    const auto& queue = CurrentThreadQueue();
    while (!queue->Take(msg, filter, true)) {
        queue->WaitForWork(filter);
    }
    return msg->message == WM_QUIT ? FALSE : TRUE;
}

BOOL TranslateMessage(const MSG* /*msg*/)
{
    return FALSE;
}

LRESULT DispatchMessageW(const MSG* msg)
{
    if (msg == nullptr || msg->hwnd == nullptr) {
        return 0;
    }
    auto window = WindowRegistry::Instance().FindWindowRecord(msg->hwnd);
    if (!window || !OwnedByCallingThread(*window)) {
        return 0;
    }
    return window->procedure(msg->hwnd, msg->message, msg->wParam, msg->lParam);
}

BOOL WaitMessage()
{
    const auto& queue = CurrentThreadQueue();
    const MessageFilter everything;
    MSG peeked{};
    while (!queue->Take(&peeked, everything, false)) {
        queue->WaitForWork(everything);
    }
    return TRUE;
}

void SetThreadEventSource(ExternalEventSource source)
{
    CurrentThreadQueue()->SetEventSource(std::move(source));
}

DWORD GetQueueWaitTimeout()
{
    const auto& queue = CurrentThreadQueue();
    queue->RunIncomingSends();
    return queue->IdleTimeout();
}
