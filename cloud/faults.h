#pragma once
// Faults are data: rules that target an endpoint, a service or a share of the
// requests, say what goes wrong, and count how often they matched and fired.
// The rule format is documented in README.md.
#include <cstdint>
#include <mutex>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include <json/json.h>

namespace cloud {

enum class FaultKind
{
    Latency,
    Status,
    Empty,
    EmptyArray,
    NotJson,
    WrongTypes,
    Truncated,
    Cut,
    Hang
};

struct FaultRule
{
    std::string id;
    // Targets; an empty one matches anything.
    std::string service;      // "nsp", "family", ...
    std::string endpoint;     // request path without the query, e.g. "/family/rest.php"
    std::string bodyContains; // raw request body substring
    // Share of the matching requests that fire.
    double probability = 1.0;
    int everyNth = 0; // 0: every one
    int limit = 0;    // 0: fire without limit
    FaultKind kind = FaultKind::Status;
    int latencyMinMs = 0;
    int latencyMaxMs = 0;
    int status = 0; // Status: the code; others: 0 keeps 200
    std::optional<std::string> body;
    int hangMs = 0;
    uint64_t matched = 0;
    uint64_t hits = 0;
};

// A rule must name a known service and endpoint (or leave them empty): a
// rule that can never fire is refused rather than silently kept.
std::optional<FaultRule> ParseFaultRule(const Json::Value& value, std::string& error);
// One rule, or an array of rules; none is taken unless every one is good.
// On a bad rule, `at` is its index (0 for a single rule) and `why` the reason.
bool ParseFaultRules(const Json::Value& value, std::vector<FaultRule>& rules, std::string& why,
                     Json::ArrayIndex& at);
Json::Value FaultRuleToJson(const FaultRule& rule);

// What the fired rules ask of one request.
struct FaultDecision
{
    int latencyMs = 0;
    std::optional<FaultRule> reply; // the first non-latency rule that fired
    std::vector<std::string> fired; // ids, in order
};

class FaultTable
{
public:
    FaultTable();
    // Returns the id given to the rule.
    std::string Add(FaultRule rule);
    void Clear();
    FaultDecision Evaluate(const std::string& service, const std::string& endpoint, const std::string& body);
    Json::Value ToJson() const;

private:
    mutable std::mutex mutex_;
    std::vector<FaultRule> rules_;
    std::mt19937_64 random_;
    uint64_t nextId_ = 1;
};

} // namespace cloud
