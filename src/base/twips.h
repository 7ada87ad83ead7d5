#pragma once
// Sizes and positions are given in twips (1/1440 inch); the screen has a whole number of
// twips per pixel in each axis (15 at 96 DPI, 10 at 144 DPI).
#include <cmath>

namespace base {

struct TwipsPerPixel {
    int x = 15;
    int y = 15;
};

inline TwipsPerPixel TwipsPerPixelForDpi(int dpiX, int dpiY) {
    return {dpiX > 0 ? 1440 / dpiX : 15, dpiY > 0 ? 1440 / dpiY : 15};
}

inline int TwipsToPixels(double twips, int twipsPerPixel) {
    return static_cast<int>(std::lround(twips / twipsPerPixel));
}

inline double PixelsToTwips(int pixels, int twipsPerPixel) { return static_cast<double>(pixels) * twipsPerPixel; }

}  // namespace base
