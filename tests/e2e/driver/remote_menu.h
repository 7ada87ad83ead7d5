#pragma once
// Reads the menu bar of a window owned by another process through lookout_probe.dll.
#include <windows.h>

#include <vector>

#include "probe/menu_probe.h"

namespace driver {

std::vector<probe::MenuItem> ReadRemoteMenu(HWND window);

}  // namespace driver
