// Feeds arbitrary text to spacemgm-cloud's account reader, as a fixture or a
// state file brings it, and to its fault rule reader, as a faults file
// brings it. Neither may crash or throw anything but a refusal, and an
// account that was read must write itself out and read back the same: the
// state file has to load again after every change.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "cloud/faults.h"
#include "cloud/fixture.h"
#include "cloud/wire_text.h"

namespace {

void ReadRules(const Json::Value& value)
{
    std::vector<cloud::FaultRule> rules;
    std::string why;
    Json::ArrayIndex at = 0;
    if (cloud::ParseFaultRules(value, rules, why, at))
        for (const auto& rule : rules)
            (void)cloud::FaultRuleToJson(rule);
}

void ReadAccount(const std::string& text)
{
    cloud::AccountData account;
    try {
        account = cloud::AccountFromText(text, "fuzz.json");
    } catch (const cloud::FixtureError&) {
        return; // a refusal names the file, the place and the reason; that is the point
    }
    // What the emulator writes as its state must load again: a throw here is a finding.
    const Json::Value written = cloud::AccountToJson(account);
    const cloud::AccountData again = cloud::AccountFromText(cloud::WriteStyledJson(written), "state.json");
    if (cloud::AccountToJson(again) != written)
        std::abort();
    ReadRules(account.faults);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    ReadAccount(text);
    if (auto value = cloud::ParseJson(text))
        ReadRules(*value);
    return 0;
}
