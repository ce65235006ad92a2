// The category names come from the text resources the window uses.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "app/category_names.h"
#include "utilities/temp_folder.h"

TEST(CategoryTexts, EnglishNamesAreTheWindowsTexts)
{
    const app::CategoryTexts texts(SPACEMGM_SOURCE_DIR, "en-US");
    EXPECT_EQ(texts.NameOf(Phone), "Call records");
    EXPECT_EQ(texts.NameOf(Message), "Messages");
    EXPECT_EQ(texts.NameOf(CloudBackUp), "Cloud backup");
    EXPECT_EQ(texts.NameOf(Wlan), "Wi-Fi networks");
}

TEST(CategoryTexts, EveryLanguageNamesAllTwelveCategoriesInItsOwnWords)
{
    const app::CategoryTexts english(SPACEMGM_SOURCE_DIR, "en-US");
    for (const char* language : {"zh-CN", "ru-RU", "th-TH"}) {
        const app::CategoryTexts texts(SPACEMGM_SOURCE_DIR, language);
        std::set<std::string> names;
        for (CloudSpaceType type : app::AllCategories()) {
            const std::string name = texts.NameOf(type);
            EXPECT_NE(name, english.NameOf(type)) << language << " lacks " << app::CategoryTextKey(type);
            names.insert(name);
        }
        EXPECT_EQ(names.size(), 12u) << language;
    }
}

TEST(CategoryTexts, AnotherLanguageGivesItsOwnTexts)
{
    const app::CategoryTexts english(SPACEMGM_SOURCE_DIR, "en-US");
    const app::CategoryTexts chinese(SPACEMGM_SOURCE_DIR, "zh-CN");
    EXPECT_NE(chinese.NameOf(Phone), english.NameOf(Phone));
}

TEST(CategoryTexts, AnUnknownLanguageFallsBackToEnglish)
{
    const app::CategoryTexts texts(SPACEMGM_SOURCE_DIR, "xx-XX");
    EXPECT_EQ(texts.NameOf(Phone), "Call records");
}

TEST(CategoryTexts, ALanguageThatIsAPathIsNotFollowed)
{
    TempFolder folder;
    folder.Write("Res/lang/en-US.json", R"({"IDS_SPACEMANAGEMENT_PHONE": "Calls"})");
    folder.Write("evil.json", R"({"IDS_SPACEMANAGEMENT_PHONE": "pwned"})");
    const app::CategoryTexts texts(folder.Path().string(), "../../evil");
    EXPECT_EQ(texts.NameOf(Phone), "Calls");
}

TEST(CategoryTexts, WithoutResourcesTheNamesAreTheCategoriesOwn)
{
    TempFolder folder;
    folder.Write("Res/lang/en-US.json", std::string(5000, '['));
    const app::CategoryTexts texts(folder.Path().string(), "en-US");
    EXPECT_EQ(texts.NameOf(Phone), "Phone");
    EXPECT_EQ(texts.NameOf(HarassmentInterception), "HarassmentInterception");
}

TEST(CategoryTexts, TheTwelveCategoriesInTheOrderOfTheRowTemplates)
{
    const std::vector<CloudSpaceType> expected = {Wlan,      Phone,   Browser,     Message,
                                                  Calendar,  Contact, CloudBackUp, Gallery,
                                                  CloudDisk, Notepad, Recorder,    HarassmentInterception};
    EXPECT_EQ(app::AllCategories(), expected);
}
