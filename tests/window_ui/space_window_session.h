#pragma once
// One space window against spacemgm-cloud, wired the way the host wires it:
// the host configuration the emulator wrote, the host's backup window
// answering the three backup messages, the view model, and SpaceMgmWnd
// created on the test's thread on the offscreen surface. The test drives it
// through window messages and reads it through its controls, the log sink
// and the emulator's account and request log.
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "cloud_emulator.h"
#include "harness/ui_harness.h"
#include "host/backup_host_window.h"
#include "host/logger_sink.h"
#include "host/network_probe.h"
#include "space_data/cloud_space_view_model.h"
#include "window/space_mgm_wnd.h"

namespace window_ui {

using namespace DuiLib;

struct SessionOptions
{
    std::string fixture = "sample"; // a fixture name or a path
    std::wstring language = L"en-US";
    int dpi = 96;
    // Emulator faults to set before the window opens.
    std::vector<Json::Value> faults;
    // The network probe: "online" or "file" (a file the test writes
    // "online" or "offline" into; starts online).
    std::string networkMode = "online";
    bool replaceCommaCountry = false;

    static SessionOptions Fixture(std::string name)
    {
        SessionOptions options;
        options.fixture = std::move(name);
        return options;
    }
};

class SpaceWindowSession
{
public:
    explicit SpaceWindowSession(SessionOptions options = {});
    ~SpaceWindowSession();
    SpaceWindowSession(const SpaceWindowSession&) = delete;
    SpaceWindowSession& operator=(const SpaceWindowSession&) = delete;

    // Creates and shows the window; false (with the reason in CreateError)
    // when creation failed.
    bool Open();
    std::string CreateError() const { return window_->GetCreateError(); }
    // Opens and waits until the first load has ended and the bar stands still.
    bool OpenAndSettle(int timeoutMs = 20000);
    // Every announced load has ended, its messages were handled, and the bar
    // animation is over.
    bool WaitUntilSettled(int timeoutMs = 20000);
    // Closes the window as the close button would and waits until it is gone.
    void CloseWindow();
    // A new window over the same view model, after the last one closed.
    bool Reopen();
    bool IsOpen() const;

    spacemgm_test::CloudEmulator& cloud() { return *cloud_; }
    CloudSpaceManagementViewModel& viewModel() { return *viewModel_; }
    std::shared_ptr<CloudSpaceManagementViewModel> sharedViewModel() { return viewModel_; }
    SpaceMgmWnd& window() { return *window_; }
    CPaintManagerUI& pm() { return window_->GetPaintManager(); }
    HWND hwnd() const { return window_->GetHWND(); }
    Logger::ScopedMemorySink& sink() { return sink_; }

    CControlUI* Control(const wchar_t* name) { return pm().FindControl(name); }
    template <class T> T* Find(const wchar_t* name) { return dynamic_cast<T*>(Control(name)); }
    std::wstring TextOf(const wchar_t* name);
    // The control is visible and so are all its parents.
    bool Shown(const wchar_t* name);
    int TabPage(const wchar_t* tabName);
    int SpaceRowCount();
    // The row of that category in SpaceList, or -1.
    int RowOf(CloudSpaceType type);
    bool ClickControl(const wchar_t* name);
    // Clicks the row of SpaceList at `index` and waits for what it starts.
    bool ClickRow(int index);
    bool ClickBackupDelete(int row);
    // Clicks `button` through the queue and runs the window modally, as the
    // host does, until the click closes it; the exit code.
    UINT LeaveBy(const wchar_t* button);

    // Writes the probe's file ("file" mode).
    void SetNetwork(bool online);
    // Operation records of one event.
    std::vector<Logger::OperationRecord> Records(int event) const;
    std::vector<std::string> LogLines(const std::string& function) const;

    // Renders the window and writes build/test-output/window/<name>.png.
    std::string Screenshot(const std::string& name);
    // Every shown text that does not fit its control, and every shown control
    // that reaches out of its parent, one line each.
    std::vector<std::string> LayoutProblems();

private:
    SessionOptions options_;
    std::unique_ptr<spacemgm_test::CloudEmulator> cloud_;
    std::string networkFile_;
    std::unique_ptr<host::ScopedNetworkProbe> networkProbe_;
    Logger::ScopedMemorySink sink_;
    std::unique_ptr<host::BackupHostWindow> hostWindow_;
    std::shared_ptr<CloudSpaceManagementViewModel> viewModel_;
    std::unique_ptr<SpaceMgmWnd> window_;
};

// Runs `steps` one after another on the test's thread from inside whatever
// modal loop is running (a confirmation box, a toast), the way a user acts
// while the window waits. Each step is tried every 20 ms until it returns
// true.
class ModalDriver
{
public:
    ModalDriver();
    ~ModalDriver();
    void Add(std::function<bool()> step);
    bool Done() const;

private:
    std::unique_ptr<uitest::SkinWindow> probe_;
    std::vector<std::function<bool()>> steps_;
    std::size_t next_ = 0;
};

// Answers the active confirmation box with its first (delete) or second
// (cancel) button; false while no box is up. `title` and `detail` receive
// the box's texts.
bool AnswerConfirmation(bool confirm, std::wstring* title = nullptr, std::wstring* detail = nullptr);

// The fixture file of a test-made account: `edit` changes the empty
// account's JSON; written under the build tree.
std::string MakeFixture(const std::string& name, const std::function<void(Json::Value&)>& edit);

// A plural text with its "%d" deleted, as the window writes it after digits.
std::wstring BareUnit(const wchar_t* key);

// Adds one PIM statistic ({source, sumNum}) to a fixture's category.
void AddStatistic(Json::Value& account, const char* category, const char* source, int count);

// A fault rule that answers `service` at `endpoint` with status 200 and `body`.
Json::Value ReplyRule(const std::string& service, const std::string& endpoint, const std::string& body);

} // namespace window_ui
