#include "space_data/host_answer_event.h"

HostAnswerEvent::HostAnswerEvent() : handle(CreateEventW(nullptr, FALSE, FALSE, nullptr)) {}

HostAnswerEvent::~HostAnswerEvent()
{
    CloseHandle(handle);
}

void HostAnswerEvent::Ask(HWND window, unsigned message, void* data)
{
    SendMessageW(window, message, reinterpret_cast<WPARAM>(handle), reinterpret_cast<LPARAM>(data));
    WaitForSingleObject(handle, INFINITE);
}
