#include "host/backup_host_window.h"

#include <future>
#include <string>
#include <thread>
#include <vector>

#include "host/host_config.h"
#include "platform/backup_host_messages.h"
#include "toolkit/win32/message_queue.h"

namespace host {

namespace {

// Asks the window's own thread to end its loop.
constexpr UINT kStopMessage = WM_USER + 0x5FF;

void AnswerVersion(std::string& answer)
{
    answer = CurrentHostConfig().backupGeneration;
}

void AnswerDeviceList(std::vector<BackupDevListSt>& devices)
{
    for (const BackupDevice& device : CurrentHostConfig().backupDevices) {
        BackupDevListSt entry;
        entry.deviceId = device.deviceId;
        entry.deviceName = device.deviceName;
        devices.push_back(entry);
    }
}

} // namespace

class BackupHostWindow::Impl
{
public:
    explicit Impl(BackupDeleter deleter) : deleter_(std::move(deleter))
    {
        std::promise<std::pair<HWND, DWORD>> ready;
        auto started = ready.get_future();
        thread_ = std::thread([this, &ready] { Run(ready); });
        const auto identity = started.get();
        window_ = identity.first;
        threadId_ = identity.second;
    }

    ~Impl()
    {
        PostMessageW(window_, kStopMessage, 0, 0);
        thread_.join();
    }

    HWND Window() const { return window_; }
    DWORD ThreadId() const { return threadId_; }

private:
    void Run(std::promise<std::pair<HWND, DWORD>>& ready)
    {
        const HWND window = CreateWindowHandle([this](HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
            return Procedure(hWnd, message, wParam, lParam);
        });
        ready.set_value({window, GetCurrentThreadId()});
        MSG message{};
        while (GetMessageW(&message, nullptr, 0, 0) > 0) {
            DispatchMessageW(&message);
        }
    }

    LRESULT Procedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
    {
        const HANDLE event = reinterpret_cast<HANDLE>(wParam);
        switch (message) {
        case kBackupVersionMessage:
            AnswerVersion(*reinterpret_cast<std::string*>(lParam));
            SetEvent(event);
            return 1;
        case kBackupDeviceListMessage:
            AnswerDeviceList(*reinterpret_cast<std::vector<BackupDevListSt>*>(lParam));
            SetEvent(event);
            return 1;
        case kBackupDeleteMessage: {
            auto& text = *reinterpret_cast<std::string*>(lParam);
            text = deleter_ ? deleter_(text) : std::string("no backup service");
            SetEvent(event);
            return 1;
        }
        case kStopMessage:
            DestroyWindow(hWnd);
            PostQuitMessage(0);
            return 0;
        default:
            return 0;
        }
    }

    BackupDeleter deleter_;
    HWND window_ = nullptr;
    DWORD threadId_ = 0;
    std::thread thread_;
};

BackupHostWindow::BackupHostWindow(BackupDeleter deleter) : impl_(std::make_unique<Impl>(std::move(deleter)))
{
}

BackupHostWindow::~BackupHostWindow() = default;

HWND BackupHostWindow::Window() const
{
    return impl_->Window();
}

DWORD BackupHostWindow::ThreadId() const
{
    return impl_->ThreadId();
}

} // namespace host
