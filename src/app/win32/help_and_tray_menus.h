#pragma once
// The help menu's two items (the about box and the maker's web site) and the tray icon's menu
// and mouse, wired to the main window. The tray menu's items that the menu bar has too run the
// menu bar's item, so each has one handler.
#include "app/tray_menu.h"
#include "app/win32/frm_menu.h"
#include "mainwindow/main_window_model.h"
#include "mainwindow/win32/frm_main.h"
#include "platform/dialogs.h"
#include "platform/win32/browser.h"
#include "platform/win32/recent_documents.h"
#include "platform/win32/tray_icon.h"

namespace app {

class HelpAndTrayMenus {
public:
    HelpAndTrayMenus(mainwindow::MainWindowModel& model, mainwindow::FrmMain& frmMain,
                     platform::win32::TrayIcon& trayIcon, platform::IDialogs& dialogs);
    HelpAndTrayMenus(const HelpAndTrayMenus&) = delete;
    HelpAndTrayMenus& operator=(const HelpAndTrayMenus&) = delete;

private:
    void ShowAbout();
    void OpenWebSite();

    mainwindow::FrmMain& m_frmMain;
    platform::IDialogs& m_dialogs;
    platform::win32::AutomationBrowser m_browser;
    platform::win32::RecentDocuments m_recentDocuments;
    TrayMenu m_trayMenu;
    FrmMenu m_frmMenu;
};

}  // namespace app
