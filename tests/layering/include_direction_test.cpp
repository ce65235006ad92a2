// The folders of the repository include only downward, as the table beside
// this test says.
#include <gtest/gtest.h>

#include <sstream>

#include "include_rules.h"
#include "temp_folder.h"

namespace {

const std::filesystem::path kSourceRoot = SPACEMGM_SOURCE_DIR;

layering::IncludeRules ProjectRules()
{
    return layering::ReadIncludeRules(kSourceRoot / "tests/layering/allowed_includes.txt");
}

std::string Report(const std::vector<layering::Violation>& violations)
{
    std::ostringstream text;
    for (const auto& violation : violations)
        text << layering::Describe(violation) << "\n";
    return text.str();
}

layering::IncludeRules SmallRules()
{
    layering::IncludeRules rules;
    rules.allowed["platform"] = {};
    rules.allowed["foundation"] = {"platform"};
    rules.allowed["cloud"] = {};
    rules.allowed["tests"] = {"*"};
    return rules;
}

} // namespace

TEST(IncludeDirection, EveryIncludeOfTheRepositoryFollowsTheTable)
{
    const auto violations = layering::FindViolations(kSourceRoot, ProjectRules());
    EXPECT_TRUE(violations.empty()) << Report(violations);
}

TEST(IncludeDirection, AnUpwardIncludeIsReportedWithFileAndLine)
{
    TempFolder tree;
    tree.Write("foundation/helper.h", "#pragma once\n");
    tree.Write("platform/api.h", "#pragma once\n\n#include \"foundation/helper.h\"\n");
    const auto violations = layering::FindViolations(tree.Path(), SmallRules());
    ASSERT_EQ(violations.size(), 1u);
    EXPECT_EQ(layering::Describe(violations[0]),
              "platform/api.h:3: #include \"foundation/helper.h\": \"platform\" may not include from "
              "\"foundation\"");
}

TEST(IncludeDirection, ADownwardIncludeAndAnIncludeBesideTheFileAreAllowed)
{
    TempFolder tree;
    tree.Write("platform/api.h", "#pragma once\n");
    tree.Write("foundation/helper.h", "#include \"platform/api.h\"\n#include \"other.h\"\n");
    tree.Write("foundation/other.h", "#pragma once\n");
    tree.Write("cloud/main.cpp", "#include \"routes.h\"\n#include <vector>\n");
    tree.Write("cloud/routes.h", "#pragma once\n");
    EXPECT_TRUE(layering::FindViolations(tree.Path(), SmallRules()).empty());
}

TEST(IncludeDirection, APeerThatSharesNothingMayNotIncludeTheModule)
{
    TempFolder tree;
    tree.Write("platform/api.h", "#pragma once\n");
    tree.Write("cloud/main.cpp", "  #  include \"platform/api.h\"\n");
    const auto violations = layering::FindViolations(tree.Path(), SmallRules());
    ASSERT_EQ(violations.size(), 1u);
    EXPECT_EQ(violations[0].file, "cloud/main.cpp");
    EXPECT_EQ(violations[0].line, 1);
}

TEST(IncludeDirection, TestsMayIncludeWhatTheyExercise)
{
    TempFolder tree;
    tree.Write("cloud/routes.h", "#pragma once\n");
    tree.Write("platform/api.h", "#pragma once\n");
    tree.Write("tests/cloud/routes_test.cpp", "#include \"cloud/routes.h\"\n#include \"platform/api.h\"\n");
    EXPECT_TRUE(layering::FindViolations(tree.Path(), SmallRules()).empty());
}

TEST(IncludeDirection, AFolderWithoutALineInTheTableIsReported)
{
    TempFolder tree;
    tree.Write("platform/api.h", "#pragma once\n");
    tree.Write("newlayer/thing.cpp", "#include \"platform/api.h\"\n");
    const auto violations = layering::FindViolations(tree.Path(), SmallRules());
    ASSERT_EQ(violations.size(), 1u);
    EXPECT_EQ(violations[0].why, "the folder \"newlayer\" has no line in the table");
}

TEST(IncludeDirection, BuildFoldersAreNotRead)
{
    TempFolder tree;
    tree.Write("foundation/helper.h", "#pragma once\n");
    tree.Write("build/generated/api.h", "#include \"foundation/helper.h\"\n");
    tree.Write("build-sanitize/x/api.h", "#include \"foundation/helper.h\"\n");
    EXPECT_TRUE(layering::FindViolations(tree.Path(), SmallRules()).empty());
}

TEST(IncludeDirection, ATableThatNamesAFolderTwiceIsRefusedWithItsLine)
{
    TempFolder tree;
    const auto table = tree.Write("rules.txt", "# comment\nplatform\nfoundation platform\nplatform\n");
    try {
        layering::ReadIncludeRules(table);
        FAIL() << "the second line for platform was accepted";
    } catch (const std::runtime_error& error) {
        EXPECT_EQ(std::string(error.what()), table.string() + ":4: \"platform\" has a line already");
    }
}
