// Enumerations that carry attributes. A value is an integer id plus a map of
// named attributes, so one static object says which URL path a request goes
// to, under which log code it is traced and how a person would describe it.
// The rows themselves are in request_catalogue.h and operation_events.h;
// include advanced_enum.h to get everything.
#pragma once

#include <atomic>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

// Keys of the attribute map. The interface key ends in a semicolon on
// purpose: writer and readers share this constant, and a lookup of the bare
// name must find nothing.
constexpr char kDescriptionAttributeKey[] = "DescriptionAttribute";
constexpr char kInterfaceDescriptionTypeKey[] = "InterfaceDescriptionType;";
constexpr char kAnyBaseCmdTypeAttributeKey[] = "AnyBaseCmdTypeAttribute";
constexpr char kBaseUplogTypeKey[] = "BaseUplogType";
constexpr char kOperateEventAttributeKey[] = "OperateEventAttribute";

// The id most recently handed out, process-wide. Request objects default-make
// a value (and so bump this) on worker threads, hence the atomic; after the
// tables are built its value means nothing and nobody reads it for meaning.
extern std::atomic<int32_t> lastEnumId;

class AnyAttribute
{
public:
    virtual ~AnyAttribute() = default;
};

class AdvancedIntEnumType
{
public:
    using AttributeEntry = std::pair<std::string, std::shared_ptr<AnyAttribute>>;
    using AttributeMap = std::map<std::string, std::shared_ptr<AnyAttribute>>;

    // Takes the next automatic id, like an enumerator without an initialiser.
    AdvancedIntEnumType();
    // Builds the attributes first (an attribute may itself consume an id),
    // then takes the next automatic id. A repeated key keeps its first entry.
    AdvancedIntEnumType(std::initializer_list<AttributeEntry> attributeList);
    // Like an enumerator with an initialiser: the counter jumps to `explicitId`,
    // so the next automatic id is explicitId + 1. Repeats are not checked.
    explicit AdvancedIntEnumType(int32_t explicitId);
    AdvancedIntEnumType(int32_t explicitId, std::initializer_list<AttributeEntry> attributeList);

    // Copies share the attributes and leave the counter alone.
    AdvancedIntEnumType(const AdvancedIntEnumType&) = default;
    AdvancedIntEnumType& operator=(const AdvancedIntEnumType&) = default;

    virtual ~AdvancedIntEnumType();

    // Same object or same id; the class is not compared, so callers cast to
    // the enumeration they expect before comparing.
    bool operator==(const AdvancedIntEnumType& other) const;
    bool operator!=(const AdvancedIntEnumType& other) const { return !(*this == other); }

    int32_t id;
    AttributeMap attributes;
};

// The enumerations. They add nothing but a type, so that a value's table can
// be told at run time and a function can ask for, say, a PimdsType.
class OperateBasicEventType : public AdvancedIntEnumType
{
public:
    using AdvancedIntEnumType::AdvancedIntEnumType;
};

class OperateFileTranslateEventType : public AdvancedIntEnumType
{
public:
    using AdvancedIntEnumType::AdvancedIntEnumType;
};

class OperateSwitchPageEventType : public AdvancedIntEnumType
{
public:
    using AdvancedIntEnumType::AdvancedIntEnumType;
};

class OperateSwitchModuleEventType : public AdvancedIntEnumType
{
public:
    using AdvancedIntEnumType::AdvancedIntEnumType;
};

class OperateSpecialEventType : public AdvancedIntEnumType
{
public:
    using AdvancedIntEnumType::AdvancedIntEnumType;
};

class AnyBaseCmd : public AdvancedIntEnumType
{
public:
    using AdvancedIntEnumType::AdvancedIntEnumType;
};

class UpLogType : public AdvancedIntEnumType
{
public:
    using AdvancedIntEnumType::AdvancedIntEnumType;
};

