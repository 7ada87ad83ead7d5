#pragma once
#include <windows.h>

#include "base/colour.h"

namespace base {

// A program colour as GDI takes it: system colours (from 0x80000000) are looked up.
inline COLORREF ToColorRef(Colour colour) {
    return IsSystemColour(colour) ? GetSysColor(SystemColourIndex(colour)) : static_cast<COLORREF>(colour);
}

}  // namespace base
