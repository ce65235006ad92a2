// UTF-8 to GBK through the C library's converter, so that expected texts can
// be written readably and still be compared byte for byte.
#pragma once

#include <string>

// The GBK bytes of `utf8`; throws std::runtime_error if it cannot be converted.
std::string Utf8ToGbk(const std::string& utf8);
