// The host's side of the three backup messages. A window on a thread of its
// own answers them the way the desktop client's main window does: the
// backup generation and the version 3 device list come from the host
// configuration, and a deletion goes to the backup service through the
// deleter it was given.
// The data each message carries is in platform/backup_host_messages.h.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/win32.h"

namespace host {

constexpr UINT kBackupVersionMessage = WM_USER + 0x501;
constexpr UINT kBackupDeviceListMessage = WM_USER + 0x502;
constexpr UINT kBackupDeleteMessage = WM_USER + 0x503;

// Deletes one device's cloud backup and returns the outcome text: "success"
// or the reason it failed.
using BackupDeleter = std::function<std::string(const std::string& deviceId)>;

class BackupHostWindow
{
public:
    // Starts the window's thread and returns once the window exists. Without
    // a deleter a deletion is answered "no backup service".
    explicit BackupHostWindow(BackupDeleter deleter = {});
    // Destroys the window and joins its thread.
    ~BackupHostWindow();
    BackupHostWindow(const BackupHostWindow&) = delete;
    BackupHostWindow& operator=(const BackupHostWindow&) = delete;

    HWND Window() const;
    DWORD ThreadId() const;

private:
    class Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace host
