#include "app/win32/tab_pages.h"

#include "platform/win32/input_box.h"
#include "processes/app_editor.h"
#include "processes/win32/frm_app.h"

namespace app {

using mainwindow::FormTimer;
using mainwindow::ListId;
using mainwindow::MenuItem;

TabPages::TabPages(mainwindow::MainWindowModel& model, SharedServices services)
    : m_taskIcons(services.frmMain.ListHandle(ListId::lstvTask)),
      m_processList(model, m_processes, m_taskIcons, services.dialogs),
      m_processCommands(model, m_processes, {services.files, m_imageHelp, services.pump, services.dialogs}),
      m_startupIcons(services.frmMain.ListHandle(ListId::lstvStartup)),
      m_startup(m_registry, m_startupIcons, model.List(ListId::lstvStartup),
                [&model] { model.AutomaticLog(logs::LogKind::Startup); }),
      m_connections(services.dialogs, services.ipHelper, model.List(ListId::lstvAddPort),
                    [&model] { model.AutomaticLog(logs::LogKind::Netstat); }),
      m_neighbourhood(services.dialogs, m_wnet, services.winsock, services.ipHelper, model.List(ListId::lstvPc)),
      m_applicationIcons(services.frmMain.ListHandle(ListId::lstvProcess)),
      m_appAlert(services.frmDemo),
      m_appList(services.files, m_programSettings, services.program.folder),
      m_allowedApplications(m_appList, m_appAlert),
      m_applications(model, services.program, m_allowedApplications,
                     {m_native, services.dialogs, services.pump, m_applicationIcons}),
      m_services(services) {
    model.SetTabPage(2, m_processList);
    model.SetTabPage(3, m_applications);
    model.SetTabPage(4, m_startup);
    model.SetTabPage(5, m_connections);
    model.SetTabPage(6, m_neighbourhood);
    // tmrADDPORT, the NETSTAT tab's timer, counts the applications' ports instead of refreshing its list.
    model.SetTimerHandler(FormTimer::tmrADDPORT, [this] { m_applications.ShowEntryCount(); });
    model.SetMenuHandler(MenuItem::mnuAppEdit, [this] { OpenAppEditor(); });
    model.SetMenuHandler(MenuItem::mnuTouroku, [this, &model] {
        const base::TableModel& list = model.List(ListId::lstvProcess);
        if (const auto row = list.SelectedRow()) {
            processes::RegisterApplication(m_allowedApplications, m_services.dialogs, list.Cell(*row, 0));
        }
    });
}

void TabPages::OpenAppEditor() {
    platform::win32::InputBox input(m_services.frmMain.Handle());
    processes::AppEditor editor(m_appList, m_allowedApplications, input);
    processes::FrmApp(editor).ShowModal(m_services.frmMain.Handle());
}

}  // namespace app
