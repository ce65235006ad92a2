#include "startup.h"

#include <fstream>
#include <sstream>
#include <sys/stat.h>

#include "fixture.h"
#include "wire_text.h"

namespace cloud {

namespace {

bool FileExists(const std::string& path)
{
    struct stat info;
    return ::stat(path.c_str(), &info) == 0;
}

bool AddFaultRules(const Json::Value& rules, const std::string& where, FaultTable& faults, std::string& error)
{
    if (!rules.isArray() && !rules.isObject()) {
        error = where + ": must be a rule or an array of rules";
        return false;
    }
    std::vector<FaultRule> parsed;
    std::string why;
    Json::ArrayIndex at = 0;
    if (!ParseFaultRules(rules, parsed, why, at)) {
        error = where + (rules.isArray() ? "[" + std::to_string(at) + "]" : "") + ": " + why;
        return false;
    }
    for (auto& rule : parsed)
        faults.Add(rule);
    return true;
}

} // namespace

std::unique_ptr<MemoryAccountStore> LoadAccount(const Options& options, FaultTable& faults,
                                                std::string& error)
{
    try {
        AccountData fixture = LoadAccountFile(options.fixture);
        const bool fromState = !options.state.empty() && FileExists(options.state);
        AccountData initial = fromState ? LoadAccountFile(options.state) : fixture;
        if (!AddFaultRules(fixture.faults, options.fixture + ": faults", faults, error))
            return nullptr;
        auto store =
            std::make_unique<MemoryAccountStore>(std::move(fixture), std::move(initial), options.state);
        if (!fromState && !store->Persist(error)) {
            error = "cannot write the state: " + error;
            return nullptr;
        }
        return store;
    } catch (const FixtureError& e) {
        error = e.what();
        return nullptr;
    }
}

bool LoadFaultsFile(const std::string& path, FaultTable& faults, std::string& error)
{
    std::ifstream in(path);
    std::stringstream text;
    text << in.rdbuf();
    std::string why = "cannot be read";
    auto rules = in ? ParseJson(text.str(), &why) : std::nullopt;
    if (!rules) {
        error = path + ": cannot be read as JSON: " + OneLineParseError(why);
        return false;
    }
    return AddFaultRules(*rules, path, faults, error);
}

} // namespace cloud
