// The set of keys a language file must hold follows the plural rule of its
// language and takes in what the window's code names.
#include <gtest/gtest.h>

#include "window_text_keys.h"

using texts::PluralFormsFor;
using texts::RequiredKeys;

TEST(WindowTextKeys, RussianCanReceiveFourPluralFormsAndOtherLanguagesTwo)
{
    const std::set<std::string> russian = {"IDS_X_FEW", "IDS_X_MANY", "IDS_X_ONE", "IDS_X_OTHER"};
    const std::set<std::string> other = {"IDS_X_ONE", "IDS_X_OTHER"};
    EXPECT_EQ(PluralFormsFor("ru-RU", "IDS_X"), russian);
    EXPECT_EQ(PluralFormsFor("en-US", "IDS_X"), other);
    EXPECT_EQ(PluralFormsFor("zh-CN", "IDS_X"), other);
    EXPECT_EQ(PluralFormsFor("th-TH", "IDS_X"), other);
}

TEST(WindowTextKeys, EveryPluralFormIsRequiredButNotTheBaseKey)
{
    const auto required = RequiredKeys("ru-RU", {});
    EXPECT_EQ(required.count("IDS_SPACEMANAGEMENT_NUMUNITS_FEW"), 1u);
    EXPECT_EQ(required.count("IDS_SPACEMANAGEMENT_UNIT_STRIPES_OTHER"), 1u);
    EXPECT_EQ(required.count("IDS_SPACEMANAGEMENT_NUMUNITS"), 0u);
    EXPECT_EQ(RequiredKeys("en-US", {}).count("IDS_SPACEMANAGEMENT_NUMUNITS_FEW"), 0u);
}

TEST(WindowTextKeys, AScannedPluralBaseStandsForItsForms)
{
    const auto required = RequiredKeys("en-US", {"IDS_SPACEMANAGEMENT_CLOUDBACKNUMUNITS"});
    EXPECT_EQ(required.count("IDS_SPACEMANAGEMENT_CLOUDBACKNUMUNITS"), 0u);
    EXPECT_EQ(required.count("IDS_SPACEMANAGEMENT_CLOUDBACKNUMUNITS_ONE"), 1u);
}

TEST(WindowTextKeys, AScannedKeyIsRequired)
{
    EXPECT_EQ(RequiredKeys("th-TH", {"IDS_SPACEMANAGEMENT_SOMETHING_NEW"})
                  .count("IDS_SPACEMANAGEMENT_SOMETHING_NEW"),
              1u);
}
