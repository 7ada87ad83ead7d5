#pragma once
// What the controls ask of the screen: twips per pixel, the work area and the screen's height.
#include <windows.h>

#include "base/twips.h"

namespace controls {

base::TwipsPerPixel ScreenTwipsPerPixel() noexcept;
// The desktop's work area in pixels (the screen less the taskbar).
RECT WorkArea() noexcept;
int ScreenHeightPixels() noexcept;

}  // namespace controls