class NspRequestType : public AdvancedIntEnumType
{
public:
    using AdvancedIntEnumType::AdvancedIntEnumType;
};

class CbsType : public AdvancedIntEnumType
{
public:
    using AdvancedIntEnumType::AdvancedIntEnumType;
};

class CloudPhotoV2InterfaceType : public AdvancedIntEnumType
{
public:
    using AdvancedIntEnumType::AdvancedIntEnumType;
};

class CloudPhotoInterfaceType : public AdvancedIntEnumType
{
public:
    using AdvancedIntEnumType::AdvancedIntEnumType;
};

class FamilyShareType : public AdvancedIntEnumType
{
public:
    using AdvancedIntEnumType::AdvancedIntEnumType;
};

class PimDataVerionType : public AdvancedIntEnumType
{
public:
    using AdvancedIntEnumType::AdvancedIntEnumType;
};

class PimdsType : public AdvancedIntEnumType
{
public:
    using AdvancedIntEnumType::AdvancedIntEnumType;
};

class PortalInferfaceType : public AdvancedIntEnumType
{
public:
    using AdvancedIntEnumType::AdvancedIntEnumType;
};

class BasicType : public AdvancedIntEnumType
{
public:
    using AdvancedIntEnumType::AdvancedIntEnumType;
};

class BusinessType : public AdvancedIntEnumType
{
public:
    using AdvancedIntEnumType::AdvancedIntEnumType;
};

class SyncDriveType : public AdvancedIntEnumType
{
public:
    using AdvancedIntEnumType::AdvancedIntEnumType;
};

class DriveRequestType : public AdvancedIntEnumType
{
public:
    using AdvancedIntEnumType::AdvancedIntEnumType;
};

class CloudPhotoRequestType : public AdvancedIntEnumType
{
public:
    using AdvancedIntEnumType::AdvancedIntEnumType;
};

class BasicRequestType : public AdvancedIntEnumType
{
public:
    using AdvancedIntEnumType::AdvancedIntEnumType;
};

class PortalRequestType : public AdvancedIntEnumType
{
public:
    using AdvancedIntEnumType::AdvancedIntEnumType;
};

// Attributes are made once under shared ownership and never change.

// A human description, GBK bytes.
class Description : public AnyAttribute
{
public:
    explicit Description(std::string gbkText) : text(std::move(gbkText)) {}
    std::string text;
};

// The interface's URL path, possibly with a query and {0}-style
// placeholders, possibly empty.
class InterfaceDescriptionType : public AnyAttribute
{
public:
    explicit InterfaceDescriptionType(std::string interfacePath) : path(std::move(interfacePath)) {}
    std::string path;
};

// The command a log code is traced under, held by value.
class AnyBaseCmdType : public AnyAttribute
{
public:
    // `cmd` is default-made first and then assigned, so making this attribute
    // consumes one automatic id although it keeps the source's id. The log
    // code ids (2, 4, 6 ... and 12005, 12007, 12009) come out of that step.
    explicit AnyBaseCmdType(const AnyBaseCmd& source);
    AnyBaseCmd cmd;
};

// The log row a request is traced under; points to a static row.
class BaseUplogType : public AnyAttribute
{
public:
    explicit BaseUplogType(const UpLogType* logRow) : upLog(logRow) {}
    const UpLogType* upLog;
};

// What an operation event says about itself. Pointers name static rows and
// may be null.
class OperateEventAttribute : public AnyAttribute
{
public:
    OperateEventAttribute(std::string gbkDescription, const AnyBaseCmd* command, std::string pageName,
                          const AdvancedIntEnumType* linked, std::string subPageName,
                          std::string targetPageName)
        : description(std::move(gbkDescription)), cmd(command), page(std::move(pageName)),
          linkedEvent(linked), subPage(std::move(subPageName)), targetPage(std::move(targetPageName))
    {
    }
    std::string description;
    const AnyBaseCmd* cmd;
    std::string page;
    const AdvancedIntEnumType* linkedEvent;
    std::string subPage;
    std::string targetPage;
};

