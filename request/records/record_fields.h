#pragma once

// Small building blocks shared by the record families, so that every FromJson
// and ToJson reads as its table: one line per key.

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <json/value.h>

namespace record_fields {

// The check pass: -1 at the first key that `value` lacks, otherwise 0.
inline std::int32_t CheckKeys(const Json::Value& value, std::initializer_list<const char*> keys)
{
    for (const char* key : keys) {
        if (!value.isMember(key)) {
            return -1;
        }
    }
    return 0;
}

// A boolean field as every record reads it: a number is true when not zero,
// a string, array or object when not empty, null is false. That is the
// documented conversion of jsoncpp's asBool; the release we build against
// throws on a string or a container instead, which would end the record's
// reading at this field.
inline bool ReadBool(const Json::Value& value)
{
    switch (value.type()) {
    case Json::stringValue: {
        const char* begin = nullptr;
        const char* end = nullptr;
        return value.getString(&begin, &end) && begin != end;
    }
    case Json::arrayValue:
    case Json::objectValue:
        return value.size() != 0;
    default:
        return value.asBool();
    }
}

// The keys of one JSON object as a record reads them. `in["key"]` is
// `value["key"]` on a constant value (the member, null for an absent key, a
// jsoncpp exception when the value is neither an object nor null), and
// `in.Check` is isMember over a check list. Decoding a large reply is mostly
// key lookups, and jsoncpp's lookup walks a tree of string comparisons; the
// members of a record-sized object are therefore listed once and matched by
// length and bytes. Larger objects use jsoncpp's own lookup.
class JsonFields
{
public:
    explicit JsonFields(const Json::Value& value) : object(value)
    {
        if (value.type() != Json::objectValue || value.size() > members.size()) {
            return;
        }
        for (auto member = value.begin(); member != value.end(); ++member) {
            const char* end = nullptr;
            const char* name = member.memberName(&end);
            members[memberCount++] = Member{name, static_cast<std::size_t>(end - name), &*member};
        }
        listed = true;
    }
    // The reader refers to the value; a temporary would be gone before the
    // first read.
    explicit JsonFields(Json::Value&&) = delete;

    const Json::Value& operator[](const char* key) const
    {
        const Json::Value* found = Find(key);
        return found != nullptr ? *found : Json::Value::nullSingleton();
    }

    // The check pass: -1 at the first absent key of `keys`, otherwise 0.
    std::int32_t Check(std::initializer_list<const char*> keys) const
    {
        for (const char* key : keys) {
            if (Find(key) == nullptr) {
                return -1;
            }
        }
        return 0;
    }

private:
    struct Member
    {
        const char* name;
        std::size_t length;
        const Json::Value* value;
    };

    const Json::Value* Find(const char* key) const
    {
        const std::size_t length = std::strlen(key);
        if (!listed) {
            return object.find(key, key + length);
        }
        for (std::size_t index = 0; index < memberCount; ++index) {
            const Member& member = members[index];
            if (member.length == length && std::memcmp(member.name, key, length) == 0) {
                return member.value;
            }
        }
        return nullptr;
    }

    const Json::Value& object;
    std::array<Member, 24> members{};
    std::size_t memberCount = 0;
    bool listed = false;
};

// Appends one element per index of `list` (an absent key has size 0); the
// member is not cleared first.
template <typename Record> void AppendRecords(const Json::Value& list, std::vector<Record>& out)
{
    out.reserve(out.size() + list.size());
    for (Json::ArrayIndex index = 0; index < list.size(); ++index) {
        Record record;
        record.FromJson(list[index]);
        out.push_back(std::move(record));
    }
}

template <typename Record>
void AppendRecords(const Json::Value& list, std::vector<std::shared_ptr<Record>>& out)
{
    out.reserve(out.size() + list.size());
    for (Json::ArrayIndex index = 0; index < list.size(); ++index) {
        auto record = std::make_shared<Record>();
        record->FromJson(list[index]);
        out.push_back(std::move(record));
    }
}

inline void AppendStrings(const Json::Value& list, std::vector<std::string>& out)
{
    for (Json::ArrayIndex index = 0; index < list.size(); ++index) {
        out.push_back(list[index].asString());
    }
}

// A list is written as an array built element by element; an empty list is
// an empty array, never null.
template <typename Record> Json::Value RecordArray(const std::vector<Record>& list)
{
    Json::Value array(Json::arrayValue);
    for (const Record& record : list) {
        array.append(record.ToJson());
    }
    return array;
}

template <typename Record> Json::Value RecordArray(const std::vector<std::shared_ptr<Record>>& list)
{
    Json::Value array(Json::arrayValue);
    for (const auto& record : list) {
        array.append(record ? record->ToJson() : Json::Value());
    }
    return array;
}

inline Json::Value StringArray(const std::vector<std::string>& list)
{
    Json::Value array(Json::arrayValue);
    for (const std::string& text : list) {
        array.append(text);
    }
    return array;
}

inline Json::Value StringObject(const std::map<std::string, std::string>& map)
{
    Json::Value object(Json::objectValue);
    for (const auto& entry : map) {
        object[entry.first] = entry.second;
    }
    return object;
}

// Reads every member of an object with asString. The map is not cleared.
inline void ReadStringMembers(const Json::Value& object, std::map<std::string, std::string>& out)
{
    for (const std::string& name : object.getMemberNames()) {
        out[name] = object[name].asString();
    }
}

} // namespace record_fields
