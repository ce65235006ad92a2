#include "toolkit/paint/dialog_builder.h"

#include <pugixml.hpp>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <unordered_map>

#include "toolkit/controls/button.h"
#include "toolkit/controls/container.h"
#include "toolkit/controls/control.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/list.h"
#include "toolkit/controls/progress.h"
#include "toolkit/core/resource_manager.h"
#include "toolkit/paint/paint_manager.h"

namespace DuiLib {

namespace {

// Thrown inside the parser with the element's offset; caught in Create.
struct BuildFailure
{
    std::ptrdiff_t offset;
    std::wstring name;
    std::string message;
};

std::wstring W(const char* utf8)
{
    return attr::Widen(utf8 ? utf8 : "");
}

int LineOf(const std::string& text, std::ptrdiff_t offset)
{
    if (offset < 0)
        return 0;
    int line = 1;
    const auto end = std::min<std::size_t>(static_cast<std::size_t>(offset), text.size());
    for (std::size_t i = 0; i < end; ++i) {
        if (text[i] == '\n')
            ++line;
    }
    return line;
}

std::wstring Localised(const std::wstring& value)
{
    if (value.size() > 3 && value.compare(0, 2, L"%[") == 0 && value.back() == L']') {
        return CResourceManager::GetInstance()->GetText(value.substr(2, value.size() - 3).c_str());
    }
    return value;
}

[[noreturn]] void Unknown(const std::wstring& name, const std::wstring& value)
{
    throw AttributeError(AttributeError::Kind::UnknownAttribute, name, value);
}

// What a <Font> element says.
struct FontSpec
{
    int id = -1;
    std::wstring family;
    int size = 12;
    bool bold = false;
    bool underline = false;
    bool italic = false;
    bool isDefault = false;
};

const std::unordered_map<std::wstring, AttributeSetter<FontSpec>>& FontAttributes()
{
    static const std::unordered_map<std::wstring, AttributeSetter<FontSpec>> table = {
        {L"id", [](FontSpec& f, const wchar_t* n, const wchar_t* v) { f.id = attr::ParseInt(n, v); }},
        {L"name", [](FontSpec& f, const wchar_t*, const wchar_t* v) { f.family = v; }},
        {L"size", [](FontSpec& f, const wchar_t* n, const wchar_t* v) { f.size = attr::ParseInt(n, v); }},
        {L"bold", [](FontSpec& f, const wchar_t* n, const wchar_t* v) { f.bold = attr::ParseBool(n, v); }},
        {L"underline",
         [](FontSpec& f, const wchar_t* n, const wchar_t* v) { f.underline = attr::ParseBool(n, v); }},
        {L"italic",
         [](FontSpec& f, const wchar_t* n, const wchar_t* v) { f.italic = attr::ParseBool(n, v); }},
        {L"default",
         [](FontSpec& f, const wchar_t* n, const wchar_t* v) { f.isDefault = attr::ParseBool(n, v); }},
        {L"shared", [](FontSpec&, const wchar_t* n, const wchar_t* v) { attr::ParseBool(n, v); }},
    };
    return table;
}

// Controls made by the builder are owned by whoever takes the tree.
template <class Control> CControlUI* MakeControl()
{
    return new Control;
}

} // namespace

CControlUI* CreateBuiltinControl(const std::wstring& className)
{
    using Factory = CControlUI* (*)();
    static const std::unordered_map<std::wstring, Factory> factories = {
        {L"Control", &MakeControl<CControlUI>},
        {L"Container", &MakeControl<CContainerUI>},
        {L"VerticalLayout", &MakeControl<CVerticalLayoutUI>},
        {L"HorizontalLayout", &MakeControl<CHorizontalLayoutUI>},
        {L"TabLayout", &MakeControl<CTabLayoutUI>},
        {L"Label", &MakeControl<CLabelUI>},
        {L"Text", &MakeControl<CTextUI>},
        {L"Button", &MakeControl<CButtonUI>},
        {L"Progress", &MakeControl<CProgressUI>},
        {L"List", &MakeControl<CListUI>},
        {L"ListContainerElement", &MakeControl<CListContainerElementUI>},
    };
    const auto found = factories.find(className);
    return found != factories.end() ? found->second() : nullptr;
}

bool IsToolkitExtension(const std::wstring& attributeName)
{
    // Progress end rounding is set from code (SetRoundRectDirection) in a
    // DuiLib skin.
    return attributeName == L"rounddirection";
}

struct CDialogBuilder::Parser
{
    using WindowSetter = AttributeSetter<Parser>;

