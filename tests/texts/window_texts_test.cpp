// Every language file holds a fitting text for every key the space window
// reads. A key missing from a language would fall back to English, or show
// as the key itself, in the window.
#include <gtest/gtest.h>

#include <functional>
#include <sstream>

#include "foundation/utilities.h"
#include "key_scan.h"
#include "language_file.h"
#include "text_rules.h"
#include "window_text_keys.h"

namespace {

const std::filesystem::path kSourceRoot = SPACEMGM_SOURCE_DIR;

std::wstring Wide(const std::string& text)
{
    std::wstring wide;
    NarrowToWide(text, wide, kCodePageUtf8);
    return wide;
}

class WindowTexts : public ::testing::TestWithParam<std::string>
{
protected:
    void SetUp() override
    {
        const auto path = kSourceRoot / "Res/lang" / (GetParam() + ".json");
        try {
            table_ = texts::ReadLanguageFile(path);
        } catch (const std::exception& error) {
            FAIL() << error.what();
        }
    }

    // The text of `key`, or nothing when the file lacks it (which the key
    // test reports).
    const std::string* Find(const std::string& key) const
    {
        const auto found = table_.find(key);
        return found == table_.end() ? nullptr : &found->second;
    }

    // Applies `rule` to the text of every key of `keys` the file holds, and
    // lists every text it finds fault with.
    std::string Faults(const std::vector<std::string>& keys,
                       const std::function<std::wstring(const std::wstring&)>& rule) const
    {
        std::ostringstream faults;
        for (const auto& key : keys) {
            const std::string* text = Find(key);
            if (text == nullptr)
                continue;
            const std::wstring problem = rule(Wide(*text));
            if (!problem.empty())
                faults << key << " = \"" << *text << "\": " << WideToUtf8(problem) << "\n";
        }
        return faults.str();
    }

    std::vector<std::string> PluralKeys() const
    {
        std::vector<std::string> keys;
        for (const auto& base : texts::PluralBaseKeys()) {
            const auto forms = texts::PluralFormsFor(GetParam(), base);
            keys.insert(keys.end(), forms.begin(), forms.end());
        }
        return keys;
    }

    texts::TextTable table_;
};

std::string LanguageName(const ::testing::TestParamInfo<std::string>& info)
{
    std::string name = info.param;
    for (auto& c : name)
        c = c == '-' ? '_' : c;
    return name;
}

} // namespace

TEST_P(WindowTexts, HoldsEveryKeyTheWindowReads)
{
    const auto scanned = texts::ScanTextKeys(texts::WindowSources(kSourceRoot));
    std::ostringstream missing;
    for (const auto& key : texts::RequiredKeys(GetParam(), scanned)) {
        if (Find(key) == nullptr)
            missing << key << "\n";
    }
    EXPECT_EQ(missing.str(), "") << GetParam() << " lacks these keys";
}

TEST_P(WindowTexts, NoTextIsEmptyOrAKey)
{
    std::vector<std::string> keys;
    for (const auto& key : texts::RequiredKeys(GetParam(), {})) {
        if (key != texts::kLegendOffsetKey)
            keys.push_back(key);
    }
    EXPECT_EQ(Faults(keys,
                     [](const std::wstring& text) -> std::wstring {
                         if (text.empty())
                             return L"is empty";
                         if (text.compare(0, 4, L"IDS_") == 0)
                             return L"is a key, not a text";
                         return L"";
                     }),
              "");
}

TEST_P(WindowTexts, TheLegendOffsetIsEmptyOrASmallNumber)
{
    EXPECT_EQ(Faults({texts::kLegendOffsetKey}, texts::LegendOffsetProblem), "");
}

TEST_P(WindowTexts, TheQuotaLineTakesTheUsedSizeFirstAndTheTotalSecond)
{
    EXPECT_EQ(Faults({texts::kUsedOfTotalKey}, texts::UsedOfTotalProblem), "");
}

TEST_P(WindowTexts, TheBackupDetailHasOnePlaceholderForTheDeviceName)
{
    EXPECT_EQ(Faults({texts::kBackupDetailKey}, texts::SingleStringPlaceholderProblem), "");
}

TEST_P(WindowTexts, EveryUnitStartsWithItsCountAndNamesAUnit)
{
    EXPECT_EQ(Faults(PluralKeys(), texts::UnitProblem), "");
}

TEST_P(WindowTexts, TitlesBeforeAValueEndWithoutAColon)
{
    EXPECT_EQ(Faults(texts::TitleKeys(), texts::TitleProblem), "");
}

TEST_P(WindowTexts, TextsShownAsTheyStandHoldNoPercentSign)
{
    std::vector<std::string> keys;
    for (const auto& key : texts::WindowTextKeys()) {
        if (key != texts::kUsedOfTotalKey && key != texts::kBackupDetailKey)
            keys.push_back(key);
    }
    EXPECT_EQ(Faults(keys, texts::PlainTextProblem), "");
}

TEST_P(WindowTexts, NoTextHasStrayWhitespace)
{
    std::vector<std::string> keys;
    for (const auto& entry : table_)
        keys.push_back(entry.first);
    EXPECT_EQ(Faults(keys, texts::WhitespaceProblem), "");
}

INSTANTIATE_TEST_SUITE_P(Languages, WindowTexts, ::testing::Values("en-US", "zh-CN", "ru-RU", "th-TH"),
                         LanguageName);

// PluralKey gives 11 to 14 the "_OTHER" form, which Russian writes like 5 to
// 20: "11 записей" as "5 записей".
TEST(RussianTexts, ElevenToFourteenReadLikeFiveToTwenty)
{
    const auto table = texts::ReadLanguageFile(kSourceRoot / "Res/lang/ru-RU.json");
    for (const auto& base : texts::PluralBaseKeys()) {
        const auto other = table.find(base + "_OTHER");
        const auto many = table.find(base + "_MANY");
        ASSERT_NE(other, table.end()) << base;
        ASSERT_NE(many, table.end()) << base;
        EXPECT_EQ(other->second, many->second) << base;
    }
}
