// A language file the window cannot use is named with what is wrong in it.
#include <gtest/gtest.h>

#include <fstream>

#include "window/resource_check.h"

namespace {

std::string Write(const std::string& name, const std::string& text)
{
    const std::string path = std::string(SPACEMGM_BINARY_DIR) + "/" + name;
    std::ofstream(path, std::ios::trunc) << text;
    return path;
}

} // namespace

TEST(LanguageFileCheck, AGoodFileHasNoProblem)
{
    EXPECT_EQ(CheckLanguageFile(Write("good.json", "{\"IDS_A\": \"a\", \"IDS_B\": \"b\"}")), std::nullopt);
}

TEST(LanguageFileCheck, AMissingFileIsNamed)
{
    const std::string path = std::string(SPACEMGM_BINARY_DIR) + "/no-such-language.json";
    EXPECT_EQ(CheckLanguageFile(path), path + ": cannot open language file");
}

TEST(LanguageFileCheck, BrokenJsonIsNamedWithItsLine)
{
    const std::string path = Write("broken.json", "{\n  \"IDS_A\": \"a\"\n  \"IDS_B\": \"b\"\n}\n");
    const auto problem = CheckLanguageFile(path);
    ASSERT_TRUE(problem.has_value());
    EXPECT_EQ(problem->rfind(path + ":3: ", 0), 0u) << *problem;
}

TEST(LanguageFileCheck, AFileThatIsNoObjectOfTextsIsRefused)
{
    const std::string list = Write("list.json", "[\"a\"]");
    EXPECT_EQ(CheckLanguageFile(list), list + ": a language file must be one JSON object of texts");
    const std::string number = Write("number.json", "{\"IDS_A\": 3}");
    EXPECT_EQ(CheckLanguageFile(number), number + ": the text of \"IDS_A\" is not a string");
}

TEST(LanguageFileCheck, NestingDeeperThanTheParserTakesIsNamedNotACrash)
{
    const std::string path =
        Write("deep.json", "{\"IDS_A\": " + std::string(200000, '[') + std::string(200000, ']') + "}");
    const auto problem = CheckLanguageFile(path);
    ASSERT_TRUE(problem.has_value());
    EXPECT_EQ(problem->rfind(path + ": not a language file (", 0), 0u) << *problem;
}
