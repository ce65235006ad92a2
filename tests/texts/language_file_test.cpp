// The strict reader of a language file refuses what the toolkit's reader
// would silently pass over.
#include <gtest/gtest.h>

#include <stdexcept>

#include "language_file.h"
#include "temp_folder.h"

namespace {

std::string RefusalOf(const std::filesystem::path& file)
{
    try {
        texts::ReadLanguageFile(file);
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "";
}

} // namespace

TEST(LanguageFile, ReadsEveryKeyWithItsText)
{
    TempFolder folder;
    const auto file = folder.Write("xx-XX.json", "{\n  \"IDS_A\": \"Привет\",\n  \"IDS_B\": \"\"\n}\n");
    const auto table = texts::ReadLanguageFile(file);
    ASSERT_EQ(table.size(), 2u);
    EXPECT_EQ(table.at("IDS_A"), "Привет");
    EXPECT_EQ(table.at("IDS_B"), "");
}

TEST(LanguageFile, BytesThatAreNotUtf8AreRefusedNamingTheFile)
{
    TempFolder folder;
    const auto file = folder.Write("xx-XX.json", "{\"IDS_A\": \"caf\xe9\"}");
    EXPECT_EQ(RefusalOf(file), file.string() + ": is empty or not valid UTF-8");
}

TEST(LanguageFile, AKeyWrittenTwiceIsRefused)
{
    TempFolder folder;
    const auto file = folder.Write("xx-XX.json", "{\"IDS_A\": \"one\", \"IDS_A\": \"two\"}");
    EXPECT_NE(RefusalOf(file).find("is not valid JSON"), std::string::npos) << RefusalOf(file);
}

TEST(LanguageFile, AValueThatIsNotTextIsRefusedNamingTheKey)
{
    TempFolder folder;
    const auto file = folder.Write("xx-XX.json", "{\"IDS_A\": \"one\", \"IDS_B\": 2}");
    EXPECT_EQ(RefusalOf(file), file.string() + ": the value of \"IDS_B\" is not a text");
}

TEST(LanguageFile, AnythingButAnObjectIsRefused)
{
    TempFolder folder;
    const auto file = folder.Write("xx-XX.json", "[\"IDS_A\"]");
    EXPECT_EQ(RefusalOf(file), file.string() + ": is not a JSON object of key and text");
}

TEST(LanguageFile, AMissingFileIsRefused)
{
    TempFolder folder;
    const auto file = folder.Path() / "xx-XX.json";
    EXPECT_EQ(RefusalOf(file), file.string() + ": cannot be read");
}
