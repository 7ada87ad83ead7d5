#include "app/win32/help_and_tray_menus.h"

#include "mainwindow/about_box.h"
#include "mainwindow/maker_web_site.h"
#include "mainwindow/win32/frm_about.h"
#include "platform/win32/program_version.h"

namespace app {

HelpAndTrayMenus::HelpAndTrayMenus(mainwindow::MainWindowModel& model, mainwindow::FrmMain& frmMain,
                                   platform::win32::TrayIcon& trayIcon, platform::IDialogs& dialogs)
    : m_frmMain(frmMain),
      m_dialogs(dialogs),
      m_trayMenu(model, m_recentDocuments),
      m_frmMenu(m_trayMenu, frmMain.Handle()) {
    using mainwindow::MenuItem;
    model.SetMenuHandler(MenuItem::mnuVER, [this] { ShowAbout(); });
    model.SetMenuHandler(MenuItem::mnuVESKARWEBSITE, [this] { OpenWebSite(); });
    frmMain.OnMouseMove([this](int x) { m_frmMenu.OnTrayMouse(x); });
    frmMain.OnOtherCommand([this](int id) { m_frmMenu.OnCommand(id); });
    frmMain.OnTaskbarCreated([&trayIcon] { trayIcon.ShowAgain(); });
}

void HelpAndTrayMenus::ShowAbout() {
    mainwindow::FrmAbout about(mainwindow::MakeAboutTexts(platform::win32::ReadProgramVersion()),
                               [this] { OpenWebSite(); });
    about.ShowModal(m_frmMain.Handle());
}

void HelpAndTrayMenus::OpenWebSite() { mainwindow::OpenMakerWebSite(m_browser, m_dialogs); }

}  // namespace app
