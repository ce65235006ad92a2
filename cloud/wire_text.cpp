#include "wire_text.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <memory>

namespace cloud {

std::string ClientUrlEncode(const std::string& text)
{
    static const char hex[] = "0123456789abcdef";
    std::string out;
    out.reserve(text.size() * 3);
    for (unsigned char c : text) {
        if (std::isalnum(c) || c == '*' || c == '-' || c == '.' || c == '_') {
            out.push_back(static_cast<char>(c));
        } else {
            out.push_back('%');
            out.push_back(hex[c >> 4]);
            out.push_back(hex[c & 0x0f]);
        }
    }
    return out;
}

static int HexValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

std::optional<std::string> UrlDecode(const std::string& text, bool plusIsBlank)
{
    std::string out;
    out.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        char c = text[i];
        if (c == '%') {
            if (i + 2 >= text.size())
                return std::nullopt;
            int high = HexValue(text[i + 1]);
            int low = HexValue(text[i + 2]);
            if (high < 0 || low < 0)
                return std::nullopt;
            out.push_back(static_cast<char>(high * 16 + low));
            i += 2;
        } else if (c == '+' && plusIsBlank) {
            out.push_back(' ');
        } else {
            out.push_back(c);
        }
    }
    return out;
}

std::string AsHeaderLibrarySeesIt(const std::string& sent)
{
    return UrlDecode(sent, false).value_or(sent);
}

static const char kBase64Alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

std::string Base64Encode(const std::string& bytes)
{
    std::string out;
    size_t i = 0;
    while (i + 2 < bytes.size()) {
        unsigned n = (static_cast<unsigned char>(bytes[i]) << 16) |
                     (static_cast<unsigned char>(bytes[i + 1]) << 8) |
                     static_cast<unsigned char>(bytes[i + 2]);
        out.push_back(kBase64Alphabet[(n >> 18) & 63]);
        out.push_back(kBase64Alphabet[(n >> 12) & 63]);
        out.push_back(kBase64Alphabet[(n >> 6) & 63]);
        out.push_back(kBase64Alphabet[n & 63]);
        i += 3;
    }
    size_t rest = bytes.size() - i;
    if (rest == 1) {
        unsigned n = static_cast<unsigned char>(bytes[i]) << 16;
        out.push_back(kBase64Alphabet[(n >> 18) & 63]);
        out.push_back(kBase64Alphabet[(n >> 12) & 63]);
        out += "==";
    } else if (rest == 2) {
        unsigned n =
            (static_cast<unsigned char>(bytes[i]) << 16) | (static_cast<unsigned char>(bytes[i + 1]) << 8);
        out.push_back(kBase64Alphabet[(n >> 18) & 63]);
        out.push_back(kBase64Alphabet[(n >> 12) & 63]);
        out.push_back(kBase64Alphabet[(n >> 6) & 63]);
        out.push_back('=');
    }
    return out;
}

std::optional<std::string> Base64Decode(const std::string& text)
{
    if (text.size() % 4 != 0)
        return std::nullopt;
    std::string out;
    for (size_t i = 0; i < text.size(); i += 4) {
        unsigned n = 0;
        int padding = 0;
        for (size_t k = 0; k < 4; ++k) {
            char c = text[i + k];
            unsigned v = 0;
            if (c == '=') {
                if (i + 4 != text.size() || k < 2)
                    return std::nullopt;
                ++padding;
            } else {
                if (padding > 0)
                    return std::nullopt;
                const char* at = std::strchr(kBase64Alphabet, c);
                if (c == '\0' || at == nullptr)
                    return std::nullopt;
                v = static_cast<unsigned>(at - kBase64Alphabet);
            }
            n = (n << 6) | v;
        }
        out.push_back(static_cast<char>((n >> 16) & 0xff));
        if (padding < 2)
            out.push_back(static_cast<char>((n >> 8) & 0xff));
        if (padding < 1)
            out.push_back(static_cast<char>(n & 0xff));
    }
    return out;
}

FormBody ParseForm(const std::string& body)
{
    FormBody form;
    if (body.empty())
        return form;
    size_t start = 0;
    while (start <= body.size()) {
        size_t end = body.find('&', start);
        if (end == std::string::npos)
            end = body.size();
        std::string pair = body.substr(start, end - start);
        size_t eq = pair.find('=');
        if (eq == std::string::npos) {
            form.error = "form pair without '=': " + pair.substr(0, 40);
            return form;
        }
        auto key = UrlDecode(pair.substr(0, eq));
        auto value = UrlDecode(pair.substr(eq + 1));
        if (!key || !value) {
            form.error = "broken percent escape in form";
            return form;
        }
        if (!form.fields.emplace(*key, *value).second) {
            form.error = "form key repeated: " + *key;
            return form;
        }
        start = end + 1;
    }
    return form;
}

