#include "foundation/enum_types.h"

#include <ctime>

#include "foundation/device_identity.h"
#include "foundation/request_catalogue.h"

// Constant-initialised, so it is -1 before any table row is constructed,
// whatever order the translation units are initialised in.
std::atomic<int32_t> lastEnumId{-1};

namespace {

AdvancedIntEnumType::AttributeMap
CollectAttributes(std::initializer_list<AdvancedIntEnumType::AttributeEntry> list)
{
    return AdvancedIntEnumType::AttributeMap(list.begin(), list.end());
}

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

AdvancedIntEnumType::AdvancedIntEnumType() : id(++lastEnumId) {}

// The map is built before the id is taken: an AnyBaseCmdType in the list
// has already consumed its id by the time the list reaches us, and the
// temporary map keeps the order of those two steps explicit.
AdvancedIntEnumType::AdvancedIntEnumType(std::initializer_list<AttributeEntry> attributeList)
{
    AttributeMap collected = CollectAttributes(attributeList);
    id = ++lastEnumId;
    attributes = collected;
}

AdvancedIntEnumType::AdvancedIntEnumType(int32_t explicitId) : id(explicitId)
{
    lastEnumId = explicitId;
}

AdvancedIntEnumType::AdvancedIntEnumType(int32_t explicitId,
                                         std::initializer_list<AttributeEntry> attributeList)
    : id(explicitId), attributes(CollectAttributes(attributeList))
{
    lastEnumId = explicitId;
}

AdvancedIntEnumType::~AdvancedIntEnumType()
{
    attributes.clear();
}

bool AdvancedIntEnumType::operator==(const AdvancedIntEnumType& other) const
{
    return this == &other || id == other.id;
}

AnyBaseCmdType::AnyBaseCmdType(const AnyBaseCmd& source)
{
    cmd = source;
}

std::string GetInterfacePathOf(const AdvancedIntEnumType& requestType)
{
    const auto path = FindAttribute<InterfaceDescriptionType>(requestType, kInterfaceDescriptionTypeKey);
    return path ? path->path : std::string();
}

std::string GetDescriptionOf(const AdvancedIntEnumType& value)
{
    const auto description = FindAttribute<Description>(value, kDescriptionAttributeKey);
    return description ? description->text : std::string();
}

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
