// Free helpers shared by the whole module: conversions between narrow and
// wide text, text helpers, number and size formatting, hashes of strings and
// files, JSON parsing. They hold no state apart from the table of Crc32, and
// report failure by an empty or false result, never by an exception.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <json/value.h>

#include "foundation/device_identity.h"
#include "foundation/file_type_tables.h"

// Code pages understood by the conversions.
inline constexpr unsigned int kCodePageSystem = 0; // the system's narrow encoding: UTF-8 on Linux
inline constexpr unsigned int kCodePageGbk = 936;
inline constexpr unsigned int kCodePageUtf8 = 65001;

// --- Conversion -----------------------------------------------------------
// Wide strings hold UTF-32 on Linux. Malformed input (invalid or overlong
// UTF-8, surrogates, values above U+10FFFF) fails the conversion. On failure
// and for empty input the result is false and `out` is left as it was.
bool NarrowToWide(const std::string& in, std::wstring& out, unsigned int codePage);
bool WideToNarrow(const std::wstring& in, std::string& out, unsigned int codePage);
std::string WideToNarrowCopy(const std::wstring& in, unsigned int codePage);
std::string WideToUtf8(const std::wstring& in);

// --- Text -----------------------------------------------------------------
// `key` with "_ONE", "_FEW", "_MANY" or "_OTHER", chosen by the plural rule of
// `language` ("ru-RU" has its own rule; every other language is English-like).
std::wstring PluralKey(const std::wstring& language, int count, const std::wstring& key);
// Letters, digits and "*-._" stay; every other byte becomes %xx in lower case.
std::string UrlEncode(std::string text);
std::string Base64Encode(const void* data, int length);
// Replaces every case-insensitive match of `from` in `text` by `to`, left to right.
void ReplaceNoCase(const std::string& from, const std::string& to, std::string& text);
void ReplaceNoCase(const std::wstring& from, const std::wstring& to, std::wstring& text);
void SplitByAny(const std::string& text, const std::vector<std::string>& delimiters,
                std::vector<std::string>& out);
// Splits a comma-separated header value. A token is built from the whole
// rest of the text at each of its characters ("ab" gives "abb"); only a
// lone digit comes through as it was.
std::vector<std::string> SplitList(const std::string& text);
bool ParseDigits(const std::string& text, uint32_t& value);
std::string ToLowerCopy(const std::string& text);
bool Contains(const std::string& text, const std::string& part);
// Position of the last byte of `text` that is in `set`; std::string::npos if
// none or if either length is 0.
size_t FindLastOf(const char* text, size_t length, const char* set, size_t setLength);
uint32_t HashString(const std::string& text);
std::wstring UIntToWide(uint32_t value);

// --- Numbers --------------------------------------------------------------
std::string FormatFixed2(double value);
// Groups the integer part with one comma at most: 1234567.25 gives "1234,567.25".
std::string GroupThousands(double value);
// The size text of the backup list: "1,023.00 B", "999.500000 KB".
std::string FormatSizeGrouped(double bytes);
// The size text of the item pages, steps of 1024 above 900: 901 gives "0.88 KB".
std::string FormatSizeText(double bytes);

// --- Hashes and files -----------------------------------------------------
// Paths are canonicalised lexically ("." and ".." folded) before use.
std::string Md5OfString(const std::string& text);
std::string Md5OfFile(const std::wstring& path, uint64_t& size);
std::string Md5OfFileLarge(const std::wstring& path); // upper-case digits
std::string Sha256OfFile(const std::wstring& path);
// Two MD5 samples of the file as a JSON array text; empty unless `md5` is
// empty, in which case the file's MD5 is computed first.
std::string FileSampleHashes(const std::wstring& path, const std::string& md5);
uint64_t GetFileSize64(const std::wstring& path);
// CRC-32 (reflected 0xEDB88320) in the low 32 bits.
uint64_t Crc32(const std::string& text);

// --- JSON -----------------------------------------------------------------
// Every JSON text from the network or a file is parsed here. The parse never
// throws: a text that jsoncpp refuses, whether by a parse error or by an
// exception (nesting deeper than its limit of 1000 levels), gives false and
// a null `out`.
bool ParseJson(const std::string& text, Json::Value& out);

struct JsonParseOptions
{
    bool rejectDuplicateKeys = false;
    bool collectComments = true;
};

// The same parse with reader settings for files that people write; `error`,
// when given, receives what jsoncpp reports (line and column first).
bool ParseJson(const std::string& text, Json::Value& out, const JsonParseOptions& options,
               std::string* error);
