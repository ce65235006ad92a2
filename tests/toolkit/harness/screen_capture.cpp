#include "harness/screen_capture.h"

#include <cairo.h>

#include <fstream>
#include <sstream>

namespace uitest {

namespace {

std::string ReadFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::stringstream content;
    content << in.rdbuf();
    return content.str();
}

std::uint32_t BigEndian32(const std::string& data, std::size_t offset)
{
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value = (value << 8) | static_cast<unsigned char>(data[offset + i]);
    return value;
}

} // namespace

bool ReadXwd(const std::string& path, Screen& screen)
{
    const std::string data = ReadFile(path);
    if (data.size() < 100)
        return false;
    const std::uint32_t headerSize = BigEndian32(data, 0);
    const std::uint32_t format = BigEndian32(data, 8);
    const std::uint32_t byteOrder = BigEndian32(data, 28);
    const std::uint32_t bitsPerPixel = BigEndian32(data, 44);
    const std::uint32_t bytesPerLine = BigEndian32(data, 48);
    const std::uint32_t colours = BigEndian32(data, 76);
    screen.width = static_cast<int>(BigEndian32(data, 16));
    screen.height = static_cast<int>(BigEndian32(data, 20));
    // Packed 24-bit pixels (lines padded) or 32-bit ones.
    if (format != 2 || (bitsPerPixel != 24 && bitsPerPixel != 32) || screen.width <= 0)
        return false;
    const std::size_t bytesPerPixel = bitsPerPixel / 8;
    const std::size_t start = headerSize + colours * 12u;
    if (data.size() < start + static_cast<std::size_t>(bytesPerLine) * screen.height)
        return false;
    screen.pixels.resize(static_cast<std::size_t>(screen.width) * screen.height);
    for (int y = 0; y < screen.height; ++y) {
        for (int x = 0; x < screen.width; ++x) {
            const std::size_t at = start + static_cast<std::size_t>(y) * bytesPerLine +
                                   static_cast<std::size_t>(x) * bytesPerPixel;
            const auto b = [&](std::size_t i) {
                return static_cast<std::uint32_t>(static_cast<unsigned char>(data[at + i]));
            };
            screen.pixels[static_cast<std::size_t>(y) * screen.width + x] =
                byteOrder == 0 ? (b(2) << 16 | b(1) << 8 | b(0))
                               : (bytesPerPixel == 4 ? (b(1) << 16 | b(2) << 8 | b(3))
                                                     : (b(0) << 16 | b(1) << 8 | b(2)));
        }
    }
    return true;
}

bool WritePng(const Screen& screen, const std::string& path)
{
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, screen.width, screen.height);
    unsigned char* data = cairo_image_surface_get_data(surface);
    const int stride = cairo_image_surface_get_stride(surface);
    for (int y = 0; y < screen.height; ++y) {
        for (int x = 0; x < screen.width; ++x) {
            *reinterpret_cast<std::uint32_t*>(data + y * stride + x * 4) = screen.At(x, y);
        }
    }
    cairo_surface_mark_dirty(surface);
    const bool ok = cairo_surface_write_to_png(surface, path.c_str()) == CAIRO_STATUS_SUCCESS;
    cairo_surface_destroy(surface);
    return ok;
}

} // namespace uitest
