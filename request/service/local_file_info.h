// A local file to be uploaded to the gallery, as the upload preparation of the
// cloud photo requests takes it. Checksums left empty are computed from the file.
#pragma once

#include <cstdint>
#include <string>

#include "request/postable_data.h"

class LocalFileInfo : public PostableData
{
public:
    std::wstring path;
    uint64_t fileSize = 0;
    std::string contentMd5; // Base64 of the file's MD5
    std::string sha256;     // hexadecimal text
    std::string md5;        // hexadecimal text
    // The first step of a multi-step upload announces the file; later steps
    // carry one block each.
    bool firstStep = true;
    uint64_t blockStart = 0;
    uint64_t blockLength = 0;
};
