#include "toolkit/paint/control_dump.h"

#include "toolkit/paint/control_dump_file.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>

#include <json/value.h>
#include <json/writer.h>

#include "toolkit/controls/container.h"
#include "toolkit/controls/list.h"
#include "toolkit/controls/progress.h"
#include "toolkit/paint/paint_manager.h"

namespace DuiLib {

namespace {

std::string Utf8(const CDuiString& text)
{
    return attr::Narrow(text.str());
}

// A JSON string literal; jsoncpp does the escaping and keeps UTF-8 as it is.
std::string Quoted(const std::string& utf8)
{
    static const Json::StreamWriterBuilder builder = [] {
        Json::StreamWriterBuilder settings;
        settings["emitUTF8"] = true;
        settings["indentation"] = "";
        return settings;
    }();
    return Json::writeString(builder, Json::Value(utf8));
}

std::string ColourText(DWORD colour)
{
    char text[10];
    std::snprintf(text, sizeof text, "#%08X", static_cast<unsigned>(colour));
    return text;
}

// The members of one JSON object, written in the order they are added.
class Members
{
public:
    explicit Members(std::string& out) : m_out(out) { m_out += '{'; }
    void Text(const char* key, const std::string& value) { Key(key) += Quoted(value); }
    void Number(const char* key, long long value) { Key(key) += std::to_string(value); }
    void Flag(const char* key, bool value) { Key(key) += value ? "true" : "false"; }
    std::string& Key(const char* key)
    {
        m_out += m_first ? "\"" : ", \"";
        m_first = false;
        return m_out.append(key).append("\": ");
    }
    void End() { m_out += '}'; }

private:
    std::string& m_out;
    bool m_first = true;
};

// The state only some kinds of control have.
void AddKindState(CControlUI& control, Members& members)
{
    if (auto* tabs = static_cast<CTabLayoutUI*>(control.GetInterface(DUI_CTR_TABLAYOUT)))
        members.Number("selected", tabs->GetCurSel());
    if (auto* list = static_cast<IListOwnerUI*>(control.GetInterface(DUI_CTR_ILISTOWNER)))
        members.Number("selected", list->GetCurSel());
    if (auto* progress = static_cast<CProgressUI*>(control.GetInterface(DUI_CTR_PROGRESS))) {
        members.Number("value", progress->GetValue());
        members.Number("min", progress->GetMinValue());
        members.Number("max", progress->GetMaxValue());
    }
    if (control.GetForeColor() != 0)
        members.Text("foreColor", ColourText(control.GetForeColor()));
    if (control.GetBkColor() != 0)
        members.Text("bkColor", ColourText(control.GetBkColor()));
}

void WriteControl(CControlUI& control, const CDPI& dpi, int depth, std::string& out)
{
    Members members(out);
    members.Text("name", Utf8(control.GetName()));
    members.Text("class", Utf8(control.GetClass()));
    members.Text("text", Utf8(control.GetText()));
    members.Flag("visible", control.IsVisible());
    members.Flag("shown", IsControlShown(&control));
    const RECT& pos = control.GetPos();
    members.Number("x", dpi.Scale(pos.left));
    members.Number("y", dpi.Scale(pos.top));
    members.Number("width", dpi.Scale(pos.right) - dpi.Scale(pos.left));
    members.Number("height", dpi.Scale(pos.bottom) - dpi.Scale(pos.top));
    AddKindState(control, members);
    members.Key("children") += '[';
    auto* container = static_cast<IContainerUI*>(control.GetInterface(DUI_CTR_ICONTAINER));
    const int count = container != nullptr ? container->GetCount() : 0;
    for (int i = 0; i < count; ++i) {
        out += '\n';
        out.append(static_cast<std::size_t>(depth + 1) * 2, ' ');
        WriteControl(*container->GetItemAt(i), dpi, depth + 1, out);
        if (i + 1 < count)
            out += ',';
    }
    out += ']';
    members.End();
}

} // namespace

std::string ControlTreeText(CPaintManagerUI& manager)
{
    manager.UpdateLayoutIfNeeded();
    std::string out;
    Members dump(out);
    dump.Text("window", Utf8(manager.GetName()));
    std::string& controls = dump.Key("controls");
    if (CControlUI* root = manager.GetRoot()) {
        controls.back() = '\n'; // the root starts a line of its own
        controls += "  ";
        WriteControl(*root, *manager.GetDPIObj(), 1, out);
        out += '\n';
    } else {
        controls += "null";
    }
    dump.End();
    out += '\n';
    return out;
}

bool WriteFileWhole(const std::string& path, const std::string& text, std::string* error)
{
    const std::string temporary = path + ".part";
    {
        std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
        out << text;
        out.flush();
        if (!out) {
            if (error != nullptr)
                *error = "cannot write " + temporary + ": " + std::strerror(errno);
            std::remove(temporary.c_str());
            return false;
        }
    }
    if (std::rename(temporary.c_str(), path.c_str()) != 0) {
        if (error != nullptr)
            *error = "cannot replace " + path + ": " + std::strerror(errno);
        std::remove(temporary.c_str());
        return false;
    }
    return true;
}

void ControlDumpFile::SetPath(std::string path)
{
    m_path = std::move(path);
    m_written.clear();
    m_failureReported = false;
}

void ControlDumpFile::Refresh(CPaintManagerUI& manager)
{
    if (m_path.empty())
        return;
    std::string text = ControlTreeText(manager);
    if (text == m_written)
        return;
    std::string error;
    if (WriteFileWhole(m_path, text, &error)) {
        m_written = std::move(text);
        m_failureReported = false;
    } else if (!m_failureReported) {
        std::fprintf(stderr, "toolkit: control dump: %s\n", error.c_str());
        m_failureReported = true;
    }
}

} // namespace DuiLib
