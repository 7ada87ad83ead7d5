#pragma once
#include <windows.h>

namespace controls {

// A line in the pen selected into dc, its end point included as the runtime's Line method
// draws it (LineTo alone stops one pixel short).
inline void DrawLine(HDC dc, int x1, int y1, int x2, int y2, COLORREF colour) {
    MoveToEx(dc, x1, y1, nullptr);
    LineTo(dc, x2, y2);
    SetPixelV(dc, x2, y2, colour);
}

}  // namespace controls
