#include "faults.h"

#include <map>

#include "routes.h"

namespace cloud {

namespace {

const std::map<std::string, FaultKind>& KindNames()
{
    static const std::map<std::string, FaultKind> names = {
        {"latency", FaultKind::Latency},     {"status", FaultKind::Status},
        {"empty", FaultKind::Empty},         {"emptyArray", FaultKind::EmptyArray},
        {"notJson", FaultKind::NotJson},     {"wrongTypes", FaultKind::WrongTypes},
        {"truncated", FaultKind::Truncated}, {"cut", FaultKind::Cut},
        {"hang", FaultKind::Hang},
    };
    return names;
}

std::string KindName(FaultKind kind)
{
    for (const auto& [name, value] : KindNames())
        if (value == kind)
            return name;
    return "";
}

constexpr int kHangLimitMs = 120000;

bool ReadInt(const Json::Value& v, const char* key, int low, int high, int& out, std::string& error)
{
    if (!v.isMember(key))
        return true;
    if (!v[key].isInt() || v[key].asInt() < low || v[key].asInt() > high) {
        error = std::string("\"") + key + "\" must be an integer from " + std::to_string(low) + " to " +
                std::to_string(high);
        return false;
    }
    out = v[key].asInt();
    return true;
}

bool OnlyKnownKeys(const Json::Value& v, std::string& error)
{
    static const char* known[] = {"id",    "service", "endpoint",  "bodyContains", "probability", "everyNth",
                                  "limit", "kind",    "latencyMs", "status",       "body",        "hangMs"};
    for (const auto& name : v.getMemberNames()) {
        bool ok = false;
        for (const char* k : known)
            ok = ok || name == k;
        if (!ok) {
            error = "unknown key \"" + name + "\"";
            return false;
        }
    }
    return true;
}

bool ReadTargets(const Json::Value& v, FaultRule& rule, std::string& error)
{
    for (auto [key, field] : {std::pair<const char*, std::string*>{"id", &rule.id},
                              {"service", &rule.service},
                              {"endpoint", &rule.endpoint},
                              {"bodyContains", &rule.bodyContains}}) {
        if (v.isMember(key)) {
            if (!v[key].isString()) {
                error = std::string("\"") + key + "\" must be a string";
                return false;
            }
            *field = v[key].asString();
        }
    }
    error = FaultTargetProblem(rule.service, rule.endpoint);
    return error.empty();
}

bool ReadKind(const Json::Value& v, FaultRule& rule, std::string& error)
{
    if (!v.isMember("kind") || !v["kind"].isString() || !KindNames().count(v["kind"].asString())) {
        error = "\"kind\" must be one of latency, status, empty, emptyArray, notJson, wrongTypes, truncated, "
                "cut, hang";
        return false;
    }
    rule.kind = KindNames().at(v["kind"].asString());
    return true;
}

bool ReadShare(const Json::Value& v, FaultRule& rule, std::string& error)
{
    if (v.isMember("probability")) {
        const Json::Value& p = v["probability"];
        if (!p.isNumeric() || p.asDouble() < 0 || p.asDouble() > 1) {
            error = "\"probability\" must be a number from 0 to 1";
            return false;
        }
        rule.probability = p.asDouble();
    }
    return ReadInt(v, "everyNth", 0, 1000000, rule.everyNth, error) &&
           ReadInt(v, "limit", 0, 1000000000, rule.limit, error);
}

bool ReadLatency(const Json::Value& v, FaultRule& rule, std::string& error)
{
    if (!v.isMember("latencyMs"))
        return true;
    const Json::Value& l = v["latencyMs"];
    if (l.isInt() && l.asInt() >= 0 && l.asInt() <= 60000) {
        rule.latencyMinMs = rule.latencyMaxMs = l.asInt();
    } else if (l.isArray() && l.size() == 2 && l[0].isInt() && l[1].isInt() && l[0].asInt() >= 0 &&
               l[0].asInt() <= l[1].asInt() && l[1].asInt() <= 60000) {
        rule.latencyMinMs = l[0].asInt();
        rule.latencyMaxMs = l[1].asInt();
    } else {
        error = "\"latencyMs\" must be milliseconds (up to 60000) or a range [min, max]";
        return false;
    }
    return true;
}

bool ReadBody(const Json::Value& v, FaultRule& rule, std::string& error)
{
    if (v.isMember("body")) {
        if (!v["body"].isString()) {
            error = "\"body\" must be a string";
            return false;
        }
        rule.body = v["body"].asString();
    }
    return true;
}

// What each kind needs besides its targets.
bool Complete(const Json::Value& v, FaultRule& rule, std::string& error)
{
    if (rule.kind == FaultKind::Status && rule.status == 0) {
        error = "a status rule needs \"status\"";
        return false;
    }
    if (rule.kind == FaultKind::Latency && !v.isMember("latencyMs")) {
        error = "a latency rule needs \"latencyMs\"";
        return false;
    }
    if (rule.kind == FaultKind::Hang && rule.hangMs == 0)
        rule.hangMs = kHangLimitMs;
    return true;
}

} // namespace

std::optional<FaultRule> ParseFaultRule(const Json::Value& v, std::string& error)
{
    if (!v.isObject()) {
        error = "a rule must be an object";
        return std::nullopt;
    }
    FaultRule rule;
    if (!OnlyKnownKeys(v, error) || !ReadTargets(v, rule, error) || !ReadKind(v, rule, error) ||
        !ReadShare(v, rule, error) || !ReadInt(v, "status", 100, 599, rule.status, error) ||
        !ReadInt(v, "hangMs", 0, kHangLimitMs, rule.hangMs, error) || !ReadLatency(v, rule, error) ||
        !ReadBody(v, rule, error) || !Complete(v, rule, error))
        return std::nullopt;
    return rule;
}

bool ParseFaultRules(const Json::Value& value, std::vector<FaultRule>& rules, std::string& why,
                     Json::ArrayIndex& at)
{
    Json::Value list = value.isArray() ? value : Json::Value(Json::arrayValue);
    if (!value.isArray())
        list.append(value);
    for (at = 0; at < list.size(); ++at) {
        auto rule = ParseFaultRule(list[at], why);
        if (!rule)
            return false;
        rules.push_back(*rule);
    }
    return true;
}

Json::Value FaultRuleToJson(const FaultRule& rule)
{
    Json::Value v;
    v["id"] = rule.id;
    if (!rule.service.empty())
        v["service"] = rule.service;
    if (!rule.endpoint.empty())
        v["endpoint"] = rule.endpoint;
    if (!rule.bodyContains.empty())
        v["bodyContains"] = rule.bodyContains;
    v["probability"] = rule.probability;
    v["everyNth"] = rule.everyNth;
    v["limit"] = rule.limit;
    v["kind"] = KindName(rule.kind);
    if (rule.kind == FaultKind::Latency) {
        v["latencyMs"] = Json::Value(Json::arrayValue);
        v["latencyMs"].append(rule.latencyMinMs);
        v["latencyMs"].append(rule.latencyMaxMs);
    }
    if (rule.status)
        v["status"] = rule.status;
    if (rule.body)
        v["body"] = *rule.body;
    if (rule.kind == FaultKind::Hang)
        v["hangMs"] = rule.hangMs;
    v["matched"] = Json::UInt64(rule.matched);
    v["hits"] = Json::UInt64(rule.hits);
    return v;
}

FaultTable::FaultTable() : random_(std::random_device{}()) {}

std::string FaultTable::Add(FaultRule rule)
{
    std::lock_guard<std::mutex> lock(mutex_);
    if (rule.id.empty())
        rule.id = "rule-" + std::to_string(nextId_);
    ++nextId_;
    rule.matched = rule.hits = 0;
    rules_.push_back(rule);
    return rule.id;
}

void FaultTable::Clear()
{
    std::lock_guard<std::mutex> lock(mutex_);
    rules_.clear();
}

FaultDecision FaultTable::Evaluate(const std::string& service, const std::string& endpoint,
                                   const std::string& body)
{
    FaultDecision decision;
    std::lock_guard<std::mutex> lock(mutex_);
    for (auto& rule : rules_) {
        if (!rule.service.empty() && rule.service != service)
            continue;
        if (!rule.endpoint.empty() && rule.endpoint != endpoint)
            continue;
        if (!rule.bodyContains.empty() && body.find(rule.bodyContains) == std::string::npos)
            continue;
        if (decision.reply && rule.kind != FaultKind::Latency)
            continue;
        ++rule.matched;
        if (rule.limit > 0 && rule.hits >= static_cast<uint64_t>(rule.limit))
            continue;
        if (rule.everyNth > 0 && rule.matched % static_cast<uint64_t>(rule.everyNth) != 0)
            continue;
        if (rule.probability < 1.0 &&
            std::uniform_real_distribution<double>(0.0, 1.0)(random_) >= rule.probability)
            continue;
        ++rule.hits;
        decision.fired.push_back(rule.id);
        if (rule.kind == FaultKind::Latency) {
            decision.latencyMs +=
                std::uniform_int_distribution<int>(rule.latencyMinMs, rule.latencyMaxMs)(random_);
        } else {
            decision.reply = rule;
        }
    }
    return decision;
}

Json::Value FaultTable::ToJson() const
{
    std::lock_guard<std::mutex> lock(mutex_);
    Json::Value rules(Json::arrayValue);
    for (const auto& rule : rules_)
        rules.append(FaultRuleToJson(rule));
    return rules;
}

} // namespace cloud
