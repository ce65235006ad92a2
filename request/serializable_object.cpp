#include "request/serializable_object.h"

#include <cstdio>

#include <json/writer.h>

#include "foundation/utilities.h"

std::string SerializableObject::ToJsonString() const
{
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "";
    return Json::writeString(builder, ToJson());
}

void ReadRecord(SerializableObject& record, const std::string& text)
{
    Json::Value value;
    if (!ParseJson(text, value)) {
        return;
    }
    try {
        record.FromJson(value);
    } catch (...) {
        // A field of the wrong type: jsoncpp throws and the reading stops
        // there. What was read so far stays; the caller sees a partly filled
        // record, never the exception.
    }
}

namespace {

std::string RealText(double number)
{
    char buffer[512];
    std::snprintf(buffer, sizeof buffer, "%f", number);
    return buffer;
}

std::string JoinedElements(const Json::Value& array)
{
    std::string joined;
    for (Json::ArrayIndex index = 0; index < array.size(); ++index) {
        if (index != 0) {
            joined += ',';
        }
        joined += array[index].asString();
    }
    return joined;
}

} // namespace

void ObjectToStringMap(const Json::Value& value, std::map<std::string, std::string>& out)
{
    if (value.isNull() || value.empty()) {
        return;
    }
    for (auto member = value.begin(); member != value.end(); ++member) {
        const Json::Value& item = *member;
        switch (item.type()) {
        case Json::intValue:
            out[member.name()] = std::to_string(item.asInt64());
            break;
        case Json::uintValue:
            out[member.name()] = std::to_string(item.asUInt64());
            break;
        case Json::realValue:
            out[member.name()] = RealText(item.asDouble());
            break;
        case Json::stringValue:
            out[member.name()] = item.asString();
            break;
        case Json::arrayValue:
            out[member.name()] = JoinedElements(item);
            break;
        case Json::nullValue:
        case Json::booleanValue:
        case Json::objectValue:
            break;
        }
    }
}
