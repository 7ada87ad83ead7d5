#pragma once
// frmMENU, the menu of the tray icon, and what the mouse on the tray icon does. Its items that
// the main window's menu bar has too run the same menu item of the main window, so one handler
// serves both menus.
#include <optional>
#include <span>

#include "mainwindow/main_window_model.h"
#include "platform/shell.h"

namespace app {

enum class TrayMenuItem { mnuOpen, mnuUti, mnuTodayFileKill, mnuEnd, mnuVer, mnuweb };

struct TrayMenuEntry {
    TrayMenuItem item;
    const char* caption;
    bool separatorBefore;
};

std::span<const TrayMenuEntry> TrayMenuEntries();

// Window command identifiers of the tray menu's items.
inline constexpr int kFirstTrayMenuCommand = 2000;
inline int TrayMenuCommand(TrayMenuItem item) { return kFirstTrayMenuCommand + static_cast<int>(item); }
std::optional<TrayMenuItem> TrayMenuItemOfCommand(int command);

// The tray icon reports its mouse as mouse movement over the main window, the mouse message
// in the horizontal coordinate.
inline constexpr int kTrayDoubleClick = 515;  // left button double-click
inline constexpr int kTrayRightUp = 517;      // right button released

class TrayMenu {
public:
    TrayMenu(mainwindow::MainWindowModel& mainWindow, platform::IRecentDocuments& recentDocuments)
        : m_mainWindow(mainWindow), m_recentDocuments(recentDocuments) {}

    // A mouse message of the tray icon: a double-click shows the main window at its standard
    // size; true when the menu is to pop up, which a right click asks for only while the main
    // window is hidden. Other messages are ignored.
    bool Mouse(int message, bool mainWindowVisible);
    void Click(TrayMenuItem item);

private:
    mainwindow::MainWindowModel& m_mainWindow;
    platform::IRecentDocuments& m_recentDocuments;
};

}  // namespace app
