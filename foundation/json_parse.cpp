#include "foundation/utilities.h"

#include <memory>
#include <string>

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

std::unique_ptr<Json::CharReader> ReaderFor(const JsonParseOptions& options)
{
    Json::CharReaderBuilder builder;
    builder["rejectDupKeys"] = options.rejectDuplicateKeys;
    builder["collectComments"] = options.collectComments;
    return std::unique_ptr<Json::CharReader>(builder.newCharReader());
}

// jsoncpp reports most faults as a result, but a few by throwing: nesting
// deeper than its stack limit (a reply of a few thousand "[" is enough) is
// one. Every way out ends here as a failed parse with a null value, so that
// no reply and no file can take the process down.
bool GuardedParse(Json::CharReader& reader, const std::string& text, Json::Value& out, std::string* error)
{
    std::string errors;
    try {
        if (reader.parse(text.data(), text.data() + text.size(), &out, &errors)) {
            return true;
        }
    } catch (const Json::Exception& exception) {
        const std::string what = exception.what();
        errors = what.find("stackLimit") != std::string::npos ? "nested more than 1000 levels deep" : what;
    }
    out = Json::Value();
    if (error != nullptr) {
        *error = errors;
    }
    return false;
}

} // namespace

bool ParseJson(const std::string& text, Json::Value& out)
{
    return GuardedParse(ThreadReader(), text, out, nullptr);
}

bool ParseJson(const std::string& text, Json::Value& out, const JsonParseOptions& options, std::string* error)
{
    const std::unique_ptr<Json::CharReader> reader = ReaderFor(options);
    return GuardedParse(*reader, text, out, error);
}
