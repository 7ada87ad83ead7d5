#include "mainwindow/win32/main_menu.h"

#include <vector>

#include "base/win32/fatal_error.h"
#include "base/win32/wide.h"

namespace mainwindow {
namespace {

HMENU CheckedMenu(HMENU menu) {
    if (!menu) base::FatalSystemError(L"CreateMenu");
    return menu;
}

void Append(HMENU parent, const MenuEntry& entry, HMENU submenu) {
    const std::wstring caption = base::Widen(entry.caption);
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_ID | MIIM_FTYPE;
    info.wID = static_cast<UINT>(MenuCommand(entry.item));
    if (IsSeparator(entry)) {
        info.fType = MFT_SEPARATOR;
    } else {
        info.fMask |= MIIM_STRING;
        info.fType = MFT_STRING;
        info.dwTypeData = const_cast<wchar_t*>(caption.c_str());
    }
    if (submenu) {
        info.fMask |= MIIM_SUBMENU;
        info.hSubMenu = submenu;
    }
    if (!InsertMenuItemW(parent, static_cast<UINT>(GetMenuItemCount(parent)), TRUE, &info)) {
        base::FatalSystemError(L"InsertMenuItem");
    }
}

// Appends the entries from `at` on that lie deeper than `depth` to menu; returns where the
// next entry of this depth or higher starts.
std::size_t Fill(HMENU menu, std::span<const MenuEntry> entries, std::size_t at, int depth) {
    while (at < entries.size() && entries[at].depth > depth) {
        const MenuEntry& entry = entries[at++];
        HMENU submenu = nullptr;
        if (at < entries.size() && entries[at].depth > entry.depth) {
            submenu = CheckedMenu(CreatePopupMenu());
            at = Fill(submenu, entries, at, entry.depth);
        }
        Append(menu, entry, submenu);
    }
    return at;
}

}  // namespace

HMENU CreateMainMenuBar() {
    HMENU bar = CheckedMenu(CreateMenu());
    Fill(bar, MenuBar(), 0, -1);
    return bar;
}

base::UniqueMenu CreateListPopupMenu() {
    // "menu" itself is never shown: its items are the pop-up.
    base::UniqueMenu popup(CheckedMenu(CreatePopupMenu()));
    Fill(popup.Get(), ListPopupMenu(), 1, 0);
    return popup;
}

void ApplyMenuState(HMENU menu, MenuItem item, bool enabled, bool checked) {
    const auto command = static_cast<UINT>(MenuCommand(item));
    EnableMenuItem(menu, command, MF_BYCOMMAND | (enabled ? MF_ENABLED : MF_GRAYED));
    CheckMenuItem(menu, command, MF_BYCOMMAND | (checked ? MF_CHECKED : MF_UNCHECKED));
}

}  // namespace mainwindow
