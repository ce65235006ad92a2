#include <ctime>

#include "foundation/device_identity.h"
#include "foundation/enum_types.h"
#include "foundation/request_catalogue.h"

// The trace identifier knows the catalogue: a log row's code is its command,
// an event's code is its event command, and a request without a log row uses
// the catalogue's row -1.

namespace {

constexpr size_t kTraceCodeWidth = 5;
constexpr char kTraceIdVersion[] = "11";

// The code a trace identifier carries: the command of a log row or event
// where there is one, the value's own id otherwise.
int32_t TraceCodeOf(const AdvancedIntEnumType& value)
{
    if (dynamic_cast<const UpLogType*>(&value) != nullptr) {
        if (const auto command = FindAttribute<AnyBaseCmdType>(value, kAnyBaseCmdTypeAttributeKey)) {
            return command->cmd.id;
        }
        return value.id;
    }
    const auto event = FindAttribute<OperateEventAttribute>(value, kOperateEventAttributeKey);
    if (event && event->cmd != nullptr) {
        return event->cmd->id;
    }
    return value.id;
}

} // namespace

std::string MakeTraceId(const AdvancedIntEnumType& value)
{
    const int64_t seconds = static_cast<int64_t>(std::time(nullptr));
    // Drawn even when the code turns out to be 0: the helper reseeds the
    // standard generator, and that happens on every call.
    RandomHelper random;
    const std::string digits = random.NextDigits();

    const int32_t code = TraceCodeOf(value);
    if (code == 0) {
        return std::string();
    }
    std::string text = std::to_string(code);
    if (text.size() < kTraceCodeWidth) {
        // Zeros go in front of the sign too: -1 becomes 000-1.
        text.insert(0, kTraceCodeWidth - text.size(), '0');
    }
    return text + "_" + kTraceIdVersion + "_" + std::to_string(seconds) + "_" + digits;
}

std::string GetRequestTraceId(const AdvancedIntEnumType& requestType)
{
    const auto logRow = FindAttribute<BaseUplogType>(requestType, kBaseUplogTypeKey);
    if (logRow && logRow->upLog != nullptr) {
        return MakeTraceId(*logRow->upLog);
    }
    return MakeTraceId(kUpLogTypeMinus1);
}
