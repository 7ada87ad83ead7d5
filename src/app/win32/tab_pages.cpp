#include "app/win32/tab_pages.h"

namespace app {

using mainwindow::ListId;

TabPages::TabPages(mainwindow::MainWindowModel& model, SharedServices services)
    : m_taskIcons(services.frmMain.ListHandle(ListId::lstvTask)),
      m_processList(model, m_processes, m_taskIcons, services.dialogs),
      m_processCommands(model, m_processes, {services.files, m_imageHelp, services.pump, services.dialogs}),
      m_startupIcons(services.frmMain.ListHandle(ListId::lstvStartup)),
      m_startup(m_registry, m_startupIcons, model.List(ListId::lstvStartup),
                [&model] { model.AutomaticLog(logs::LogKind::Startup); }),
      m_connections(services.dialogs, services.ipHelper, model.List(ListId::lstvAddPort),
                    [&model] { model.AutomaticLog(logs::LogKind::Netstat); }),
      m_neighbourhood(services.dialogs, m_wnet, services.winsock, services.ipHelper, model.List(ListId::lstvPc)) {
    model.SetTabPage(2, m_processList);
    model.SetTabPage(4, m_startup);
    model.SetTabPage(5, m_connections);
    model.SetTabPage(6, m_neighbourhood);
}

}  // namespace app
