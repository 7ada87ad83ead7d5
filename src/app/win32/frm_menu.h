#pragma once
// frmMENU: the tray icon's pop-up menu over a TrayMenu. The menu's commands reach the main
// window as WM_COMMAND and come back through OnCommand.
#include <windows.h>

#include "app/tray_menu.h"
#include "base/win32/unique_resource.h"

namespace app {

class FrmMenu {
public:
    FrmMenu(TrayMenu& menu, HWND mainWindow);

    // A mouse message of the tray icon.
    void OnTrayMouse(int message);
    // A command of the tray menu; other commands are not its own and are ignored.
    void OnCommand(int id);

private:
    void PopUp();

    TrayMenu& m_menu;
    HWND m_mainWindow;
    base::UniqueMenu m_popup;
};

}  // namespace app
