#pragma once
// The buttons of Toolbar1, in order: the key that decides what a click does, the tool tip, and
// a 16 x 16 picture.
#include <array>
#include <cstdint>
#include <span>

namespace mainwindow {

inline constexpr int kToolbarImageSize = 16;
// One pixel per entry, rows from the top: 0xAARRGGBB, alpha 0 where the button shows through.
using ToolbarImage = std::array<std::uint32_t, kToolbarImageSize * kToolbarImageSize>;

struct ToolbarButton {
    const char* key;
    const char* toolTip;
    bool groupEnd;  // a separator follows
};

std::span<const ToolbarButton> ToolbarButtons();
ToolbarImage ToolbarButtonImage(std::size_t button);

// Window command identifiers of the buttons.
inline constexpr int kFirstToolbarCommand = 900;

}  // namespace mainwindow
