#pragma once
// The menus of frmMain built from the menu tree: the menu bar, and the lists' pop-up menu.
// Every item, submenus and separators included, carries MenuCommand(item) as its identifier,
// so that any of them can be found, enabled or checked by command.
#include <windows.h>

#include "base/win32/unique_resource.h"
#include "mainwindow/menu_tree.h"

namespace mainwindow {

// The menu bar; the window it is given to destroys it.
HMENU CreateMainMenuBar();
// The items of the hidden "menu", as a pop-up menu to show with TrackPopupMenu.
base::UniqueMenu CreateListPopupMenu();

void ApplyMenuState(HMENU menu, MenuItem item, bool enabled, bool checked);

}  // namespace mainwindow
