#pragma once
// Text codecs the services speak: the client's own percent-encoding, Base64,
// form bodies and the bracketed list text of the NSP forms.
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <json/json.h>

namespace cloud {

// Percent-encoding as the client does it: letters, digits and "*-._" stay,
// every other byte becomes '%' with two lower-case hex digits.
std::string ClientUrlEncode(const std::string& text);
// Decodes %XX (either case), and '+' as a blank when plusIsBlank; nullopt on
// a broken escape.
std::optional<std::string> UrlDecode(const std::string& text, bool plusIsBlank = true);
// A header value as the server library hands it over: cpp-httplib 0.11
// percent-decodes header values (a broken escape stays as it is).
std::string AsHeaderLibrarySeesIt(const std::string& sent);

std::string Base64Encode(const std::string& bytes);
std::optional<std::string> Base64Decode(const std::string& text);

// An application/x-www-form-urlencoded body. A repeated key or a pair without
// '=' makes it invalid: the client never sends either.
struct FormBody
{
    std::map<std::string, std::string> fields;
    std::string error;
    bool ok() const { return error.empty(); }
};
FormBody ParseForm(const std::string& body);
// Refusal text for a form that lacks one of `required` or has a key that is
// in neither list; empty when the keys are right. Checked in the order given.
std::string CheckFormKeys(const FormBody& form, const std::vector<std::string>& required,
                          const std::vector<std::string>& optional = {});

// The list text of the NSP forms: "[" then quoted items joined by ",", then "]".
std::optional<std::vector<std::string>> ParseListText(const std::string& text);

// Parses JSON text from a file or a request. Never throws: text nested
// deeper than kMaxJsonDepth is refused before the parser sees it (a deep
// enough nesting would otherwise exhaust the stack or make jsoncpp throw).
constexpr int kMaxJsonDepth = 512;
std::optional<Json::Value> ParseJson(const std::string& text, std::string* error = nullptr);
// ParseJson's error as one line: jsoncpp's "* Line N, Column M" and the reason.
std::string OneLineParseError(const std::string& error);
std::string WriteCompactJson(const Json::Value& value);
std::string WriteStyledJson(const Json::Value& value);

// Whether `text` is well-formed UTF-8: no stray or missing continuation
// bytes, no overlong forms, no surrogates, nothing past U+10FFFF.
bool IsUtf8(const std::string& text);

std::string ToLower(std::string text);
bool StartsWith(const std::string& text, const std::string& prefix);
bool EndsWith(const std::string& text, const std::string& suffix);
// The text between `prefix` and `suffix` when `text` is exactly prefix, some
// middle, suffix; nullopt otherwise.
std::optional<std::string> Between(const std::string& text, const std::string& prefix,
                                   const std::string& suffix);

} // namespace cloud
