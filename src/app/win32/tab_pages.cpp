#include "app/win32/tab_pages.h"

#include "mainwindow/win32/virtual_list_view.h"
#include "platform/win32/input_box.h"
#include "processes/app_editor.h"
#include "processes/win32/frm_app.h"

namespace app {

using mainwindow::FormTimer;
using mainwindow::ListId;
using mainwindow::MenuItem;

TabPages::TabPages(mainwindow::MainWindowModel& model, SharedServices services)
    : m_services(services),
      m_neighbourhood(services.dialogs, m_wnet, services.winsock, services.ipHelper, model.List(ListId::lstvPc)),
      m_applicationIcons(services.frmMain.ListHandle(ListId::lstvProcess)),
      m_appAlert(services.frmDemo),
      m_appList(services.files, m_programSettings, services.program.folder),
      m_allowedApplications(m_appList, m_appAlert),
      m_applications(model, services.program, m_allowedApplications,
                     {m_native, services.dialogs, services.pump, m_applicationIcons}) {
    model.SetTabPage(3, m_applications);
    model.SetTabPage(6, m_neighbourhood);
    model.SetTimerHandler(FormTimer::tmrADDPORT, [this] { m_applications.ShowEntryCount(); });
    model.SetMenuHandler(MenuItem::mnuAppEdit, [this] { OpenAppEditor(); });
    model.SetMenuHandler(MenuItem::mnuTouroku, [this, &model] {
        const auto row = mainwindow::SelectedRow(m_services.frmMain.ListHandle(ListId::lstvProcess));
        const base::TableModel& list = model.List(ListId::lstvProcess);
        if (row && *row < list.RowCount()) {
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
