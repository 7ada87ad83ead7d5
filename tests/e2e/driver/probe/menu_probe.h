#pragma once
// What the driver and lookout_probe.dll exchange. A window's menu can be read only inside the process
// that owns it under Wine (menu handles are not shared across processes there), so the driver loads
// the probe into the target and runs LookoutReadMenu on a thread of its own there; the request and
// the answer live in memory the driver allocated in the target.
#include <windows.h>

#include <cstdint>

namespace probe {

inline constexpr const char* kReadMenuExport = "LookoutReadMenu";
inline constexpr std::uint32_t kMaxMenuItems = 1024;
inline constexpr std::uint32_t kMaxCaption = 256;

enum class MenuStatus : std::uint32_t { kOk = 0, kNoMenu = 1, kTooManyItems = 2, kReadFailed = 3 };

struct MenuItem {
    std::uint32_t depth;  // 0 for the menu bar's own items
    std::uint32_t id;
    std::uint32_t type;   // MENUITEMINFO fType
    std::uint32_t state;  // MENUITEMINFO fState
    std::uint32_t hasSubmenu;
    wchar_t caption[kMaxCaption];
};

struct MenuRequest {
    HWND window;  // in
    MenuStatus status;
    std::uint32_t count;
    MenuItem items[kMaxMenuItems];
};

}  // namespace probe