    // The attributes of <Window>; without a manager they are only checked.
    static const std::unordered_map<std::wstring, WindowSetter>& WindowAttributes()
    {
        static const std::unordered_map<std::wstring, WindowSetter> table = {
            {L"size",
             [](Parser& p, const wchar_t* n, const wchar_t* v) {
                 const SIZE s = attr::ParseSize(n, v);
                 if (p.manager)
                     p.manager->SetInitSize(s.cx, s.cy);
             }},
            {L"caption",
             [](Parser& p, const wchar_t* n, const wchar_t* v) {
                 const RECT r = attr::ParseRect(n, v);
                 if (p.manager)
                     p.manager->SetCaptionRect(r);
             }},
            {L"roundcorner",
             [](Parser& p, const wchar_t* n, const wchar_t* v) {
                 const SIZE s = attr::ParseSize(n, v);
                 if (p.manager)
                     p.manager->SetRoundCorner(s.cx, s.cy);
             }},
            {L"mininfo",
             [](Parser& p, const wchar_t* n, const wchar_t* v) {
                 const SIZE s = attr::ParseSize(n, v);
                 if (p.manager)
                     p.manager->SetMinInfo(s.cx, s.cy);
             }},
            {L"defaultfontcolor",
             [](Parser& p, const wchar_t* n, const wchar_t* v) {
                 const DWORD color = attr::ParseColor(n, v);
                 if (p.manager)
                     p.manager->SetDefaultFontColor(color);
             }},
            // Read for their form only: the toolkit's windows do not use them.
            {L"sizebox", [](Parser&, const wchar_t* n, const wchar_t* v) { attr::ParseRect(n, v); }},
            {L"maxinfo", [](Parser&, const wchar_t* n, const wchar_t* v) { attr::ParseRect(n, v); }},
            {L"showshadow", [](Parser&, const wchar_t* n, const wchar_t* v) { attr::ParseBool(n, v); }},
            {L"bktrans", [](Parser&, const wchar_t* n, const wchar_t* v) { attr::ParseBool(n, v); }},
            {L"layered", [](Parser&, const wchar_t* n, const wchar_t* v) { attr::ParseBool(n, v); }},
        };
        return table;
    }

    IDialogBuilderCallback* callback;
    CPaintManagerUI* manager;
    bool duiLibOnly;

    [[noreturn]] static void Fail(const pugi::xml_node& node, std::wstring name, std::string message)
    {
        throw BuildFailure{node.offset_debug(), std::move(name), std::move(message)};
    }

    // Applies every attribute of `node` with `apply`, which throws
    // AttributeError for one it does not know or cannot read.
    template <class Apply> static void ForEachAttribute(const pugi::xml_node& node, Apply apply)
    {
        for (const auto& a : node.attributes()) {
            try {
                apply(W(a.name()), W(a.value()));
            } catch (const AttributeError& e) {
                Fail(node, e.name(), std::string(node.name()) + ": " + e.what());
            }
        }
    }

    void ApplyWindow(const pugi::xml_node& node)
    {
        ForEachAttribute(node, [this](const std::wstring& name, const std::wstring& value) {
            if (!ApplyFromTable(WindowAttributes(), *this, name.c_str(), value.c_str()))
                Unknown(name, value);
        });
    }

    void ApplyFont(const pugi::xml_node& node)
    {
        FontSpec font;
        ForEachAttribute(node, [&font](const std::wstring& name, const std::wstring& value) {
            if (!ApplyFromTable(FontAttributes(), font, name.c_str(), value.c_str()))
                Unknown(name, value);
        });
        if (manager == nullptr)
            return;
        if (font.id >= 0)
            manager->AddFont(font.id, font.family.c_str(), font.size, font.bold, font.underline, font.italic);
        if (font.isDefault) {
            manager->SetDefaultFont(font.family.c_str(), font.size, font.bold, font.underline, font.italic);
        }
    }

    // In a DuiLib-only build, an attribute of this toolkit's own is an error:
    // the skin must mean the same to DuiLib.
    void RefuseExtension(const pugi::xml_node& node, const std::wstring& name) const
    {
        if (duiLibOnly && IsToolkitExtension(name)) {
            Fail(node, name,
                 "'" + attr::Narrow(name) + "' is an extension of this toolkit, not a DuiLib attribute");
        }
    }

    void ApplyDefault(const pugi::xml_node& node)
    {
        const std::wstring name = W(node.attribute("name").value());
        const std::wstring value = W(node.attribute("value").value());
        if (name.empty())
            Fail(node, L"name", "Default: missing attribute 'name'");
        for (const auto& a : node.attributes()) {
            const std::string key = a.name();
            if (key != "name" && key != "value" && key != "shared") {
                Fail(node, W(a.name()), "Default: unknown attribute '" + key + "'");
            }
        }
        attr::ForEachInList(
            value.c_str(), [&](const std::wstring& key, const std::wstring&) { RefuseExtension(node, key); });
        // Check the list now, so a typo is reported where it was written.
        std::unique_ptr<CControlUI> probe(CreateBuiltinControl(name));
        if (!probe && callback)
            probe.reset(callback->CreateControl(name.c_str()));
        if (!probe)
            Fail(node, name, "Default: unknown control class '" + attr::Narrow(name) + "'");
        try {
            probe->ApplyAttributeList(value.c_str());
        } catch (const AttributeError& e) {
            Fail(node, e.name(), std::string("Default ") + attr::Narrow(name) + ": " + e.what());
        }
        if (manager)
            manager->AddDefaultAttributeList(name.c_str(), value.c_str());
    }

