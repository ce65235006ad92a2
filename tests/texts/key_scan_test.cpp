// The scan of the window's code and skins finds each key it names.
#include <gtest/gtest.h>

#include "key_scan.h"
#include "temp_folder.h"

using texts::ScanTextKeys;
using texts::TextKeysIn;

TEST(KeyScan, FindsTheKeysOfCodeAndSkins)
{
    TempFolder tree;
    tree.Write("window/space_page.cpp", "GetText(L\"IDS_SPACEMANAGEMENT_DELETE\");\n");
    tree.Write("window/parts/frame.h", "// shows IDS_SPACEMANAGEMENT_TITLE\n");
    tree.Write("Res/skin/SpaceMgm/SpaceMgmWnd.xml", "<Label text=\"%[IDS_SPACEMANAGEMENT_LOADING]\" />");
    tree.Write("Res/skin/Gallery/Error/ErrorWnd.xml", "<Label tooltip=\"%[IDS_SPACEMANAGEMENT_CLOSE]\" />");
    const std::set<std::string> expected = {"IDS_SPACEMANAGEMENT_CLOSE", "IDS_SPACEMANAGEMENT_DELETE",
                                            "IDS_SPACEMANAGEMENT_LOADING", "IDS_SPACEMANAGEMENT_TITLE"};
    EXPECT_EQ(ScanTextKeys(texts::WindowSources(tree.Path())), expected);
}

TEST(KeyScan, FoldersThatDoNotExistGiveNothing)
{
    TempFolder tree;
    EXPECT_TRUE(ScanTextKeys(texts::WindowSources(tree.Path())).empty());
}

TEST(KeyScan, FilesOfOtherKindsAreNotRead)
{
    TempFolder tree;
    tree.Write("window/notes.md", "IDS_SPACEMANAGEMENT_TITLE\n");
    tree.Write("Res/skin/SpaceMgm/icon.svg", "<svg id=\"IDS_SPACEMANAGEMENT_TITLE\"/>");
    EXPECT_TRUE(ScanTextKeys(texts::WindowSources(tree.Path())).empty());
}

TEST(KeyScan, ATokenInsideALongerNameIsNoKey)
{
    EXPECT_TRUE(TextKeysIn("kMY_IDS_TITLE = 1; HIDS_X").empty());
    EXPECT_EQ(TextKeysIn("a(IDS_A)+IDS_B_2;"), (std::set<std::string>{"IDS_A", "IDS_B_2"}));
}

TEST(KeyScan, APrefixThatTheCodeCompletesIsNoKey)
{
    EXPECT_TRUE(TextKeysIn("std::wstring(L\"IDS_SPACEMANAGEMENT_\") + name").empty());
}
