#include "window/resource_check.h"

#include <json/json.h>

#include <cstdio>
#include <fstream>
#include <memory>
#include <sstream>

#include "toolkit/render/images.h"

using namespace DuiLib;

namespace {

std::string Narrow(const std::wstring& text)
{
    return attr::Narrow(text);
}

// jsoncpp's first error as "line N: message".
std::string FirstJsonError(const std::string& errors)
{
    int line = 0;
    int column = 0;
    if (std::sscanf(errors.c_str(), "* Line %d, Column %d", &line, &column) != 2)
        return errors;
    const std::size_t messageStart = errors.find('\n');
    std::string message = messageStart != std::string::npos ? errors.substr(messageStart + 1) : "";
    message.erase(0, message.find_first_not_of(' '));
    message = message.substr(0, message.find('\n'));
    return std::to_string(line) + ": " + message;
}

std::string ImageSource(const std::wstring& image)
{
    ImageSpec spec;
    if (!ImageSpec::Parse(image, spec))
        return Narrow(image);
    return Narrow(spec.file);
}

bool ImageLoads(const std::wstring& image, CPaintManagerUI& pm)
{
    ImageSpec spec;
    return ImageSpec::Parse(image, spec) && pm.GetImage(spec.file.c_str()) != nullptr;
}

} // namespace

std::optional<std::string> CheckLanguageFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return path + ": cannot open language file";
    std::ostringstream content;
    content << in.rdbuf();
    const std::string text = content.str();
    Json::CharReaderBuilder builder;
    builder["failIfExtra"] = true;
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    Json::Value root;
    std::string errors;
    try {
        if (!reader->parse(text.data(), text.data() + text.size(), &root, &errors))
            return path + ":" + FirstJsonError(errors);
    } catch (const std::exception& e) {
        // jsoncpp throws instead of reporting when nesting passes its limit.
        return path + ": not a language file (" + e.what() + ")";
    }
    if (!root.isObject())
        return path + ": a language file must be one JSON object of texts";
    for (const std::string& key : root.getMemberNames()) {
        if (!root[key].isString())
            return path + ": the text of \"" + key + "\" is not a string";
    }
    return std::nullopt;
}

std::optional<std::string> CheckLanguages(const std::wstring& language)
{
    const std::string folder = Narrow(CPaintManagerUI::GetInstancePath().str()) + "Res/lang/";
    for (const std::wstring& name : {language, std::wstring(L"en-US")}) {
        if (auto problem = CheckLanguageFile(folder + Narrow(name) + ".json"))
            return problem;
    }
    return std::nullopt;
}

std::optional<std::string> CheckSkinFile(const wchar_t* file, IDialogBuilderCallback* callback)
{
    // The skin's window size and fonts go to this manager, not the window's.
    CPaintManagerUI probe;
    CDialogBuilder builder;
    std::unique_ptr<CControlUI> root(builder.Create(file, nullptr, callback, &probe));
    if (!root) {
        if (builder.GetError())
            return builder.GetError()->ToString();
        return Narrow(CPaintManagerUI::GetResourcePath().str() + file) + ": cannot build skin";
    }
    return CheckTreeImages(root.get(), probe, file);
}

std::optional<std::string> CheckTreeImages(CControlUI* root, CPaintManagerUI& pm,
                                           const std::wstring& skinFile)
{
    struct Search
    {
        CPaintManagerUI* pm;
        CControlUI* broken = nullptr;
    } search{&pm};
    root->FindControl(
        [](CControlUI* control, LPVOID data) -> CControlUI* {
            auto* s = static_cast<Search*>(data);
            const CDuiString image = control->GetBkImage();
            if (s->broken == nullptr && !image.IsEmpty() && !ImageLoads(image.str(), *s->pm))
                s->broken = control;
            return nullptr;
        },
        &search, UIFIND_ALL);
    if (search.broken == nullptr)
        return std::nullopt;
    return Narrow(CPaintManagerUI::GetResourcePath().str()) + ImageSource(search.broken->GetBkImage().str()) +
           ": missing or unreadable image (the background of '" + Narrow(search.broken->GetName().str()) +
           "' in " + Narrow(skinFile) + ")";
}

std::optional<std::string> CheckImages(const std::vector<std::wstring>& images, CPaintManagerUI& pm,
                                       const std::string& usedBy)
{
    for (const std::wstring& image : images) {
        if (!ImageLoads(image, pm)) {
            return Narrow(CPaintManagerUI::GetResourcePath().str()) + ImageSource(image) +
                   ": missing or unreadable image (" + usedBy + ")";
        }
    }
    return std::nullopt;
}
