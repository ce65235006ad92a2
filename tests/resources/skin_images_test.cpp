#include <gtest/gtest.h>

#include <cairo.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "toolkit/render/images.h"

namespace fs = std::filesystem;

namespace {

const fs::path kSkinFolder = fs::path(SPACEMGM_SOURCE_DIR) / "Res" / "skin" / "SpaceMgm";

// The row icons, one per category, as the window's row templates name them.
const std::vector<std::string> kRowIcons = {"wifi.svg",        "callRecord.svg",     "browser.svg",
                                            "mms.svg",         "calendar.svg",       "contacts.svg",
                                            "cloudBackup.svg", "gallery.svg",        "cloudDisk.svg",
                                            "notes.svg",       "soundRecording.svg", "harassmentFilter.svg"};

// The title icon and the pictures of the loading, empty and failed pages.
const std::vector<std::string> kWindowImages = {"logo.svg", "loading.svg", "empty.svg", "offline.svg"};

std::vector<fs::path> SvgFilesInSkinFolder()
{
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(kSkinFolder)) {
        if (entry.is_regular_file() && entry.path().extension() == ".svg")
            files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

// Draws an image into a transparent ARGB canvas of the given size and keeps
// the pixels for probing.
class Canvas
{
public:
    Canvas(const DuiLib::Image& image, int size)
        : size_(size), surface_(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, size, size))
    {
        cairo_t* cr = cairo_create(surface_);
        image.Draw(cr, 0, 0, size, size, 1.0);
        cairo_destroy(cr);
        cairo_surface_flush(surface_);
    }
    ~Canvas() { cairo_surface_destroy(surface_); }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    // Premultiplied ARGB of one pixel.
    uint32_t Pixel(int x, int y) const
    {
        const unsigned char* row =
            cairo_image_surface_get_data(surface_) + y * cairo_image_surface_get_stride(surface_);
        return reinterpret_cast<const uint32_t*>(row)[x];
    }
    static int Alpha(uint32_t argb) { return static_cast<int>(argb >> 24); }

    int CountOpaque() const
    {
        int count = 0;
        for (int y = 0; y < size_; ++y)
            for (int x = 0; x < size_; ++x)
                count += Alpha(Pixel(x, y)) >= 128 ? 1 : 0;
        return count;
    }
    int CountNearWhite() const
    {
        int count = 0;
        for (int y = 0; y < size_; ++y) {
            for (int x = 0; x < size_; ++x) {
                const uint32_t p = Pixel(x, y);
                const bool white = Alpha(p) == 255 && ((p >> 16) & 0xFF) > 235 && ((p >> 8) & 0xFF) > 235 &&
                                   (p & 0xFF) > 235;
                count += white ? 1 : 0;
            }
        }
        return count;
    }

private:
    int size_;
    cairo_surface_t* surface_;
};

} // namespace

TEST(SkinImages, EveryImageTheWindowNamesIsInTheSkinFolder)
{
    for (const auto& name : kRowIcons)
        EXPECT_TRUE(fs::is_regular_file(kSkinFolder / name)) << (kSkinFolder / name);
    for (const auto& name : kWindowImages)
        EXPECT_TRUE(fs::is_regular_file(kSkinFolder / name)) << (kSkinFolder / name);
}

TEST(SkinImages, EverySvgInTheSkinFolderLoadsWithANonEmptySize)
{
    const auto files = SvgFilesInSkinFolder();
    ASSERT_GE(files.size(), kRowIcons.size() + kWindowImages.size()) << kSkinFolder;
    for (const auto& file : files) {
        const auto image = DuiLib::Image::Load(file.string());
        if (image == nullptr) {
            ADD_FAILURE() << file << " does not load";
            continue;
        }
        EXPECT_GT(image->width(), 0) << file;
        EXPECT_GT(image->height(), 0) << file;
    }
}

TEST(SkinImages, EverySvgInTheSkinFolderDrawsVisiblePixels)
{
    for (const auto& file : SvgFilesInSkinFolder()) {
        const auto image = DuiLib::Image::Load(file.string());
        if (image == nullptr) {
            ADD_FAILURE() << file << " does not load";
            continue;
        }
        const Canvas canvas(*image, 64);
        // Even the airiest illustration covers a tenth of its box.
        EXPECT_GT(canvas.CountOpaque(), 64 * 64 / 10) << file << " draws almost nothing";
    }
}

TEST(SkinImages, RowIconsShareOneSquareSize)
{
    const auto first = DuiLib::Image::Load((kSkinFolder / kRowIcons.front()).string());
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->width(), first->height());
    for (const auto& name : kRowIcons) {
        const auto image = DuiLib::Image::Load((kSkinFolder / name).string());
        if (image == nullptr) {
            ADD_FAILURE() << name << " does not load";
            continue;
        }
        EXPECT_EQ(image->width(), first->width()) << name;
        EXPECT_EQ(image->height(), first->height()) << name;
    }
}

TEST(SkinImages, RowIconsAreRoundedColourTilesWithAWhiteGlyph)
{
    constexpr int kSize = 64;
    for (const auto& name : kRowIcons) {
        const auto image = DuiLib::Image::Load((kSkinFolder / name).string());
        if (image == nullptr) {
            ADD_FAILURE() << name << " does not load";
            continue;
        }
        const Canvas canvas(*image, kSize);
        EXPECT_EQ(Canvas::Alpha(canvas.Pixel(0, 0)), 0) << name << ": the corner is not rounded";
        const uint32_t edge = canvas.Pixel(kSize / 2, 1);
        EXPECT_EQ(Canvas::Alpha(edge), 255) << name << ": the tile does not fill its box";
        EXPECT_LT(std::min({(edge >> 16) & 0xFF, (edge >> 8) & 0xFF, edge & 0xFF}), 200u)
            << name << ": the tile is not coloured";
        EXPECT_GT(canvas.CountNearWhite(), kSize * kSize / 20) << name << ": no white glyph";
    }
}

TEST(SkinImages, LoaderRejectsAnSvgThatIsNotWellFormed)
{
    const fs::path broken = fs::path(testing::TempDir()) / "skin_images_broken.svg";
    {
        std::ofstream out(broken);
        out << R"(<svg xmlns="http://www.w3.org/2000/svg" width="40" height="40" viewBox="0 0 40 40"><rect)";
    }
    EXPECT_EQ(DuiLib::Image::Load(broken.string()), nullptr);
    fs::remove(broken);
}
