#include "foundation/utilities.h"

#include <memory>

#include <json/reader.h>

bool ParseJson(const std::string& text, Json::Value& out)
{
    Json::CharReaderBuilder builder;
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    std::string errors;
    return reader->parse(text.data(), text.data() + text.size(), &out, &errors);
}
