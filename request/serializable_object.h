#pragma once

#include <cstdint>
#include <map>
#include <string>

#include <json/value.h>

#include "request/postable_data.h"

// Base of every wire record: reads itself from a JSON value, writes itself to
// one, and renders its compact JSON text.
//
// Every FromJson reads in the same two passes:
//   1. each key of the record's table, in table order, with value["key"].asX(),
//      stored unconditionally: an absent key overwrites the member with 0,
//      false or "" (which may differ from the constructor's default);
//      nested records read value["key"] with their own FromJson (result
//      ignored); lists append one element per index without clearing first,
//      so reading twice into the same record doubles the list;
//   2. isMember for the record's check list, in order: -1 at the first absent
//      key, otherwise 0. Nobody acts on that result; callers judge a reply by
//      its field values.
// A value of the wrong type makes jsoncpp throw in the first pass; the record
// then keeps what was read before the fault (see ReadRecord).
class SerializableObject : public PostableData
{
public:
    // One line, no indentation, no trailing newline; keys in jsoncpp's order
    // (sorted), not in field order. Written once, here, for every record.
    virtual std::string ToJsonString() const final;
    virtual std::int32_t FromJson(const Json::Value& value) = 0;
    virtual Json::Value ToJson() const = 0;
};

// Parses `text` and, if it is JSON, lets `record` read it. Text that does not
// parse leaves the record as constructed. A wrong type ends the reading at the
// field where it happened, the record keeps what it had read so far, and no
// exception leaves this function.
void ReadRecord(SerializableObject& record, const std::string& text);

// Flattens a JSON object into strings: integers in decimal, reals with "%f",
// strings as they stand, arrays as their elements' text joined with ",".
// Null, boolean and object members are left out; a null or empty value adds
// nothing. Existing entries of `out` are kept unless a member replaces them.
void ObjectToStringMap(const Json::Value& value, std::map<std::string, std::string>& out);
