#pragma once
// A screen captured with `xwd -root` under Xvfb, for pixel probes in smoke
// tests of real SDL2 windows.
#include <cstdint>
#include <string>
#include <vector>

namespace uitest {

struct Screen
{
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels; // 0x00RRGGBB
    std::uint32_t At(int x, int y) const { return pixels[static_cast<std::size_t>(y) * width + x]; }
};

// Reads the 24/32-bit ZPixmap dump that `xwd -root` writes; false if the
// file is missing or of another kind.
bool ReadXwd(const std::string& path, Screen& screen);
// Saves it as a PNG, to look at after a failure.
bool WritePng(const Screen& screen, const std::string& path);

} // namespace uitest
