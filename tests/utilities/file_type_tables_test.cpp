#include <gtest/gtest.h>

#include <set>

#include "foundation/file_type_tables.h"
#include "foundation/utilities.h"

TEST(FileTypeTables, ListSizes)
{
    EXPECT_EQ(VideoExtensions.size(), 28u);
    EXPECT_EQ(PictureExtensions.size(), 21u);
    EXPECT_EQ(DocumentExtensions.size(), 69u);
    EXPECT_EQ(ArchiveExtensions.size(), 13u);
    EXPECT_EQ(AudioExtensions.size(), 38u);
    EXPECT_EQ(FileIconPaths.size(), 30u);
}

TEST(FileTypeTables, EndsOfEachListInOrder)
{
    EXPECT_EQ(VideoExtensions.front(), L".3gpp");
    EXPECT_EQ(VideoExtensions.back(), L".mpg");
    EXPECT_EQ(PictureExtensions.front(), L".tif");
    EXPECT_EQ(PictureExtensions.back(), L".nef");
    EXPECT_EQ(DocumentExtensions.front(), L".htm");
    EXPECT_EQ(DocumentExtensions.back(), L".ssa");
    EXPECT_EQ(ArchiveExtensions.front(), L".zip");
    EXPECT_EQ(ArchiveExtensions.back(), L".cab");
    EXPECT_EQ(AudioExtensions.front(), L".amr");
    EXPECT_EQ(AudioExtensions.back(), L".m4p");
    EXPECT_EQ(FileIconPaths.front(), L"FileIcon/folder.svg");
    EXPECT_EQ(FileIconPaths[25], L"FileIcon/xlsl.svg");
    EXPECT_EQ(FileIconPaths.back(), L"FileIcon/mutliFileLogo.svg");
}

TEST(FileTypeTables, SubtitleExtensionsStandAmongThePictures)
{
    EXPECT_EQ(PictureExtensions[17], L".sami");
    EXPECT_EQ(PictureExtensions[18], L".smi");
}

TEST(FileTypeTables, CategoryKeysInOrder)
{
    EXPECT_EQ(FileCategoryKeys, (std::vector<std::wstring>{L"folder", L"document", L"table", L"power", L"pic",
                                                           L"pdf", L"audio", L"video", L"other"}));
}

TEST(FileTypeTables, ExtensionsAreLowerCaseWithADot)
{
    for (const auto* list :
         {&VideoExtensions, &PictureExtensions, &DocumentExtensions, &ArchiveExtensions, &AudioExtensions}) {
        for (const auto& extension : *list) {
            ASSERT_FALSE(extension.empty());
            EXPECT_EQ(extension[0], L'.');
            for (wchar_t c : extension) {
                EXPECT_FALSE(c >= L'A' && c <= L'Z') << WideToUtf8(extension);
            }
        }
    }
}

TEST(MimeTypes, TellingRows)
{
    const std::pair<const char*, const char*> rows[] = {
        {".3gp", "video/3gpp"},
        {".apk", "application/vnd.android.package-archive"},
        {".arw", "image/x-sony-arw"},
        {".docx", "application/vnd.openxmlformats-officedocument.wordprocessingml.document"},
        {".heic", "image/heic"},
        {".msg", "application/vnd.ms-outlook"},
        {".pptx", "application/vnd.openxmlformats-officedocument.presentationml.presentation"},
        {".raw", "image/x-panasonic-raw"},
        {".rmvb", "audio/x-pn-realaudio"},
        {".z", "application/x-compress"},
        {".zip", "application/x-zip-compressed"},
        {".c", "text/plain"},
    };
    for (const auto& [extension, type] : rows) {
        const auto found = MimeTypes.find(extension);
        ASSERT_NE(found, MimeTypes.end()) << extension;
        EXPECT_EQ(found->second, type) << extension;
    }
}

TEST(MimeTypes, EveryListedExtensionHasAType)
{
    std::set<std::string> listed;
    for (const auto* list :
         {&VideoExtensions, &PictureExtensions, &DocumentExtensions, &ArchiveExtensions, &AudioExtensions}) {
        for (const auto& extension : *list) {
            const std::string narrow = WideToUtf8(extension);
            listed.insert(narrow);
            EXPECT_EQ(MimeTypes.count(narrow), 1u) << narrow;
        }
    }
    for (const auto& [extension, type] : MimeTypes) {
        EXPECT_EQ(listed.count(extension), 1u) << extension << " is not in any list";
        EXPECT_FALSE(type.empty());
    }
}
