#pragma once
// The menu bar of frmMain and its hidden pop-up menu, in order: each item's name, caption and
// depth (0 for the top level). A separator is an item captioned "-".
#include <optional>
#include <span>
#include <string_view>

#include "logs/log_kind.h"

namespace mainwindow {

enum class MenuItem {
    mnuFAILE, mnuFMain, mnulLne3, mnuTUIKASAVE, mnuFP, mnuFA, mnuFS, mnuFN, mnuFM, mnuLine4,
    mnuIS, mnuIP, mnuIA, mnuIIS, mnuIN, mnuIM, mnuLine1, mnuEND,
    mnuHYOUJI, mnuUPDATE, mnuLine, mnuFRONT, mnuGRID, mnuITEM_HABA,
    mnuTool, mnuSetForm, mnuLine5, mnuVESKARTOOLZ, mnuSUpTouroku, mnuAppEdit,
    mnuHELP, mnuVESKARWEBSITE, mnuVER,
    menu, mnuTouroku, mnuKill, mnuDepend, mnuCOPY,
};
inline constexpr int kMenuItemCount = static_cast<int>(MenuItem::mnuCOPY) + 1;

struct MenuEntry {
    MenuItem item;
    const char* name;
    const char* caption;
    int depth;
};

std::span<const MenuEntry> MenuBar();
// "menu" (caption "Menu") at depth 0 and the items the lists show as their context menu.
std::span<const MenuEntry> ListPopupMenu();

inline bool IsSeparator(const MenuEntry& entry) { return std::string_view(entry.caption) == "-"; }

// Window command identifiers of the menu items.
inline constexpr int kFirstMenuCommand = 1000;
inline int MenuCommand(MenuItem item) { return kFirstMenuCommand + static_cast<int>(item); }
std::optional<MenuItem> MenuItemOfCommand(int command);

// The save items of each log kind, under "追加保存(&K)" and "一時保存(&I)".
MenuItem AppendSaveItem(logs::LogKind kind);
MenuItem TemporarySaveItem(logs::LogKind kind);

}  // namespace mainwindow