    CControlUI* Build(const pugi::xml_node& node, CControlUI* parent)
    {
        const std::wstring className = W(node.name());
        std::unique_ptr<CControlUI> control(CreateBuiltinControl(className));
        if (!control && callback)
            control.reset(callback->CreateControl(className.c_str()));
        if (!control)
            Fail(node, className, "unknown element '" + attr::Narrow(className) + "'");

        if (manager) {
            if (LPCTSTR defaults = manager->GetDefaultAttributeList(className.c_str())) {
                try {
                    control->ApplyAttributeList(defaults);
                } catch (const AttributeError& e) {
                    Fail(node, e.name(), attr::Narrow(className) + ": " + e.what());
                }
            }
        }
        for (const auto& a : node.attributes()) {
            const std::wstring name = W(a.name());
            std::wstring value = W(a.value());
            if (name == L"text" || name == L"tooltip")
                value = Localised(value);
            RefuseExtension(node, name);
            try {
                control->SetAttribute(name.c_str(), value.c_str());
            } catch (const AttributeError& e) {
                Fail(node, e.name(), attr::Narrow(className) + ": " + e.what());
            }
        }
        auto* container = static_cast<IContainerUI*>(control->GetInterface(DUI_CTR_ICONTAINER));
        for (const auto& child : node.children()) {
            if (child.type() != pugi::node_element)
                continue;
            if (container == nullptr) {
                Fail(child, W(child.name()), attr::Narrow(className) + " cannot hold child elements");
            }
            CControlUI* built = Build(child, control.get());
            container->Add(built);
        }
        (void)parent;
        return control.release();
    }
};

CDialogBuilder::CDialogBuilder() = default;

CDialogBuilder::~CDialogBuilder() = default;

CControlUI* CDialogBuilder::Create(STRINGorID xml, LPCTSTR, IDialogBuilderCallback* pCallback,
                                   CPaintManagerUI* pManager, CControlUI* pParent)
{
    m_pCallback = pCallback;
    m_error.reset();
    const std::wstring source = xml.m_lpstr ? xml.m_lpstr : L"";
    std::string text;
    std::string fileLabel = "<string>";
    if (!source.empty() && source[0] == L'<') {
        text = attr::Narrow(source);
    } else {
        std::string path = attr::Narrow(source);
        if (path.empty() || path[0] != '/')
            path = attr::Narrow(CPaintManagerUI::GetResourcePath().str()) + path;
        fileLabel = path;
        std::ifstream in(path, std::ios::binary);
        if (!in) {
            m_error = SkinError{fileLabel, 0, source, "cannot open skin file"};
            return nullptr;
        }
        std::ostringstream content;
        content << in.rdbuf();
        text = content.str();
    }

    pugi::xml_document doc;
    const pugi::xml_parse_result parsed = doc.load_buffer(text.data(), text.size());
    if (!parsed) {
        m_error = SkinError{fileLabel, LineOf(text, parsed.offset), L"",
                            std::string("XML: ") + parsed.description()};
        return nullptr;
    }

    Parser parser{pCallback, pManager, m_bDuiLibOnly};
    try {
        pugi::xml_node root = doc.document_element();
        CControlUI* result = nullptr;
        if (std::string(root.name()) == "Window") {
            parser.ApplyWindow(root);
            for (const auto& child : root.children()) {
                if (child.type() != pugi::node_element)
                    continue;
                const std::string name = child.name();
                if (name == "Font") {
                    parser.ApplyFont(child);
                } else if (name == "Default") {
                    parser.ApplyDefault(child);
                } else if (result == nullptr) {
                    result = parser.Build(child, pParent);
                } else {
                    Parser::Fail(child, W(child.name()), "Window holds more than one root control");
                }
            }
        } else {
            result = parser.Build(root, pParent);
        }
        if (result != nullptr && pManager != nullptr) {
            result->SetManager(pManager, pParent, false);
        }
        return result;
    } catch (const BuildFailure& failure) {
        m_error = SkinError{fileLabel, LineOf(text, failure.offset), failure.name, failure.message};
        return nullptr;
    }
}

} // namespace DuiLib
