#pragma once

#include <string>
#include <utility>

#include "request/postable_data.h"

// A body that is already finished text. The send step sends only this kind:
// every other body is turned into one first (or dropped, for a GET).
class PostableString : public PostableData
{
public:
    PostableString() = default;
    explicit PostableString(std::string body) : text(std::move(body)) {}

    std::string text;
};
