#include "emulator.h"

#include <chrono>
#include <sys/socket.h>
#include <thread>

#include "fixture.h"
#include "raw_header_server.h"
#include "tls_certificate.h"
#include "wire_text.h"

namespace cloud {

namespace {

const ServiceProfile* ProfileForPath(const std::string& path)
{
    const ServiceProfile* best = nullptr;
    for (const auto& profile : ServiceProfiles()) {
        const std::string& prefix = profile.prefix;
        bool under = path == prefix || (StartsWith(path, prefix) && path[prefix.size()] == '/');
        if (under && (!best || prefix.size() > best->prefix.size()))
            best = &profile;
    }
    return best;
}

// Every scalar changes type: numbers and booleans become text, text becomes
// an object. A reader expecting the documented types finds none of them.
Json::Value WithWrongTypes(const Json::Value& v)
{
    if (v.isObject()) {
        Json::Value out(Json::objectValue);
        for (const auto& name : v.getMemberNames())
            out[name] = WithWrongTypes(v[name]);
        return out;
    }
    if (v.isArray()) {
        Json::Value out(Json::arrayValue);
        for (const auto& item : v)
            out.append(WithWrongTypes(item));
        return out;
    }
    if (v.isString()) {
        Json::Value out(Json::objectValue);
        out["text"] = v;
        return out;
    }
    if (v.isNull())
        return Json::Value(0);
    return Json::Value(v.asString());
}

std::string QueryOf(const httplib::Request& req)
{
    size_t mark = req.target.find('?');
    return mark == std::string::npos ? "" : req.target.substr(mark + 1);
}

} // namespace

Emulator::Emulator(Options options, std::unique_ptr<MemoryAccountStore> store, FaultTable& faults)
    : options_(std::move(options)), store_(std::move(store)), faults_(faults)
{
    const Session& session = store_->Snapshot()->session;
    log_.SetSecrets({session.accessToken, ClientUrlEncode(session.accessToken),
                     AsHeaderLibrarySeesIt(session.accessToken)});
}

Emulator::~Emulator() = default;

bool Emulator::Bind(std::string& error)
{
    if (options_.tls) {
        TlsMaterial tls;
        if (!MakeTlsMaterial(tls, error))
            return false;
        caFile_ = options_.caFile;
        if (caFile_.empty()) {
            std::string folder = "/tmp";
            if (!options_.writeConfig.empty() && options_.writeConfig.find('/') != std::string::npos)
                folder = options_.writeConfig.substr(0, options_.writeConfig.rfind('/'));
            caFile_ = folder + "/spacemgm-cloud-ca.pem";
        }
        if (!WriteCertificatePem(tls.caCert.get(), caFile_, error))
            return false;
        // SSLServer copies the certificate and key into its own context.
        server_ = MakeRawHeaderTlsServer(tls.serverCert.get(), tls.serverKey.get());
    } else {
        server_ = MakeRawHeaderServer();
    }
    if (!server_->is_valid()) {
        error = "the server could not be set up";
        return false;
    }
    const int threads = options_.threads;
    // httplib owns the queue it asks for and deletes it itself.
    server_->new_task_queue = [threads] { return new httplib::ThreadPool(static_cast<size_t>(threads)); };
    // Headers and body go out in two writes; without this, Nagle and delayed
    // acknowledgements hold every reply for tens of milliseconds.
    server_->set_tcp_nodelay(true);
    server_->set_keep_alive_max_count(100000);
    server_->set_keep_alive_timeout(30);
    server_->set_read_timeout(30, 0);
    server_->set_payload_max_length(16 * 1024 * 1024);
    auto handler = [this](const httplib::Request& req, httplib::Response& res) {
        if (StartsWith(req.path, "/_admin/"))
            Admin(req, res);
        else
            Dispatch(req, res);
    };
    server_->Get(".*", handler);
    server_->Post(".*", handler);
    server_->Put(".*", handler);
    server_->Delete(".*", handler);
    server_->Patch(".*", handler);
    server_->Options(".*", handler);
    if (options_.port == 0) {
        port_ = server_->bind_to_any_port("127.0.0.1");
        if (port_ < 0) {
            error = "cannot bind 127.0.0.1";
            return false;
        }
    } else {
        if (!server_->bind_to_port("127.0.0.1", options_.port)) {
            error = "cannot bind 127.0.0.1:" + std::to_string(options_.port);
            return false;
        }
        port_ = options_.port;
    }
    if (!WidenListenBacklog(*server_, SOMAXCONN)) {
        error = "cannot listen on 127.0.0.1:" + std::to_string(port_);
        return false;
    }
    return true;
}

std::string Emulator::BaseUrl() const
{
    return std::string(options_.tls ? "https" : "http") + "://127.0.0.1:" + std::to_string(port_);
}

std::string Emulator::ServiceUrl(const std::string& service) const
{
    const ServiceProfile* profile = FindProfile(service);
    if (!profile)
        return "";
    if (service == "accountQuota")
        return BaseUrl() + profile->prefix + "/quota";
    if (service == "omConfig")
        return BaseUrl() + profile->prefix + "/SpaceOMConfig.json";
    return BaseUrl() + profile->prefix;
}

bool Emulator::Run()
{
    if (options_.startDelayMs > 0)
        std::this_thread::sleep_for(std::chrono::milliseconds(options_.startDelayMs));
    const bool served = server_->listen_after_bind();
    runReturned_ = true;
    return served;
}

void Emulator::Stop()
{
    stopping_ = true;
    if (!server_)
        return;
    // httplib's stop() does nothing until listen has started, so a signal
    // that arrives just after "ready" would otherwise be lost and the server
    // would run on. Wait for the accept loop, unless it has already ended.
    while (!server_->is_running() && !runReturned_)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    server_->stop();
}

bool Emulator::SleepUnlessStopping(int milliseconds) const
{
    // Sleeps in slices so that a stop is noticed, but never past the end: a
    // whole last slice would add up to 20 ms to every delayed request.
    const auto until = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
    const auto slice = std::chrono::milliseconds(20);
    for (auto now = std::chrono::steady_clock::now(); now < until; now = std::chrono::steady_clock::now()) {
        if (stopping_)
            return false;
        std::this_thread::sleep_for(std::min<std::chrono::steady_clock::duration>(slice, until - now));
    }
    return true;
}

void Emulator::Send(const Reply& reply, httplib::Response& res)
{
    res.status = reply.status;
    res.set_content(reply.body, reply.contentType.c_str());
}

void Emulator::Dispatch(const httplib::Request& req, httplib::Response& res)
{
    LogEntry entry;
    entry.method = req.method;
    entry.path = req.path;
    entry.query = QueryOf(req);
    entry.body = req.body;
    for (const auto& [name, value] : req.headers) {
        // httplib files the socket addresses among the headers; they were not sent.
        if (name == "LOCAL_ADDR" || name == "LOCAL_PORT" || name == "REMOTE_ADDR" || name == "REMOTE_PORT")
            continue;
        entry.headers.emplace_back(name, value);
    }

    Reply reply;
    const ServiceProfile* profile = ProfileForPath(req.path);
    if (!profile) {
        reply.status = 404;
        reply.body = "404 no service at " + req.path + "\n";
        reply.contentType = "text/plain";
        reply.refusal = "no service at this path";
        Send(reply, res);
        entry.verdict = "refused: " + reply.refusal;
        entry.status = reply.status;
        log_.Add(std::move(entry));
        return;
    }
    entry.service = profile->name;
    const std::string sub = req.path.substr(profile->prefix.size());
    const Route* route = nullptr;
    bool pathKnown = false;
    for (const auto& r : Routes()) {
        if (r.service == profile->name && r.path == sub) {
            pathKnown = true;
            if (r.method == req.method)
                route = &r;
        }
    }
    entry.endpoint = req.path;

    auto snapshot = store_->Snapshot();
    Call call{req, *profile, *snapshot, *store_, entry.query};
    FaultDecision fault = faults_.Evaluate(profile->name, req.path, req.body);
    entry.faults = fault.fired;
    if (fault.latencyMs > 0)
        SleepUnlessStopping(fault.latencyMs);

    std::optional<FaultKind> kind;
    if (fault.reply)
        kind = fault.reply->kind;
    if (kind == FaultKind::Cut || kind == FaultKind::Hang) {
        if (kind == FaultKind::Hang)
            SleepUnlessStopping(fault.reply->hangMs);
        // Announce a body and close without sending it: the client sees the
        // connection end in the middle of the reply.
        res.status = 200;
        res.set_content_provider(64, "application/json",
                                 [](size_t, size_t, httplib::DataSink&) { return false; });
        entry.verdict = kind == FaultKind::Cut ? "fault: connection cut" : "fault: hung, then cut";
        entry.status = 0;
        log_.Add(std::move(entry));
        return;
    }
    const bool replaces = kind && *kind != FaultKind::WrongTypes && *kind != FaultKind::Truncated;
    if (replaces) {
        const FaultRule& rule = *fault.reply;
        reply.status = rule.status ? rule.status : 200;
        switch (rule.kind) {
        case FaultKind::Status:
            reply.body = rule.body ? *rule.body : ErrorBody(profile->errors, rule.status, "injected fault");
            reply.contentType = rule.body ? "application/json" : ErrorContentType(profile->errors);
            break;
        case FaultKind::Empty:
            reply.body = "";
            break;
        case FaultKind::EmptyArray:
            reply.body = "[]";
            break;
        default:
            reply.body = rule.body ? *rule.body : "<html><body>Service Unavailable</body></html>";
            reply.contentType = "text/html";
            break;
        }
        entry.verdict = "fault: " + rule.id;
    } else {
        if (!route) {
            reply = Refused(call, pathKnown ? 405 : 404,
                            pathKnown ? "method " + req.method + " not allowed here" : "no endpoint " + sub);
        } else if (Refusal refusal = CheckHeaders(*profile, req, snapshot->session)) {
            reply = Refused(call, refusal.status, refusal.reason);
        } else {
            reply = route->handler(call);
        }
        if (!reply.endpoint.empty())
            entry.endpoint = req.path + " " + reply.endpoint;
        entry.verdict = reply.refusal.empty() ? "ok" : "refused: " + reply.refusal;
        if (kind == FaultKind::WrongTypes) {
            if (auto parsed = ParseJson(reply.body))
                reply.body = WriteCompactJson(WithWrongTypes(*parsed));
            entry.verdict += "; fault: " + fault.reply->id;
        } else if (kind == FaultKind::Truncated) {
            reply.body = reply.body.substr(0, reply.body.size() / 2);
            entry.verdict += "; fault: " + fault.reply->id;
        }
        if (kind && fault.reply->status)
            reply.status = fault.reply->status;
    }
    Send(reply, res);
    entry.status = reply.status;
    log_.Add(std::move(entry));
}

void Emulator::Admin(const httplib::Request& req, httplib::Response& res)
{
    auto json = [&res](int status, const Json::Value& v) {
        res.status = status;
        res.set_content(WriteCompactJson(v), "application/json");
    };
    auto fail = [&json](int status, const std::string& why) {
        Json::Value v;
        v["error"] = why;
        json(status, v);
    };
    const std::string what = req.path.substr(std::string("/_admin/").size());
    if (what == "ready" && req.method == "GET") {
        Json::Value v;
        v["ok"] = true;
        json(200, v);
    } else if (what == "log" && req.method == "GET") {
        uint64_t since = 0;
        if (req.has_param("since"))
            since = std::strtoull(req.get_param_value("since").c_str(), nullptr, 10);
        Json::Value v;
        v["requests"] = log_.ToJson(since);
        json(200, v);
    } else if (what == "log" && req.method == "DELETE") {
        log_.Clear();
        json(200, Json::Value(Json::objectValue));
    } else if (what == "faults" && req.method == "GET") {
        Json::Value v;
        v["rules"] = faults_.ToJson();
        json(200, v);
    } else if (what == "faults" && req.method == "POST") {
        auto body = ParseJson(req.body);
        if (!body)
            return fail(400, "body is not JSON");
        Json::Value rules = body->isArray() ? *body : Json::Value(Json::arrayValue);
        if (!body->isArray())
            rules.append(*body);
        std::vector<FaultRule> parsed;
        for (Json::ArrayIndex i = 0; i < rules.size(); ++i) {
            std::string error;
            auto rule = ParseFaultRule(rules[i], error);
            if (!rule)
                return fail(400, "rule " + std::to_string(i) + ": " + error);
            parsed.push_back(*rule);
        }
        Json::Value v;
        v["ids"] = Json::Value(Json::arrayValue);
        for (auto& rule : parsed)
            v["ids"].append(faults_.Add(rule));
        json(200, v);
    } else if (what == "faults" && req.method == "DELETE") {
        faults_.Clear();
        json(200, Json::Value(Json::objectValue));
    } else if (what == "hits" && req.method == "GET") {
        Json::Value v;
        v["rules"] = Json::Value(Json::arrayValue);
        for (const auto& rule : faults_.ToJson()) {
            Json::Value r;
            r["id"] = rule["id"];
            r["matched"] = rule["matched"];
            r["hits"] = rule["hits"];
            v["rules"].append(r);
        }
        v["endpoints"] = Json::Value(Json::objectValue);
        for (const auto& [endpoint, count] : log_.EndpointCounts())
            v["endpoints"][endpoint] = Json::UInt64(count);
        json(200, v);
    } else if (what == "reset" && req.method == "POST") {
        store_->Reset();
        json(200, Json::Value(Json::objectValue));
    } else if (what == "account" && req.method == "GET") {
        auto snapshot = store_->Snapshot();
        Json::Value v = AccountToJson(*snapshot);
        QuotaGroups groups = snapshot->Groups();
        v["groups"]["backup"] = Json::Int64(groups.backup);
        v["groups"]["drive"] = Json::Int64(groups.drive);
        v["groups"]["photos"] = Json::Int64(groups.photos);
        v["groups"]["other"] = Json::Int64(groups.other);
        v["groups"]["family"] = Json::Int64(groups.family);
        v["groups"]["used"] = Json::Int64(groups.Used());
        json(200, v);
    } else {
        fail(404, "no admin endpoint " + req.method + " " + req.path);
    }
}

} // namespace cloud