std::string CheckFormKeys(const FormBody& form, const std::vector<std::string>& required,
                          const std::vector<std::string>& optional)
{
    for (const auto& key : required)
        if (!form.fields.count(key))
            return "form: \"" + key + "\" missing";
    auto listed = [](const std::vector<std::string>& keys, const std::string& key) {
        return std::find(keys.begin(), keys.end(), key) != keys.end();
    };
    for (const auto& [key, value] : form.fields)
        if (!listed(required, key) && !listed(optional, key))
            return "form: unexpected key \"" + key + "\"";
    return "";
}

std::optional<std::vector<std::string>> ParseListText(const std::string& text)
{
    if (text.size() < 2 || text.front() != '[' || text.back() != ']')
        return std::nullopt;
    std::vector<std::string> items;
    std::string inner = text.substr(1, text.size() - 2);
    if (inner.empty())
        return items;
    size_t pos = 0;
    while (pos < inner.size()) {
        if (inner[pos] != '"')
            return std::nullopt;
        size_t close = inner.find('"', pos + 1);
        if (close == std::string::npos)
            return std::nullopt;
        items.push_back(inner.substr(pos + 1, close - pos - 1));
        pos = close + 1;
        if (pos == inner.size())
            break;
        if (inner[pos] != ',')
            return std::nullopt;
        ++pos;
        if (pos == inner.size())
            return std::nullopt;
    }
    return items;
}

namespace {

// The deepest nesting of arrays and objects in `text`, counted outside
// strings; stops counting once past `limit`.
int NestingDepth(const std::string& text, int limit)
{
    int depth = 0;
    int deepest = 0;
    bool inString = false;
    for (size_t i = 0; i < text.size() && deepest <= limit; ++i) {
        const char c = text[i];
        if (inString) {
            if (c == '\\')
                ++i;
            else if (c == '"')
                inString = false;
        } else if (c == '"') {
            inString = true;
        } else if (c == '[' || c == '{') {
            deepest = std::max(deepest, ++depth);
        } else if ((c == ']' || c == '}') && depth > 0) {
            --depth;
        }
    }
    return deepest;
}

} // namespace

std::optional<Json::Value> ParseJson(const std::string& text, std::string* error)
{
    auto fail = [error](const std::string& why) -> std::optional<Json::Value> {
        if (error)
            *error = why;
        return std::nullopt;
    };
    if (NestingDepth(text, kMaxJsonDepth) > kMaxJsonDepth)
        return fail("nested more than " + std::to_string(kMaxJsonDepth) + " levels deep");
    Json::CharReaderBuilder builder;
    builder["collectComments"] = false;
    std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    Json::Value value;
    std::string errors;
    try {
        if (!reader->parse(text.data(), text.data() + text.size(), &value, &errors))
            return fail(errors);
    } catch (const Json::Exception& e) {
        return fail(e.what());
    }
    return value;
}

std::string OneLineParseError(const std::string& error)
{
    std::string line = error.substr(0, error.find('\n', error.find('\n') + 1));
    for (auto& c : line)
        if (c == '\n')
            c = ' ';
    while (!line.empty() && line.back() == ' ')
        line.pop_back();
    return line;
}

std::string WriteCompactJson(const Json::Value& value)
{
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "";
    return Json::writeString(builder, value);
}

std::string WriteStyledJson(const Json::Value& value)
{
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "  ";
    return Json::writeString(builder, value) + "\n";
}

namespace {

// The length of the UTF-8 sequence at text[at], or 0 when it is not one.
size_t Utf8SequenceAt(const std::string& text, size_t at)
{
    const auto byte = [&](size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(at);
    if (lead < 0x80)
        return 1;
    const size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC2 ? 2 : 0;
    if (length == 0 || lead > 0xF4 || at + length > text.size())
        return 0;
    for (size_t i = 1; i < length; ++i)
        if ((byte(at + i) & 0xC0) != 0x80)
            return 0;
    const unsigned char second = byte(at + 1);
    if ((lead == 0xE0 && second < 0xA0) || (lead == 0xED && second >= 0xA0) ||
        (lead == 0xF0 && second < 0x90) || (lead == 0xF4 && second >= 0x90))
        return 0; // overlong, surrogate, or past U+10FFFF
    return length;
}

} // namespace

bool IsUtf8(const std::string& text)
{
    for (size_t at = 0; at < text.size();) {
        const size_t length = Utf8SequenceAt(text, at);
        if (length == 0)
            return false;
        at += length;
    }
    return true;
}

std::string ToLower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

bool StartsWith(const std::string& text, const std::string& prefix)
{
    return text.compare(0, prefix.size(), prefix) == 0;
}

bool EndsWith(const std::string& text, const std::string& suffix)
{
    return text.size() >= suffix.size() &&
           text.compare(text.size() - suffix.size(), suffix.size(), suffix) == 0;
}

std::optional<std::string> Between(const std::string& text, const std::string& prefix,
                                   const std::string& suffix)
{
    if (text.size() < prefix.size() + suffix.size() || !StartsWith(text, prefix) || !EndsWith(text, suffix))
        return std::nullopt;
    return text.substr(prefix.size(), text.size() - prefix.size() - suffix.size());
}

} // namespace cloud
