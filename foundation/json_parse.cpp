#include "foundation/utilities.h"

#include <memory>

#include <json/reader.h>

namespace {

// Building a reader costs about as much as parsing a small reply, and every
// exchange parses at least once; a reader with the default settings holds no
// state between parses, so each thread keeps one.
Json::CharReader& ThreadReader()
{
    thread_local const std::unique_ptr<Json::CharReader> reader = [] {
        Json::CharReaderBuilder builder;
        return std::unique_ptr<Json::CharReader>(builder.newCharReader());
    }();
    return *reader;
}

} // namespace

bool ParseJson(const std::string& text, Json::Value& out)
{
    std::string errors;
    return ThreadReader().parse(text.data(), text.data() + text.size(), &out, &errors);
}
