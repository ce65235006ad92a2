#pragma once

#include <memory>
#include <stdexcept>
#include <string>

#include <json/reader.h>
#include <json/value.h>

#include "request/serializable_object.h"

// A record as the exchange hands it back: created, then read from the reply
// text through ReadRecord.
template <typename Record> std::shared_ptr<Record> ReadReply(const std::string& text)
{
    auto record = std::make_shared<Record>();
    ReadRecord(*record, text);
    return record;
}

// Parses test input that is known to be valid JSON.
inline Json::Value JsonOf(const std::string& text)
{
    Json::Value value;
    Json::CharReaderBuilder builder;
    std::string errors;
    std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    if (!reader->parse(text.data(), text.data() + text.size(), &value, &errors)) {
        throw std::runtime_error("test input is not JSON: " + text);
    }
    return value;
}