// The attribute under `key` if it is there and is an A; null otherwise. A
// missing key and a wrong class are the same case. Never inserts.
template <class A>
std::shared_ptr<const A> FindAttribute(const AdvancedIntEnumType& value, const std::string& key)
{
    const auto found = value.attributes.find(key);
    if (found == value.attributes.end()) {
        return nullptr;
    }
    return std::dynamic_pointer_cast<const A>(found->second);
}

// The interface path of a request type; empty when it has none.
std::string GetInterfacePathOf(const AdvancedIntEnumType& requestType);

// The description text (GBK) under "DescriptionAttribute"; empty when absent.
std::string GetDescriptionOf(const AdvancedIntEnumType& value);

// "<code>_11_<seconds>_<eight digits>", the code being the command's id for a
// log row or event that has one and the value's own id otherwise, padded
// with '0' in front to five characters (-1 gives 000-1). A code of 0 gives
// an empty string: such a value sends no trace identifier.
std::string MakeTraceId(const AdvancedIntEnumType& value);

// The trace identifier of a request type: that of its log row, or of the
// row -1 ("000-1...") when it has none.
std::string GetRequestTraceId(const AdvancedIntEnumType& requestType);

// Every value of enumeration E in definition order. Specialised for each
// enumeration next to the table definitions.
template <class E> const std::vector<const E*>& EnumRows();

// The row of E with this id, or null. Ids are unique within every table.
template <class E> const E* FindEnumRow(int32_t id)
{
    for (const E* row : EnumRows<E>()) {
        if (row->id == id) {
            return row;
        }
    }
    return nullptr;
}

template <> const std::vector<const OperateBasicEventType*>& EnumRows<OperateBasicEventType>();
template <>
const std::vector<const OperateFileTranslateEventType*>& EnumRows<OperateFileTranslateEventType>();
template <> const std::vector<const OperateSwitchPageEventType*>& EnumRows<OperateSwitchPageEventType>();
template <> const std::vector<const OperateSwitchModuleEventType*>& EnumRows<OperateSwitchModuleEventType>();
template <> const std::vector<const OperateSpecialEventType*>& EnumRows<OperateSpecialEventType>();
template <> const std::vector<const AnyBaseCmd*>& EnumRows<AnyBaseCmd>();
template <> const std::vector<const UpLogType*>& EnumRows<UpLogType>();
template <> const std::vector<const NspRequestType*>& EnumRows<NspRequestType>();
template <> const std::vector<const CbsType*>& EnumRows<CbsType>();
template <> const std::vector<const CloudPhotoV2InterfaceType*>& EnumRows<CloudPhotoV2InterfaceType>();
template <> const std::vector<const CloudPhotoInterfaceType*>& EnumRows<CloudPhotoInterfaceType>();
template <> const std::vector<const FamilyShareType*>& EnumRows<FamilyShareType>();
template <> const std::vector<const PimDataVerionType*>& EnumRows<PimDataVerionType>();
template <> const std::vector<const PimdsType*>& EnumRows<PimdsType>();
template <> const std::vector<const PortalInferfaceType*>& EnumRows<PortalInferfaceType>();
template <> const std::vector<const BasicType*>& EnumRows<BasicType>();
template <> const std::vector<const BusinessType*>& EnumRows<BusinessType>();
template <> const std::vector<const SyncDriveType*>& EnumRows<SyncDriveType>();
template <> const std::vector<const DriveRequestType*>& EnumRows<DriveRequestType>();
template <> const std::vector<const CloudPhotoRequestType*>& EnumRows<CloudPhotoRequestType>();
template <> const std::vector<const BasicRequestType*>& EnumRows<BasicRequestType>();
template <> const std::vector<const PortalRequestType*>& EnumRows<PortalRequestType>();
