#include "language_file.h"

#include <json/json.h>

#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>
#include <stdexcept>

#include "foundation/utilities.h"

namespace texts {

namespace {

[[noreturn]] void Refuse(const std::filesystem::path& path, const std::string& problem)
{
    throw std::runtime_error(path.string() + ": " + problem);
}

std::string ReadBytes(const std::filesystem::path& path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in)
        Refuse(path, "cannot be read");
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

Json::Value ParseStrictly(const std::filesystem::path& path, const std::string& bytes)
{
    Json::CharReaderBuilder builder;
    Json::CharReaderBuilder::strictMode(&builder.settings_);
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    Json::Value root;
    std::string errors;
    if (!reader->parse(bytes.data(), bytes.data() + bytes.size(), &root, &errors))
        Refuse(path, "is not valid JSON: " + errors);
    if (!root.isObject())
        Refuse(path, "is not a JSON object of key and text");
    return root;
}

} // namespace

TextTable ReadLanguageFile(const std::filesystem::path& path)
{
    const std::string bytes = ReadBytes(path);
    std::wstring decoded;
    if (bytes.empty() || !NarrowToWide(bytes, decoded, kCodePageUtf8))
        Refuse(path, "is empty or not valid UTF-8");
    const Json::Value root = ParseStrictly(path, bytes);
    TextTable table;
    for (const auto& key : root.getMemberNames()) {
        const Json::Value& value = root[key];
        if (!value.isString())
            Refuse(path, "the value of \"" + key + "\" is not a text");
        // An escape such as \udcff could still decode to text that is no UTF-8.
        const std::string text = value.asString();
        if (!text.empty() && !NarrowToWide(text, decoded, kCodePageUtf8))
            Refuse(path, "the text of \"" + key + "\" is not valid UTF-8");
        table[key] = text;
    }
    return table;
}

} // namespace texts
