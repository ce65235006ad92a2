#pragma once
// Where the NSP file service keeps the backup folders of a category that is
// stored as files (recordings, harassment filter records). In China one root
// holds the folders of every category, each with its data under a suffix of
// its own; elsewhere each category has its own root, and the folders listed
// there are the data. The space road and the harassment deletion walk the
// same folders and pick the same files.
#include <memory>
#include <string>
#include <vector>

#include "request/records/nsp_records.h"

struct CategoryFolders
{
    const char* abroadRoot;
    const char* chinaSuffix;
};

inline constexpr CategoryFolders kRecorderFolders{"/RecordBackup", "/media/recording"};
inline constexpr CategoryFolders kHarassmentFolders{"/BlockedBackup", "/sysdata"};

// The listing of a category's root, and whether it was asked in China.
struct CategoryListing
{
    bool china = false;
    std::shared_ptr<NSPFilesResponse> reply;
};

// Reads the country code once and lists the category's root: one NSP request.
CategoryListing ListCategoryRoot(const std::string& token, const CategoryFolders& folders);

// True when the reply is there and lists at least one entry.
bool HasFiles(const std::shared_ptr<NSPFilesResponse>& reply);

// The folders to look into, in the listing's order; empty when the listing
// failed or named nothing. Absent entries are skipped.
std::vector<std::string> FolderPaths(const CategoryListing& listing, const CategoryFolders& folders);

// A harassment filter record: a file (not a folder) whose name holds
// "phonemanager" in any case.
bool IsHarassmentRecord(const std::shared_ptr<FolderOrFilesInfo>& entry);
