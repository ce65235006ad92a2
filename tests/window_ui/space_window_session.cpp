#include "space_window_session.h"

#include <filesystem>
#include <fstream>

#include "app/cbs_backup_deleter.h"
#include "host/host_config.h"
#include "host/network_probe.h"
#include "toolkit/window/native_surface.h"
#include "window/load_sequence.h"
#include "window/space_list_ui.h"

namespace window_ui {

namespace {

std::string OutputFolder()
{
    const std::filesystem::path dir = std::filesystem::path(SPACEMGM_BINARY_DIR) / "test-output" / "window";
    std::filesystem::create_directories(dir);
    return dir.string();
}

bool AllShown(CControlUI* control)
{
    for (CControlUI* c = control; c != nullptr; c = c->GetParent()) {
        if (!c->IsVisible())
            return false;
    }
    return control != nullptr;
}

} // namespace

SpaceWindowSession::SpaceWindowSession(SessionOptions options) : options_(std::move(options))
{
    cloud_ = std::make_unique<spacemgm_test::CloudEmulator>(
        spacemgm_test::CloudEmulator::Options::ForFixture(options_.fixture));
    for (const Json::Value& rule : options_.faults)
        cloud_->AddFault(rule);

    host::HostConfig config = host::LoadHostConfigFile(cloud_->ConfigPath());
    config.dataDir = cloud_->WorkDir() + "/data";
    config.logDir = cloud_->WorkDir() + "/log";
    config.timeoutSeconds = 5;
    config.replaceCommaCountry = options_.replaceCommaCountry;
    config.language = attr::Narrow(options_.language);
    config.networkMode = options_.networkMode;
    if (options_.networkMode == "file") {
        networkFile_ = cloud_->WorkDir() + "/network";
        config.networkFile = networkFile_;
        SetNetwork(true);
    }
    host::SetCurrentHostConfig(config);
    networkProbe_ = std::make_unique<host::ScopedNetworkProbe>(config);

    uitest::UseOffscreenToolkit();
    CResourceManager::GetInstance()->SetLanguage(options_.language.c_str());
    CDPI::SetProcessDPI(options_.dpi);

    hostWindow_ = std::make_unique<host::BackupHostWindow>(app::DeleteDeviceBackup);
    viewModel_ = std::make_shared<CloudSpaceManagementViewModel>();
    viewModel_->SetCloudbackupTipParam(hostWindow_->Window(), host::kBackupVersionMessage,
                                       host::kBackupDeviceListMessage, host::kBackupDeleteMessage);
    window_ = std::make_unique<SpaceMgmWnd>(nullptr, viewModel_);
}

SpaceWindowSession::~SpaceWindowSession()
{
    if (IsOpen())
        CloseWindow();
    // Loads still running hold the view model; let them end before the
    // emulator goes, so that they do not wait for requests to time out.
    uitest::PumpUntil([] { return LoadSequence::Instance().Idle(); }, 20000);
    uitest::PumpPending();
    window_.reset();
    CDPI::SetProcessDPI(96);
    CResourceManager::GetInstance()->SetLanguage(L"en-US");
}

bool SpaceWindowSession::Open()
{
    if (window_->Create(nullptr, L"SpaceMgmWnd", 0, 0, 0, 0, 0, 0) == nullptr)
        return false;
    window_->ShowWindow(true);
    uitest::PumpPending();
    return true;
}

bool SpaceWindowSession::OpenAndSettle(int timeoutMs)
{
    return Open() && WaitUntilSettled(timeoutMs);
}

bool SpaceWindowSession::WaitUntilSettled(int timeoutMs)
{
    return uitest::PumpUntil(
        [this] {
            return LoadSequence::Instance().Idle() && (!IsOpen() || !window_->IsBarAnimating()) &&
                   (!IsOpen() || TabPage(L"tab_switch") != PageLoading);
        },
        timeoutMs);
}

void SpaceWindowSession::CloseWindow()
{
    ClickControl(L"btn_close");
    uitest::PumpUntil([this] { return !IsOpen(); }, 5000);
}

bool SpaceWindowSession::Reopen()
{
    if (IsOpen())
        CloseWindow();
    uitest::PumpPending();
    window_ = std::make_unique<SpaceMgmWnd>(nullptr, viewModel_);
    return OpenAndSettle();
}

bool SpaceWindowSession::IsOpen() const
{
    return window_ && window_->GetHWND() != nullptr && ::IsWindow(window_->GetHWND());
}

std::wstring SpaceWindowSession::TextOf(const wchar_t* name)
{
    CControlUI* control = Control(name);
    return control != nullptr ? control->GetText().str() : L"<missing " + std::wstring(name) + L">";
}

bool SpaceWindowSession::Shown(const wchar_t* name)
{
    return AllShown(Control(name));
}

int SpaceWindowSession::TabPage(const wchar_t* tabName)
{
    auto* tab = Find<CTabLayoutUI>(tabName);
    return tab != nullptr ? tab->GetCurSel() : -2;
}

int SpaceWindowSession::SpaceRowCount()
{
    auto* list = Find<CListUI>(L"SpaceList");
    return list != nullptr ? list->GetCount() : -1;
}

int SpaceWindowSession::RowOf(CloudSpaceType type)
{
    auto* list = Find<CListUI>(L"SpaceList");
    for (int i = 0; list != nullptr && i < list->GetCount(); ++i) {
        auto* row = dynamic_cast<CSpaceItemUI*>(list->GetItemAt(i));
        if (row != nullptr && row->GetSpaceInfo().type == type)
            return i;
    }
    return -1;
}

bool SpaceWindowSession::ClickControl(const wchar_t* name)
{
    return uitest::Click(pm(), name);
}

bool SpaceWindowSession::ClickRow(int index)
{
    auto* list = Find<CListUI>(L"SpaceList");
    if (list == nullptr || index < 0 || index >= list->GetCount())
        return false;
    list->EnsureVisible(index);
    pm().UpdateLayoutIfNeeded();
    uitest::ClickAt(hwnd(), uitest::CentreOf(pm(), list->GetItemAt(index)));
    uitest::PumpPending();
    return list->GetCurSel() == index;
}

bool SpaceWindowSession::ClickBackupDelete(int row)
{
    auto* list = Find<CListUI>(L"BackupList");
    if (list == nullptr || row < 0 || row >= list->GetCount())
        return false;
    auto* rowControl = dynamic_cast<CContainerUI*>(list->GetItemAt(row));
    CControlUI* button = rowControl != nullptr ? rowControl->FindSubControl(L"btn_del") : nullptr;
    if (button == nullptr)
        return false;
    list->EnsureVisible(row);
    pm().UpdateLayoutIfNeeded();
    uitest::ClickAt(hwnd(), uitest::CentreOf(pm(), button));
    return true;
}

UINT SpaceWindowSession::LeaveBy(const wchar_t* button)
{
    const POINT p = uitest::CentreOf(pm(), Control(button));
    ::PostMessageW(hwnd(), WM_LBUTTONDOWN, 0, MAKELPARAM(p.x, p.y));
    ::PostMessageW(hwnd(), WM_LBUTTONUP, 0, MAKELPARAM(p.x, p.y));
    return window_->ShowModal();
}

void SpaceWindowSession::SetNetwork(bool online)
{
    std::ofstream(networkFile_, std::ios::trunc) << (online ? "online" : "offline");
}

std::vector<Logger::OperationRecord> SpaceWindowSession::Records(int event) const
{
    std::vector<Logger::OperationRecord> found;
    for (const Logger::OperationRecord& record : sink_.OperationRecords()) {
        if (record.event == event)
            found.push_back(record);
    }
    return found;
}

std::vector<std::string> SpaceWindowSession::LogLines(const std::string& function) const
{
    std::vector<std::string> lines;
    for (const Logger::Record& record : sink_.Records()) {
        if (record.function == function)
            lines.push_back(record.message);
    }
    return lines;
}

std::string SpaceWindowSession::Screenshot(const std::string& name)
{
    const std::string path = OutputFolder() + "/" + name + ".png";
    uitest::Snapshot snapshot(pm());
    snapshot.WritePng(path);
    return path;
}

std::vector<std::string> SpaceWindowSession::LayoutProblems()
{
    pm().UpdateLayoutIfNeeded();
    struct Search
    {
        CPaintManagerUI* pm;
        std::vector<std::string> problems;
    } search{&pm(), {}};
    pm().GetRoot()->FindControl(
        [](CControlUI* control, LPVOID data) -> CControlUI* {
            auto* s = static_cast<Search*>(data);
            if (!AllShown(control))
                return nullptr;
            const std::string name = attr::Narrow(control->GetName().str());
            const RECT r = control->GetPos();
            CControlUI* parent = control->GetParent();
            auto* scroller = parent != nullptr ? dynamic_cast<CContainerUI*>(parent) : nullptr;
            // Rows scrolled out of a list are clipped by design.
            const bool scrolls = scroller != nullptr && scroller->IsVScrollEnabled();
            if (parent != nullptr && !scrolls) {
                const RECT p = parent->GetPos();
                if (r.left < p.left || r.top < p.top || r.right > p.right || r.bottom > p.bottom) {
                    s->problems.push_back("'" + name + "' reaches out of its parent '" +
                                          attr::Narrow(parent->GetName().str()) + "'");
                }
            }
            auto* label = dynamic_cast<CLabelUI*>(control);
            if (label == nullptr || label->GetText().IsEmpty())
                return nullptr;
            const RECT pad = label->GetTextPadding();
            const int width = (r.right - r.left) - pad.left - pad.right;
            const int height = (r.bottom - r.top) - pad.top - pad.bottom;
            const UINT style = label->GetTextStyle() & ~static_cast<UINT>(DT_END_ELLIPSIS);
            const bool wraps = (style & DT_WORDBREAK) != 0;
            const SIZE need = MeasureText(label->GetText().str(), *s->pm->GetFont(label->GetFont()), style,
                                          wraps ? width : 0, s->pm->GetDPIObj()->GetScaleFactor());
            if ((!wraps && need.cx > width) || need.cy > height) {
                s->problems.push_back("'" + name + "' \"" + attr::Narrow(label->GetText().str()) +
                                      "\" needs " + std::to_string(need.cx) + "x" + std::to_string(need.cy) +
                                      ", has " + std::to_string(width) + "x" + std::to_string(height));
            }
            return nullptr;
        },
        &search, UIFIND_ALL);
    return search.problems;
}

ModalDriver::ModalDriver()
{
    probe_ = std::make_unique<uitest::SkinWindow>(L"<Window size=\"4,4\"><Control /></Window>");
    probe_->Create(nullptr, L"driver", 0, 0, 0, 0, 0, 0);
    probe_->onMessage = [this](UINT msg, WPARAM, LPARAM, bool&) -> LRESULT {
        if (msg == WM_TIMER && next_ < steps_.size() && steps_[next_]())
            ++next_;
        return 0;
    };
    ::SetTimer(probe_->GetHWND(), 1, 20, nullptr);
}

ModalDriver::~ModalDriver()
{
    ::KillTimer(probe_->GetHWND(), 1);
    if (probe_->GetHWND() != nullptr)
        ::DestroyWindow(probe_->GetHWND());
}

void ModalDriver::Add(std::function<bool()> step)
{
    steps_.push_back(std::move(step));
}

bool ModalDriver::Done() const
{
    return next_ >= steps_.size();
}

bool AnswerConfirmation(bool confirm, std::wstring* title, std::wstring* detail)
{
    const HWND box = UIIMessageBox::GetActiveBox();
    auto* window = box != nullptr ? dynamic_cast<WindowImplBase*>(CWindowWnd::FromHandle(box)) : nullptr;
    if (window == nullptr)
        return false;
    CPaintManagerUI& boxPm = window->GetPaintManager();
    if (title != nullptr && boxPm.FindControl(L"mb_title") != nullptr)
        *title = boxPm.FindControl(L"mb_title")->GetText().str();
    if (detail != nullptr && boxPm.FindControl(L"mb_detail") != nullptr)
        *detail = boxPm.FindControl(L"mb_detail")->GetText().str();
    return uitest::Click(boxPm, confirm ? L"mb_first" : L"mb_second");
}

std::string MakeFixture(const std::string& name, const std::function<void(Json::Value&)>& edit)
{
    Json::Value account;
    std::ifstream in(spacemgm_test::CloudEmulator::FixturePath("empty"));
    Json::CharReaderBuilder reader;
    std::string errors;
    Json::parseFromStream(reader, in, &account, &errors);
    account["name"] = name;
    edit(account);
    const std::string path = OutputFolder() + "/" + name + ".json";
    std::ofstream(path, std::ios::trunc) << account.toStyledString();
    return path;
}

std::wstring BareUnit(const wchar_t* key)
{
    std::wstring unit = CResourceManager::GetInstance()->GetText(key);
    for (std::size_t at = unit.find(L"%d"); at != std::wstring::npos; at = unit.find(L"%d"))
        unit.erase(at, 2);
    return unit;
}

void AddStatistic(Json::Value& account, const char* category, const char* source, int count)
{
    Json::Value statistic;
    statistic["source"] = source;
    statistic["sumNum"] = count;
    account["pim"][category]["statistics"].append(statistic);
}

Json::Value ReplyRule(const std::string& service, const std::string& endpoint, const std::string& body)
{
    Json::Value rule;
    rule["service"] = service;
    if (!endpoint.empty())
        rule["endpoint"] = endpoint;
    rule["kind"] = "status";
    rule["status"] = 200;
    rule["body"] = body;
    return rule;
}

} // namespace window_ui
