#pragma once

#include <string>

// Anything that can be handed to a request as its body. A body either renders
// itself (SerializableObject) or is already finished text (PostableString).
class PostableData
{
public:
    PostableData() = default;
    PostableData(const PostableData&) = default;
    PostableData& operator=(const PostableData&) = default;
    PostableData(PostableData&&) = default;
    PostableData& operator=(PostableData&&) = default;
    virtual ~PostableData() = default;

    // URL-encoded form text. Only the NSP file-service requests send forms;
    // every other body answers with an empty string.
    virtual std::string ToFormString() const { return std::string(); }
};
