#include "cloud_test_client.h"

#include <fstream>
#include <sstream>

namespace spacemgm_test {

Json::Value ParseJsonText(const std::string& text)
{
    Json::CharReaderBuilder builder;
    std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    Json::Value value;
    std::string errors;
    if (!reader->parse(text.data(), text.data() + text.size(), &value, &errors))
        return Json::Value();
    return value;
}

std::string CompactJson(const Json::Value& value)
{
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "";
    return Json::writeString(builder, value);
}

Json::Value ReadFixture(const std::string& name)
{
    std::ifstream in(CloudEmulator::FixturePath(name));
    std::stringstream text;
    text << in.rdbuf();
    return ParseJsonText(text.str());
}

CloudTestClient::CloudTestClient(const CloudEmulator& cloud, const std::string& fixture)
    : cloud_(cloud), session_(SessionOfFixture(CloudEmulator::FixturePath(fixture)))
{
}

CloudReply CloudTestClient::Send(const std::string& service, const std::string& method,
                                 const std::string& pathAndQuery, const std::string& body,
                                 const std::function<void(HeaderList&)>& tweak, long timeoutMs) const
{
    HeaderList headers = ModuleHeaders(service, session_);
    if (tweak)
        tweak(headers);
    HttpResult r = HttpExchange(method, cloud_.BaseUrl(service) + pathAndQuery, headers, body,
                                cloud_.CaFile(), timeoutMs);
    CloudReply reply;
    reply.status = r.status;
    reply.body = r.body;
    reply.curlCode = r.curlCode;
    reply.json = ParseJsonText(r.body);
    return reply;
}

CloudReply CloudTestClient::QuotaQuery(const std::string& q, const std::string& serviceType) const
{
    return Send("familyShare", "POST", "/rest.php", QuotaForm(session_.accessToken, q, serviceType));
}

CloudReply CloudTestClient::Nsp(const std::string& op,
                                const std::vector<std::pair<std::string, std::string>>& rest) const
{
    return Send("nsp", "POST", "", NspForm(op, session_.accessToken, rest));
}

CloudReply CloudTestClient::Backup(const Json::Value& body) const
{
    return Send("cbs", "POST", "/CloudBackup/ClientServlet", CompactJson(body));
}

} // namespace spacemgm_test
