#include "cloud_wire_client.h"

#include <algorithm>
#include <cctype>
#include <ctime>
#include <fstream>
#include <memory>
#include <random>
#include <sstream>
#include <stdexcept>

#include <json/json.h>

namespace spacemgm_test {

WireSession SessionOfFixture(const std::string& fixturePath)
{
    std::ifstream in(fixturePath);
    std::stringstream text;
    text << in.rdbuf();
    Json::CharReaderBuilder builder;
    std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    Json::Value root;
    std::string errors;
    const std::string s = text.str();
    if (!reader->parse(s.data(), s.data() + s.size(), &root, &errors))
        throw std::runtime_error(fixturePath + ": not JSON");
    WireSession session;
    session.accessToken = root["session"]["accessToken"].asString();
    session.userId = root["session"]["userId"].asString();
    session.country = root["session"]["country"].asString();
    session.deviceUuid = root["session"].get("deviceUuid", "00000000-0000-0000-0000-000000000001").asString();
    return session;
}

std::string ClientUrlEncode(const std::string& text)
{
    static const char hex[] = "0123456789abcdef";
    std::string out;
    for (unsigned char c : text) {
        if (std::isalnum(c) || c == '*' || c == '-' || c == '.' || c == '_') {
            out.push_back(static_cast<char>(c));
        } else {
            out.push_back('%');
            out.push_back(hex[c >> 4]);
            out.push_back(hex[c & 15]);
        }
    }
    return out;
}

std::string Base64Of(const std::string& bytes)
{
    static const char table[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string out;
    for (size_t i = 0; i < bytes.size(); i += 3) {
        unsigned n = static_cast<unsigned char>(bytes[i]) << 16;
        if (i + 1 < bytes.size())
            n |= static_cast<unsigned char>(bytes[i + 1]) << 8;
        if (i + 2 < bytes.size())
            n |= static_cast<unsigned char>(bytes[i + 2]);
        out.push_back(table[(n >> 18) & 63]);
        out.push_back(table[(n >> 12) & 63]);
        out.push_back(i + 1 < bytes.size() ? table[(n >> 6) & 63] : '=');
        out.push_back(i + 2 < bytes.size() ? table[n & 63] : '=');
    }
    return out;
}

std::string MakeTraceId(const std::string& code)
{
    thread_local std::mt19937 random(std::random_device{}());
    std::string digits(1, static_cast<char>('1' + random() % 9));
    for (int i = 0; i < 7; ++i)
        digits.push_back(static_cast<char>('0' + random() % 10));
    return code + "_11_" + std::to_string(std::time(nullptr)) + "_" + digits;
}

std::string CompositeAuthorization(const WireSession& session)
{
    return Base64Of("6:" + session.deviceUuid +
                    ":com.zephra.cloud.pc::" + ClientUrlEncode(session.accessToken));
}

static HeaderList CommonHeaders(const WireSession& s)
{
    HeaderList h = {
        {"User-Agent", "NuvoraPC/11.2.4.301"},
        {"x-zp-source-agent", "NuvoraPC"},
        {"Accept-Language", "zh-CN"},
        {"x-zp-device-id", s.deviceUuid},
        {"x-zp-deviceUUID", s.deviceUuid},
        {"x-zp-device-type", "6"},
        {"x-zp-terminal", "PC"},
        {"x-zp-device-name", s.deviceName},
        {"x-zp-auth-version", "1"},
        {"Keep-alive", "false"},
        {"AuthType", Base64Of("com.zephra.cloud.pc")},
        {"Content-Type", "application/json"},
    };
    if (!s.userId.empty())
        h.emplace_back("userId", s.userId);
    if (!s.country.empty()) {
        std::string lower = s.country;
        std::transform(lower.begin(), lower.end(), lower.begin(),
                       [](unsigned char c) { return std::tolower(c); });
        h.emplace_back("x-zp-country-code", lower);
    }
    return h;
}

HeaderList ModuleHeaders(const std::string& service, const WireSession& s)
{
    if (service == "accountQuota")
        return {{"Authorization", "Bearer " + s.accessToken}};
    HeaderList h = CommonHeaders(s);
    if (service == "nsp") {
        h.emplace_back("Authorization", CompositeAuthorization(s));
        h.emplace_back("x-zp-trace-id", MakeTraceId("05002"));
    } else if (service == "cbs") {
        h.emplace_back("Authorization", CompositeAuthorization(s));
        h.emplace_back("x-zp-trace-id", MakeTraceId("10004"));
        h.emplace_back("version", "1122300");
        h.emplace_back("x-zp-app-version", "1122300");
        h.emplace_back("x-zp-backup-version", "1");
        h.emplace_back("encversion", "0");
    } else if (service == "pimds") {
        h.emplace_back("Authorization", CompositeAuthorization(s));
        h.emplace_back("x-zp-trace-id", MakeTraceId("10004"));
        h.emplace_back("version", "11.2.4.301");
        h.emplace_back("encversion", s.country == "CN" ? "0" : "1");
    } else if (service == "familyShare" || service == "cloudSyncDrive") {
        h.emplace_back("Authorization", "Bearer " + s.accessToken);
        h.emplace_back("x-zp-trace-id", MakeTraceId("10004"));
        h.emplace_back("version", "1122300");
        h.emplace_back("x-zp-app-version", "1122300");
    } else if (service == "cloudPhoto") {
        h.emplace_back("Authorization", "Bearer " + s.accessToken);
        h.emplace_back("x-zp-trace-id", MakeTraceId("02116"));
        h.emplace_back("version", "11.2.4.301");
        h.emplace_back("x-zp-os", "Debian GNU/Linux 12");
        h.emplace_back("x-zp-os-brand", "Windows");
    } else {
        throw std::invalid_argument("no header set for service " + service);
    }
    return h;
}

void SetHeader(HeaderList& headers, const std::string& name, const std::string& value)
{
    RemoveHeader(headers, name);
    headers.emplace_back(name, value);
}

void RemoveHeader(HeaderList& headers, const std::string& name)
{
    headers.erase(
        std::remove_if(headers.begin(), headers.end(), [&](const auto& h) { return h.first == name; }),
        headers.end());
}

std::string QuotaForm(const std::string& token, const std::string& q, const std::string& serviceType)
{
    return "nsp_svc=" + ClientUrlEncode("nsp.user.getQuotaUsedInfo") +
           "&accessToken=" + ClientUrlEncode(token) + "&q=" + ClientUrlEncode(q) +
           "&serviceType=" + ClientUrlEncode(serviceType);
}

std::string ListText(const std::vector<std::string>& items)
{
    std::string text = "[";
    for (const auto& item : items) {
        if (text != "[")
            text += ",";
        text += "\"" + item + "\"";
    }
    return text + "]";
}

std::string NspForm(const std::string& op, const std::string& token,
                    const std::vector<std::pair<std::string, std::string>>& rest)
{
    std::string form = "nsp_svc=" + ClientUrlEncode(op) + "&access_token=" + ClientUrlEncode(token);
    for (const auto& [key, value] : rest)
        form += "&" + key + "=" + ClientUrlEncode(value);
    return form;
}

} // namespace spacemgm_test
