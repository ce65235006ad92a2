// The folder walk and the record filter that the harassment and recording
// roads and the harassment deletion share.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "space_data/category_folders.h"

namespace {

std::shared_ptr<FolderOrFilesInfo> Entry(const std::string& name, const std::string& type)
{
    auto entry = std::make_shared<FolderOrFilesInfo>();
    entry->name = name;
    entry->type = type;
    return entry;
}

CategoryListing Listing(bool china, std::vector<std::shared_ptr<FolderOrFilesInfo>> entries)
{
    CategoryListing listing;
    listing.china = china;
    listing.reply = std::make_shared<NSPFilesResponse>();
    listing.reply->fileList =
        std::make_shared<std::vector<std::shared_ptr<FolderOrFilesInfo>>>(std::move(entries));
    return listing;
}

} // namespace

TEST(CategoryFolders, InChinaEachListedFolderTakesTheCategorySuffix)
{
    const auto paths =
        FolderPaths(Listing(true, {Entry("/Nuvora/a", "Directory"), Entry("/Nuvora/b", "Directory")}),
                    kHarassmentFolders);
    EXPECT_EQ(paths, (std::vector<std::string>{"/Nuvora/a/sysdata", "/Nuvora/b/sysdata"}));
}

TEST(CategoryFolders, AbroadTheListedFoldersAreTheDataAsNamed)
{
    const auto paths = FolderPaths(Listing(false, {Entry("/RecordBackup/x", "Directory")}), kRecorderFolders);
    EXPECT_EQ(paths, (std::vector<std::string>{"/RecordBackup/x"}));
}

TEST(CategoryFolders, AbsentEntriesAreSkipped)
{
    const auto paths =
        FolderPaths(Listing(true, {nullptr, Entry("/Nuvora/r", "Directory")}), kRecorderFolders);
    EXPECT_EQ(paths, (std::vector<std::string>{"/Nuvora/r/media/recording"}));
}

TEST(CategoryFolders, AFailedOrEmptyListingGivesNoFolders)
{
    EXPECT_TRUE(FolderPaths(CategoryListing{true, nullptr}, kHarassmentFolders).empty());
    EXPECT_TRUE(
        FolderPaths(CategoryListing{true, std::make_shared<NSPFilesResponse>()}, kHarassmentFolders).empty());
    EXPECT_TRUE(FolderPaths(Listing(false, {}), kHarassmentFolders).empty());
}

TEST(CategoryFolders, AHarassmentRecordIsAFileNamedPhonemanagerInAnyCase)
{
    EXPECT_TRUE(IsHarassmentRecord(Entry("/BlockedBackup/x/PhoneManager_1.db", "File")));
    EXPECT_TRUE(IsHarassmentRecord(Entry("phonemanager", "File")));
    EXPECT_FALSE(IsHarassmentRecord(Entry("/BlockedBackup/x/PhoneManager", "Directory")));
    EXPECT_FALSE(IsHarassmentRecord(Entry("/BlockedBackup/x/calls.db", "File")));
    EXPECT_FALSE(IsHarassmentRecord(Entry("phonemanager.db", "file"))) << "the type is compared exactly";
    EXPECT_FALSE(IsHarassmentRecord(nullptr));
}
