#include "foundation/enum_types.h"

// Constant-initialised, so it is -1 before any table row is constructed,
// whatever order the translation units are initialised in.
std::atomic<int32_t> lastEnumId{-1};

namespace {

AdvancedIntEnumType::AttributeMap
CollectAttributes(std::initializer_list<AdvancedIntEnumType::AttributeEntry> list)
{
    return AdvancedIntEnumType::AttributeMap(list.begin(), list.end());
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
