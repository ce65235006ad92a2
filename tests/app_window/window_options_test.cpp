// The command line of `spacemgm window`: every refusal, without a window.
#include <gtest/gtest.h>

#include "app/window_options.h"

namespace {

using app::ParseWindowOptions;
using app::WindowOptions;

std::optional<std::string> Parse(const std::vector<std::string>& words, WindowOptions& options)
{
    options.resourceRoot = SPACEMGM_SOURCE_DIR;
    return ParseWindowOptions(words, options);
}

} // namespace

TEST(WindowOptions, EveryOptionIsRead)
{
    WindowOptions options;
    const auto problem =
        Parse({"--png", "a.png", "--dump-controls", "a.json", "--lang", "ru-RU", "--scale", "1.5", "--select",
               "Gallery", "--timeout", "7", "--res", "/r", "--config", "c.json"},
              options);
    ASSERT_FALSE(problem) << *problem;
    EXPECT_EQ(options.png, "a.png");
    EXPECT_EQ(options.dump, "a.json");
    EXPECT_EQ(options.language, "ru-RU");
    EXPECT_DOUBLE_EQ(options.scale, 1.5);
    ASSERT_TRUE(options.select);
    EXPECT_EQ(*options.select, Gallery);
    EXPECT_EQ(options.timeoutSeconds, 7);
    EXPECT_EQ(options.resourceRoot, "/r");
    EXPECT_EQ(options.configPath.value_or(""), "c.json");
}

TEST(WindowOptions, DefaultsAreAWindowAtScaleOneWithThirtySecondsToLoad)
{
    WindowOptions options;
    ASSERT_FALSE(Parse({}, options));
    EXPECT_TRUE(options.png.empty());
    EXPECT_DOUBLE_EQ(options.scale, 1.0);
    EXPECT_EQ(options.timeoutSeconds, 30);
    EXPECT_FALSE(options.select);
    EXPECT_FALSE(options.configPath);
}

TEST(WindowOptions, AnUnknownOptionOrAMissingValueIsNamed)
{
    WindowOptions options;
    EXPECT_EQ(Parse({"--pgn", "x"}, options).value_or(""), "unknown option --pgn");
    EXPECT_EQ(Parse({"--png"}, options).value_or(""), "--png needs a value");
    EXPECT_EQ(Parse({"extra"}, options).value_or(""), "unexpected argument \"extra\"");
}

TEST(WindowOptions, CategoriesAreTakenByNumberOrEnumeratorName)
{
    EXPECT_EQ(app::ParseCategory("Gallery"), Gallery);
    EXPECT_EQ(app::ParseCategory("2"), Gallery);
    EXPECT_EQ(app::ParseCategory("Phone"), Phone);
    EXPECT_EQ(app::ParseCategory("10"), Phone);
    EXPECT_EQ(app::ParseCategory("CloudBackUp"), CloudBackUp);
    EXPECT_EQ(app::ParseCategory("0"), Contact);
    EXPECT_EQ(app::ParseCategory("12"), Calendar);
    EXPECT_EQ(app::ParseCategory("HarassmentInterception"), HarassmentInterception);
}

TEST(WindowOptions, SevenAndUnknownNamesAreNoCategoryAndTheErrorListsThem)
{
    EXPECT_FALSE(app::ParseCategory("7"));
    EXPECT_FALSE(app::ParseCategory("13"));
    EXPECT_FALSE(app::ParseCategory("gallery"));
    EXPECT_FALSE(app::ParseCategory(""));
    WindowOptions options;
    const std::string problem = Parse({"--png", "a.png", "--select", "7"}, options).value_or("");
    EXPECT_NE(problem.find("--select: \"7\" is not a category"), std::string::npos) << problem;
    EXPECT_NE(problem.find("Gallery (2)"), std::string::npos) << problem;
    EXPECT_NE(problem.find("Calendar (12)"), std::string::npos) << problem;
}

TEST(WindowOptions, SelectWithoutPngIsRefused)
{
    WindowOptions options;
    EXPECT_EQ(Parse({"--select", "Gallery"}, options).value_or(""),
              "--select needs --png: in a real window, click the row");
}

TEST(WindowOptions, ScaleMustBeANumberFromOneToFour)
{
    EXPECT_EQ(app::ParseScale("1"), 1.0);
    EXPECT_EQ(app::ParseScale("1.5"), 1.5);
    EXPECT_EQ(app::ParseScale("4"), 4.0);
    for (const char* bad : {"0", "0.5", "4.5", "abc", "1.5x", "", "nan", "inf", "-2"})
        EXPECT_FALSE(app::ParseScale(bad)) << bad;
    WindowOptions options;
    const std::string problem = Parse({"--scale", "x2"}, options).value_or("");
    EXPECT_EQ(problem, "--scale: \"x2\" is not a number from 1 to 4 (such as 1, 1.5 or 2)");
}

TEST(WindowOptions, TimeoutMustBeWholeSecondsFromOneToAnHour)
{
    EXPECT_EQ(app::ParseTimeout("1"), 1);
    EXPECT_EQ(app::ParseTimeout("3600"), 3600);
    for (const char* bad : {"0", "3601", "1.5", "-1", "ten", "", "99999"})
        EXPECT_FALSE(app::ParseTimeout(bad)) << bad;
    WindowOptions options;
    EXPECT_EQ(Parse({"--timeout", "0"}, options).value_or(""),
              "--timeout: \"0\" is not a whole number of seconds from 1 to 3600");
}

TEST(WindowOptions, TheLanguagesAreThoseOfResLang)
{
    const std::vector<std::string> expected = {"en-US", "ru-RU", "th-TH", "zh-CN"};
    EXPECT_EQ(app::AvailableLanguages(SPACEMGM_SOURCE_DIR), expected);
    EXPECT_FALSE(app::CheckLanguageChoice(SPACEMGM_SOURCE_DIR, "th-TH"));
    EXPECT_EQ(app::CheckLanguageChoice(SPACEMGM_SOURCE_DIR, "de-DE").value_or(""),
              "unknown language \"de-DE\"; there are en-US, ru-RU, th-TH, zh-CN");
}

TEST(WindowOptions, OptionsThatTakeAValueAreKnownToTheSubcommandSearch)
{
    for (const char* option :
         {"--png", "--dump-controls", "--lang", "--scale", "--select", "--timeout", "--res", "--config"})
        EXPECT_TRUE(app::WindowOptionTakesValue(option)) << option;
    EXPECT_FALSE(app::WindowOptionTakesValue("--json"));
    EXPECT_FALSE(app::WindowOptionTakesValue("window"));
}
