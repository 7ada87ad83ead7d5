#pragma once
// Colours are 0x00BBGGRR; values from 0x80000000 on name a system colour by its index.
#include <cstdint>

namespace base {

using Colour = std::uint32_t;

constexpr Colour Rgb(int red, int green, int blue) {
    return static_cast<Colour>((red & 0xFF) | ((green & 0xFF) << 8) | ((blue & 0xFF) << 16));
}

constexpr Colour kButtonFace = 0x8000000F;
constexpr Colour kWhite = Rgb(255, 255, 255);
constexpr Colour kBlack = Rgb(0, 0, 0);

constexpr bool IsSystemColour(Colour colour) { return (colour & 0x80000000u) != 0; }
constexpr int SystemColourIndex(Colour colour) { return static_cast<int>(colour & 0xFFu); }

constexpr int RedOf(Colour colour) { return static_cast<int>(colour & 0xFF); }
constexpr int GreenOf(Colour colour) { return static_cast<int>((colour >> 8) & 0xFF); }
constexpr int BlueOf(Colour colour) { return static_cast<int>((colour >> 16) & 0xFF); }

}  // namespace base
