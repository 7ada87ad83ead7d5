#include "controls/win32/screen.h"

#include "base/win32/unique_resource.h"

namespace controls {

base::TwipsPerPixel ScreenTwipsPerPixel() noexcept {
    const base::WindowDc screen(nullptr);
    if (!screen.Get()) return {};
    return base::TwipsPerPixelForDpi(GetDeviceCaps(screen.Get(), LOGPIXELSX), GetDeviceCaps(screen.Get(), LOGPIXELSY));
}

RECT WorkArea() noexcept {
    RECT area{};
    if (!SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0)) {
        area = {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    }
    return area;
}

int ScreenHeightPixels() noexcept { return GetSystemMetrics(SM_CYSCREEN); }

}  // namespace controls
