#pragma once
// Test harness for the toolkit: windows built from a skin string or file,
// run offscreen on the test's thread, driven through real window messages
// (clicks, keys, wheel) and inspected through their controls and pixels.

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <json/value.h>

#include "toolkit/duilib.h"

namespace uitest {

using namespace DuiLib;

// One notification as a window saw it.
struct SeenNotify
{
    std::wstring type;
    std::wstring sender;
    WPARAM wParam;
    LPARAM lParam;
    std::wstring virtualWnd;
};

// A window whose skin is given as XML text or as a file under the skin
// folder; records its notifications and lets a test hook messages.
class SkinWindow : public WindowImplBaseEx
{
public:
    explicit SkinWindow(std::wstring skin, std::wstring folder = L"");

    std::vector<SeenNotify> notifications;
    std::function<void(TNotifyUI&)> onNotify;
    // Runs before the base; set handled to stop the message.
    std::function<LRESULT(UINT, WPARAM, LPARAM, bool& handled)> onMessage;
    std::function<CControlUI*(LPCTSTR)> onCreateControl;
    bool finalMessageSeen = false;

    CPaintManagerUI& pm() { return m_pm; }
    int CountNotify(const std::wstring& type) const;

protected:
    LPCTSTR GetWindowClassName() const override { return L"SkinWindow"; }
    CDuiString GetSkinFolder() override { return m_folder; }
    CDuiString GetSkinFile() override { return m_skin; }
    CControlUI* CreateControl(LPCTSTR pstrClass) override;
    void Notify(TNotifyUI& msg) override;
    LRESULT HandleMessage(UINT uMsg, WPARAM wParam, LPARAM lParam) override;
    void OnFinalMessage(HWND hWnd) override;

private:
    CDuiString m_skin;
    CDuiString m_folder;
};

// Puts the toolkit in offscreen mode with the repository as instance path.
void UseOffscreenToolkit();

// Creates the window (hidden) and shows it; false when the skin failed.
bool Open(SkinWindow& window, HWND parent = nullptr);

// Runs the calling thread's messages for `ms` milliseconds.
void Pump(int ms);
// Runs messages until `done` is true or `timeoutMs` passed; returns done().
bool PumpUntil(const std::function<bool()>& done, int timeoutMs = 2000);
// Runs the messages already waiting, then returns.
void PumpPending();

// Centre of a control in client device pixels.
POINT CentreOf(CPaintManagerUI& pm, CControlUI* control);
// Presses and releases the left button over the named control, through
// WM_LBUTTONDOWN / WM_LBUTTONUP; false if there is no such visible control.
bool Click(CPaintManagerUI& pm, const wchar_t* name);
bool ClickAt(HWND hwnd, POINT devicePoint);
void MoveMouse(HWND hwnd, POINT devicePoint);
void PressKey(HWND hwnd, UINT vk, bool shift = false);
void Wheel(HWND hwnd, POINT devicePoint, int notches);

template <class T> T* Find(CPaintManagerUI& pm, const wchar_t* name)
{
    return dynamic_cast<T*>(pm.FindControl(name));
}

// A fresh rendering of the window's content.
class Snapshot
{
public:
    explicit Snapshot(CPaintManagerUI& pm);
    ~Snapshot();
    Snapshot(const Snapshot&) = delete;
    Snapshot& operator=(const Snapshot&) = delete;
    int width() const;
    int height() const;
    // 0xAARRGGBB, not premultiplied.
    std::uint32_t Pixel(int x, int y) const;
    bool WritePng(const std::string& path) const;
    // Pixels in the rectangle whose colour is within `tolerance` of `rgb`
    // on each channel (alpha ignored).
    int CountNear(const RECT& rect, std::uint32_t rgb, int tolerance) const;
    // Pixels in the rectangle darker than `maxLuma` (0..255).
    int CountDark(const RECT& rect, int maxLuma) const;

private:
    struct _cairo_surface* m_surface;
};

// Reads a control dump (docs/control-dump.md); false for text that is not
// a JSON object.
bool ParseControlDump(const std::string& text, Json::Value& dump);
// The control named `name` in a dump's tree (from `node` down), or null.
const Json::Value* FindInControlDump(const Json::Value& node, const std::string& name);

// Where tests write their PNGs (created if needed).
std::string OutputPath(const std::string& fileName);

} // namespace uitest
