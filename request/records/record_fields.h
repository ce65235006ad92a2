#pragma once

// Small building blocks shared by the record families, so that every FromJson
// and ToJson reads as its table: one line per key.

#include <cstdint>
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

// Appends one element per index of `list` (an absent key has size 0); the
// member is not cleared first.
template <typename Record>
void AppendRecords(const Json::Value& list, std::vector<Record>& out)
{
    for (Json::ArrayIndex index = 0; index < list.size(); ++index) {
        Record record;
        record.FromJson(list[index]);
        out.push_back(std::move(record));
    }
}

template <typename Record>
void AppendRecords(const Json::Value& list, std::vector<std::shared_ptr<Record>>& out)
{
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
template <typename Record>
Json::Value RecordArray(const std::vector<Record>& list)
{
    Json::Value array(Json::arrayValue);
    for (const Record& record : list) {
        array.append(record.ToJson());
    }
    return array;
}

template <typename Record>
Json::Value RecordArray(const std::vector<std::shared_ptr<Record>>& list)
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

}  // namespace record_fields
