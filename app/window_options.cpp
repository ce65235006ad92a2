#include "app/window_options.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "app/category_names.h"

namespace app {

namespace {

constexpr double kMinScale = 1.0;
constexpr double kMaxScale = 4.0;
constexpr int kMaxTimeoutSeconds = 3600;

std::string CategoryChoices()
{
    std::string names;
    for (CloudSpaceType type : AllCategories())
        names += (names.empty() ? "" : ", ") + CategoryName(type) + " (" + std::to_string(type) + ")";
    return names;
}

std::string Join(const std::vector<std::string>& words)
{
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : ", ") + word;
    return text;
}

// Applies one option with its value; an error line when the value is bad.
std::optional<std::string> ApplyOption(const std::string& key, const std::string& value,
                                       WindowOptions& options)
{
    if (key == "--png") {
        options.png = value;
    } else if (key == "--dump-controls") {
        options.dump = value;
    } else if (key == "--lang") {
        options.language = value;
    } else if (key == "--res") {
        options.resourceRoot = value;
    } else if (key == "--config") {
        options.configPath = value;
    } else if (key == "--scale") {
        const auto scale = ParseScale(value);
        if (!scale)
            return "--scale: \"" + value + "\" is not a number from 1 to 4 (such as 1, 1.5 or 2)";
        options.scale = *scale;
    } else if (key == "--select") {
        options.select = ParseCategory(value);
        if (!options.select)
            return "--select: \"" + value + "\" is not a category; use one of " + CategoryChoices();
    } else if (key == "--timeout") {
        const auto seconds = ParseTimeout(value);
        if (!seconds)
            return "--timeout: \"" + value + "\" is not a whole number of seconds from 1 to 3600";
        options.timeoutSeconds = *seconds;
    }
    return std::nullopt;
}

} // namespace

bool WindowOptionTakesValue(const std::string& option)
{
    static const char* const kWithValue[] = {"--png",    "--dump-controls", "--lang", "--scale",
                                             "--select", "--timeout",       "--res",  "--config"};
    return std::any_of(std::begin(kWithValue), std::end(kWithValue),
                       [&option](const char* known) { return option == known; });
}

std::optional<std::string> ParseWindowOptions(const std::vector<std::string>& words, WindowOptions& options)
{
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& key = words[i];
        if (!WindowOptionTakesValue(key))
            return key.rfind("--", 0) == 0 ? "unknown option " + key : "unexpected argument \"" + key + "\"";
        if (i + 1 >= words.size())
            return key + " needs a value";
        if (auto problem = ApplyOption(key, words[++i], options))
            return problem;
    }
    if (options.png.empty() && options.select)
        return "--select needs --png: in a real window, click the row";
    return std::nullopt;
}

std::optional<CloudSpaceType> ParseCategory(const std::string& text)
{
    for (CloudSpaceType type : AllCategories()) {
        if (text == CategoryName(type) || text == std::to_string(type))
            return type;
    }
    return std::nullopt;
}

std::optional<double> ParseScale(const std::string& text)
{
    char* end = nullptr;
    const double value = std::strtod(text.c_str(), &end);
    if (text.empty() || *end != '\0' || !std::isfinite(value) || value < kMinScale || value > kMaxScale)
        return std::nullopt;
    return value;
}

std::optional<int> ParseTimeout(const std::string& text)
{
    if (text.empty() || text.size() > 4 || !std::all_of(text.begin(), text.end(), ::isdigit))
        return std::nullopt;
    const int seconds = std::atoi(text.c_str());
    if (seconds < 1 || seconds > kMaxTimeoutSeconds)
        return std::nullopt;
    return seconds;
}

std::vector<std::string> AvailableLanguages(const std::string& resourceRoot)
{
    std::vector<std::string> languages;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(resourceRoot + "/Res/lang", error)) {
        if (entry.path().extension() == ".json")
            languages.push_back(entry.path().stem().string());
    }
    std::sort(languages.begin(), languages.end());
    return languages;
}

std::optional<std::string> CheckLanguageChoice(const std::string& resourceRoot, const std::string& language)
{
    const std::vector<std::string> languages = AvailableLanguages(resourceRoot);
    if (std::find(languages.begin(), languages.end(), language) != languages.end())
        return std::nullopt;
    if (languages.empty())
        return "unknown language \"" + language + "\": there are no language files in " + resourceRoot +
               "/Res/lang";
    return "unknown language \"" + language + "\"; there are " + Join(languages);
}

} // namespace app
