#include "dispatcher.h"

#include <chrono>
#include <thread>

#include "fault_replies.h"
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

std::string QueryOf(const httplib::Request& req)
{
    size_t mark = req.target.find('?');
    return mark == std::string::npos ? "" : req.target.substr(mark + 1);
}

LogEntry EntryFor(const httplib::Request& req)
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
    return entry;
}

void Send(const Reply& reply, httplib::Response& res)
{
    res.status = reply.status;
    res.set_content(reply.body, reply.contentType.c_str());
}

// Announces a body and closes without sending it: the client sees the
// connection end in the middle of the reply.
void CutConnection(httplib::Response& res)
{
    res.status = 200;
    res.set_content_provider(64, "application/json",
                             [](size_t, size_t, httplib::DataSink&) { return false; });
}

} // namespace

Dispatcher::Dispatcher(std::unique_ptr<MemoryAccountStore> store, FaultTable& faults)
    : store_(std::move(store)), faults_(faults)
{
    const Session& session = store_->Snapshot()->session;
    log_.SetSecrets({session.accessToken, ClientUrlEncode(session.accessToken),
                     AsHeaderLibrarySeesIt(session.accessToken)});
}

void Dispatcher::Serve(const httplib::Request& req, httplib::Response& res)
{
    if (StartsWith(req.path, AdminProfile().prefix + "/")) {
        Send(ServeAdmin(req), res);
        return;
    }
    LogEntry entry = EntryFor(req);
    if (const ServiceProfile* profile = ProfileForPath(req.path)) {
        ServeService(req, res, *profile, entry);
        return;
    }
    Reply reply;
    reply.status = 404;
    reply.body = "404 no service at " + req.path + "\n";
    reply.contentType = "text/plain";
    reply.refusal = "no service at this path";
    Send(reply, res);
    entry.verdict = "refused: " + reply.refusal;
    Log(std::move(entry), reply);
}

Call Dispatcher::MakeCall(const httplib::Request& req, const ServiceProfile& profile,
                          const AccountData& account)
{
    return Call{req, profile, account, *store_, faults_, log_, QueryOf(req)};
}

Reply Dispatcher::ServeAdmin(const httplib::Request& req)
{
    auto snapshot = store_->Snapshot();
    const Call call = MakeCall(req, AdminProfile(), *snapshot);
    bool pathKnown = false;
    const Route* route =
        FindRoute(AdminProfile().name, req.method, req.path.substr(AdminProfile().prefix.size()), pathKnown);
    if (!route)
        return Refused(call, 404, "no admin endpoint " + req.method + " " + req.path);
    return route->handler(call);
}

void Dispatcher::ServeService(const httplib::Request& req, httplib::Response& res,
                              const ServiceProfile& profile, LogEntry& entry)
{
    entry.service = profile.name;
    entry.endpoint = req.path;
    auto snapshot = store_->Snapshot();
    const Call call = MakeCall(req, profile, *snapshot);
    FaultDecision fault = faults_.Evaluate(profile.name, req.path, req.body);
    entry.faults = fault.fired;
    if (fault.latencyMs > 0)
        SleepUnlessStopping(fault.latencyMs);
    if (fault.reply && EndsConnection(fault.reply->kind)) {
        const bool hang = fault.reply->kind == FaultKind::Hang;
        if (hang)
            SleepUnlessStopping(fault.reply->hangMs);
        CutConnection(res);
        entry.verdict = hang ? "fault: hung, then cut" : "fault: connection cut";
        entry.status = 0;
        log_.Add(std::move(entry));
        return;
    }
    Reply reply = Answer(call, fault.reply, entry);
    Send(reply, res);
    Log(std::move(entry), reply);
}

Reply Dispatcher::Answer(const Call& call, const std::optional<FaultRule>& fault, LogEntry& entry)
{
    if (fault && ReplacesService(fault->kind)) {
        entry.verdict = "fault: " + fault->id;
        return ReplacementReply(*fault, call.profile);
    }
    const std::string sub = call.req.path.substr(call.profile.prefix.size());
    bool pathKnown = false;
    const Route* route = FindRoute(call.profile.name, call.req.method, sub, pathKnown);
    Reply reply;
    if (!route) {
        reply = Refused(call, pathKnown ? 405 : 404,
                        pathKnown ? "method " + call.req.method + " not allowed here" : "no endpoint " + sub);
    } else if (Refusal refusal = CheckHeaders(call.profile, call.req, call.account.session)) {
        reply = Refused(call, refusal.status, refusal.reason);
    } else {
        reply = route->handler(call);
    }
    if (!reply.endpoint.empty())
        entry.endpoint = call.req.path + " " + reply.endpoint;
    entry.verdict = reply.refusal.empty() ? "ok" : "refused: " + reply.refusal;
    if (fault) {
        AlterReply(*fault, reply);
        entry.verdict += "; fault: " + fault->id;
    }
    return reply;
}

void Dispatcher::Log(LogEntry entry, const Reply& reply)
{
    entry.status = reply.status;
    log_.Add(std::move(entry));
}

bool Dispatcher::SleepUnlessStopping(int milliseconds) const
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

} // namespace cloud
