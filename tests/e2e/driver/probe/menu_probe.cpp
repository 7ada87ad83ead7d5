// lookout_probe.dll: runs inside the target process, on a thread the driver starts there.
#include "menu_probe.h"

namespace {

// Depth-first, items in menu order, each popup followed by its own items.
probe::MenuStatus Collect(HMENU menu, std::uint32_t depth, probe::MenuRequest& request) {
    const int count = GetMenuItemCount(menu);
    if (count < 0) return probe::MenuStatus::kReadFailed;
    for (int position = 0; position < count; ++position) {
        if (request.count == probe::kMaxMenuItems) return probe::MenuStatus::kTooManyItems;
        probe::MenuItem& item = request.items[request.count++];
        MENUITEMINFOW info{};
        info.cbSize = sizeof info;
        info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_SUBMENU | MIIM_STRING;
        info.dwTypeData = item.caption;
        info.cch = probe::kMaxCaption - 1;
        if (!GetMenuItemInfoW(menu, static_cast<UINT>(position), TRUE, &info)) return probe::MenuStatus::kReadFailed;
        item.depth = depth;
        item.id = info.wID;
        item.type = info.fType;
        item.state = info.fState;
        item.hasSubmenu = info.hSubMenu != nullptr;
        if (info.hSubMenu) {
            const probe::MenuStatus status = Collect(info.hSubMenu, depth + 1, request);
            if (status != probe::MenuStatus::kOk) return status;
        }
    }
    return probe::MenuStatus::kOk;
}

}  // namespace

extern "C" __declspec(dllexport) DWORD WINAPI LookoutReadMenu(void* parameter) {
    auto& request = *static_cast<probe::MenuRequest*>(parameter);
    request.count = 0;
    // A pop-up menu on the screen is a window of its own that holds the menu it shows.
    wchar_t className[16] = {};
    GetClassNameW(request.window, className, 16);
    HMENU bar = lstrcmpW(className, L"#32768") == 0
                    ? reinterpret_cast<HMENU>(SendMessageW(request.window, MN_GETHMENU, 0, 0))
                    : GetMenu(request.window);
    request.status = bar ? Collect(bar, 0, request) : probe::MenuStatus::kNoMenu;
    return 0;
}
