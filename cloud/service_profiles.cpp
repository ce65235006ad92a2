#include "service_profiles.h"

#include <algorithm>
#include <cctype>
#include <optional>
#include <tuple>

#include "wire_text.h"

namespace cloud {

const char* const kAppId = "com.zephra.cloud.pc";

namespace {

const std::vector<std::string> kVersionHeaders = {"version", "x-zp-app-version", "x-zp-backup-version",
                                                  "encversion", "x-zp-device-category"};

std::vector<std::string> AllBut(std::initializer_list<std::string> keep)
{
    std::vector<std::string> out;
    for (const auto& name : kVersionHeaders) {
        bool kept = false;
        for (const auto& k : keep)
            kept = kept || k == name;
        if (!kept)
            out.push_back(name);
    }
    return out;
}

std::vector<ServiceProfile> MakeProfiles()
{
    const std::pair<std::string, std::string> json{"Content-Type", "application/json"};
    std::vector<ServiceProfile> p;
    // NSP: the composite token from the send step's fallback, no version
    // header, and a JSON content type although the body is a form.
    p.push_back(
        {"nsp", "/nsp", true, AuthForm::Composite, "05002", {json}, AllBut({}), false, ErrorShape::Nsp});
    p.push_back({"basic", "/basic", false, AuthForm::Unchecked, "", {}, {}, false, ErrorShape::Text});
    p.push_back({"portal", "/portal", false, AuthForm::Unchecked, "", {}, {}, false, ErrorShape::Text});
    p.push_back({"cloudPhoto",
                 "/cloudphoto",
                 true,
                 AuthForm::Bearer,
                 "02116",
                 {json, {"version", "11.2.4.301"}, {"x-zp-os-brand", "Windows"}},
                 {"x-zp-app-version", "x-zp-backup-version", "encversion", "x-zp-device-category",
                  "client-type", "Cflg"},
                 false,
                 ErrorShape::Error});
    p.push_back({"cbs",
                 "/cbs",
                 true,
                 AuthForm::Composite,
                 "10004",
                 {json,
                  {"version", "1122300"},
                  {"x-zp-app-version", "1122300"},
                  {"x-zp-backup-version", "1"},
                  {"encversion", "0"}},
                 AllBut({"version", "x-zp-app-version", "x-zp-backup-version", "encversion"}),
                 false,
                 ErrorShape::Result});
    p.push_back({"pimds",
                 "/pimds",
                 true,
                 AuthForm::Composite,
                 "10004",
                 {json, {"version", "11.2.4.301"}},
                 AllBut({"version", "encversion"}),
                 true,
                 ErrorShape::Statistic});
    // The quota service and the data version service take the same headers
    // and differ only in how they say no.
    for (auto [name, prefix, errors] : {std::tuple{"familyShare", "/family", ErrorShape::RetCode},
                                        std::tuple{"cloudSyncDrive", "/syncdrive", ErrorShape::Error}})
        p.push_back({name,
                     prefix,
                     true,
                     AuthForm::Bearer,
                     "10004",
                     {json, {"version", "1122300"}, {"x-zp-app-version", "1122300"}},
                     AllBut({"version", "x-zp-app-version"}),
                     false,
                     errors});
    // The host's own requests: only the token is checked.
    p.push_back(
        {"accountQuota", "/account", false, AuthForm::Bearer, "", {}, {}, false, ErrorShape::RetCode});
    p.push_back({"omConfig", "/om", false, AuthForm::Unchecked, "", {}, {}, false, ErrorShape::Text});
    return p;
}

Refusal Refuse(int status, std::string reason)
{
    return Refusal{status, std::move(reason)};
}

Refusal CheckAuthorization(const ServiceProfile& profile, const httplib::Request& req, const Session& session)
{
    if (profile.auth == AuthForm::Unchecked)
        return {};
    if (req.get_header_value_count("Authorization") != 1)
        return Refuse(401, "Authorization: expected exactly one");
    const std::string value = req.get_header_value("Authorization");
    if (profile.auth == AuthForm::Bearer) {
        if (!StartsWith(value, "Bearer "))
            return Refuse(401, "Authorization: expected \"Bearer \" and the token");
        // The token travels as it is; compare it the way the library hands
        // it over, so that an encoded token is still told apart when the
        // token holds a '%'.
        if (value.substr(7) != AsHeaderLibrarySeesIt(session.accessToken))
            return Refuse(401, "Authorization: the bearer token is not the session's");
        return {};
    }
    auto decoded = Base64Decode(value);
    if (!decoded)
        return Refuse(401, "Authorization: not Base64");
    std::vector<std::string> fields;
    size_t start = 0;
    for (size_t colon; (colon = decoded->find(':', start)) != std::string::npos; start = colon + 1)
        fields.push_back(decoded->substr(start, colon - start));
    fields.push_back(decoded->substr(start));
    if (fields.size() != 5)
        return Refuse(401, "Authorization: expected five fields joined by ':'");
    if (fields[0] != "6")
        return Refuse(401, "Authorization: the first field must be 6");
    if (fields[1].empty() || fields[1] != req.get_header_value("x-zp-device-id"))
        return Refuse(401, "Authorization: the UUID field does not match x-zp-device-id");
    if (fields[2] != kAppId)
        return Refuse(401, "Authorization: unknown application id");
    if (!fields[3].empty())
        return Refuse(401, "Authorization: the fourth field must be empty");
    if (fields[4] != ClientUrlEncode(session.accessToken))
        return Refuse(401, "Authorization: the token field is not the session's token, url-encoded");
    return {};
}

bool AllDigits(const std::string& text)
{
    return std::all_of(text.begin(), text.end(), [](unsigned char c) { return std::isdigit(c); });
}

// The code of a trace id "<code>_11_<seconds>_<eight digits, the first not 0>",
// where the code is five digits or "000-1"; nullopt when it has another form.
std::optional<std::string> TraceCodeOf(const std::string& value)
{
    const std::string code = value.substr(0, 5);
    if (code.size() != 5 || !(AllDigits(code) || code == "000-1") || value.compare(5, 4, "_11_") != 0)
        return std::nullopt;
    const size_t secondsEnd = value.find('_', 9);
    if (secondsEnd == std::string::npos || secondsEnd == 9 || !AllDigits(value.substr(9, secondsEnd - 9)))
        return std::nullopt;
    const std::string digits = value.substr(secondsEnd + 1);
    if (digits.size() != 8 || !AllDigits(digits) || digits[0] == '0')
        return std::nullopt;
    return code;
}

Refusal CheckTraceId(const ServiceProfile& profile, const httplib::Request& req)
{
    if (profile.traceCode.empty())
        return {};
    if (req.get_header_value_count("x-zp-trace-id") != 1)
        return Refuse(400, "x-zp-trace-id: expected exactly one");
    const std::string value = req.get_header_value("x-zp-trace-id");
    const auto code = TraceCodeOf(value);
    if (!code)
        return Refuse(400, "x-zp-trace-id: \"" + value + "\" is not code_11_seconds_digits");
    if (*code != profile.traceCode)
        return Refuse(400, "x-zp-trace-id: code " + *code + ", expected " + profile.traceCode);
    return {};
}

Refusal ExpectExact(const httplib::Request& req, const std::string& name, const std::string& expected)
{
    size_t count = req.get_header_value_count(name.c_str());
    if (count == 0)
        return Refuse(400, name + ": missing");
    if (count > 1)
        return Refuse(400, name + ": sent more than once");
    std::string value = req.get_header_value(name.c_str());
    if (value != expected)
        return Refuse(400, name + ": \"" + value + "\", expected \"" + expected + "\"");
    return {};
}

Refusal CheckCommon(const httplib::Request& req, const Session& session)
{
    static const std::vector<std::pair<std::string, std::string>> fixed = {
        {"User-Agent", "NuvoraPC/11.2.4.301"},
        {"x-zp-source-agent", "NuvoraPC"},
        {"Accept-Language", "zh-CN"},
        {"x-zp-device-type", "6"},
        {"x-zp-terminal", "PC"},
        {"x-zp-auth-version", "1"},
        {"Keep-alive", "false"},
    };
    for (const auto& [name, value] : fixed)
        if (auto r = ExpectExact(req, name, value))
            return r;
    if (auto r = ExpectExact(req, "AuthType", Base64Encode(kAppId)))
        return r;
    const std::string uuid = req.get_header_value("x-zp-device-id");
    if (req.get_header_value_count("x-zp-device-id") != 1 || uuid.empty())
        return Refuse(400, "x-zp-device-id: missing or empty");
    if (!session.deviceUuid.empty() && uuid != session.deviceUuid)
        return Refuse(400, "x-zp-device-id: not the configured device UUID");
    if (auto r = ExpectExact(req, "x-zp-deviceUUID", uuid))
        return r;
    // The device name is the machine model, which is empty on machines that
    // do not report one; the client then sends the header with an empty
    // value. The server keeps such headers (raw_header_server.h), so an
    // empty name is accepted and a left-out one is not.
    const size_t deviceNames = req.get_header_value_count("x-zp-device-name");
    if (deviceNames == 0)
        return Refuse(400, "x-zp-device-name: missing");
    if (deviceNames > 1)
        return Refuse(400, "x-zp-device-name: repeated");
    if (!session.userId.empty())
        if (auto r = ExpectExact(req, "userId", session.userId))
            return r;
    if (!session.country.empty())
        if (auto r = ExpectExact(req, "x-zp-country-code", ToLower(session.country)))
            return r;
    return {};
}

} // namespace

const std::vector<ServiceProfile>& ServiceProfiles()
{
    static const std::vector<ServiceProfile> profiles = MakeProfiles();
    return profiles;
}

const ServiceProfile* FindProfile(const std::string& name)
{
    for (const auto& profile : ServiceProfiles())
        if (profile.name == name)
            return &profile;
    return nullptr;
}

const ServiceProfile& AdminProfile()
{
    static const ServiceProfile admin{"admin", "/_admin", false, AuthForm::Unchecked, "",
                                      {},      {},        false, ErrorShape::Admin};
    return admin;
}

Refusal CheckHeaders(const ServiceProfile& profile, const httplib::Request& req, const Session& session)
{
    if (auto r = CheckAuthorization(profile, req, session))
        return r;
    if (auto r = CheckTraceId(profile, req))
        return r;
    if (profile.commonHeaders)
        if (auto r = CheckCommon(req, session))
            return r;
    for (const auto& [name, value] : profile.exact)
        if (auto r = ExpectExact(req, name, value))
            return r;
    if (profile.countryEncversion)
        if (auto r = ExpectExact(req, "encversion", session.country == "CN" ? "0" : "1"))
            return r;
    for (const auto& name : profile.absent)
        if (req.has_header(name.c_str()))
            return Refuse(400, name + ": not expected by this service");
    return {};
}

std::string ErrorBody(ErrorShape shape, int code, const std::string& reason)
{
    Json::Value v;
    switch (shape) {
    case ErrorShape::Nsp:
        v["errCode"] = code;
        v["errMsg"] = reason;
        break;
    case ErrorShape::RetCode:
        v["retCode"] = code;
        v["retMsg"] = reason;
        break;
    case ErrorShape::Result:
        v["result"] = code;
        v["info"] = reason;
        break;
    case ErrorShape::Statistic:
        v["result"]["errorNo"] = code;
        v["result"]["info"] = reason;
        break;
    case ErrorShape::Error:
        v["error"]["errorCode"] = std::to_string(code);
        v["error"]["errorMessage"] = reason;
        break;
    case ErrorShape::Text:
        return std::to_string(code) + " " + reason + "\n";
    case ErrorShape::Admin:
        v["error"] = reason;
        break;
    }
    return WriteCompactJson(v);
}

std::string ErrorContentType(ErrorShape shape)
{
    return shape == ErrorShape::Text ? "text/plain" : "application/json";
}

std::string CompositeAuthorization(const std::string& uuid, const std::string& token)
{
    return Base64Encode(std::string("6:") + uuid + ":" + kAppId + "::" + ClientUrlEncode(token));
}

} // namespace cloud
