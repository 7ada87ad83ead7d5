#include "app/win32/tool_commands.h"

#include "network/machine_panel.h"
#include "network/win32/frm_machine.h"
#include "platform/win32/http_client.h"
#include "system/startup_registration.h"

namespace app {

using mainwindow::MenuItem;

ToolCommands::ToolCommands(mainwindow::MainWindowModel& model, HWND mainWindow, ToolServices services)
    : m_model(model), m_mainWindow(mainWindow), m_services(services) {
    model.SetMenuHandler(MenuItem::mnuVESKARTOOLZ, [this] { OpenMachinePanel(); });
    model.SetMenuHandler(MenuItem::mnuSUpTouroku, [this] {
        // A renamed copy registers under its own name.
        system_items::mnuSUpTouroku_Click(m_services.dialogs, m_startupFolder,
                                          {m_services.instance.ExecutableFolder(), m_services.instance.ExecutableName()});
    });
}

void ToolCommands::OpenMachinePanel() {
    // The request of a fetch under way ends with the panel: its answer is dropped.
    platform::win32::HttpClient http;
    network::MachinePanel panel(network::EchoAddress(m_services.profile, m_services.programFolder + "setting.ini"),
                                m_model.ComputerNameText(), {http, m_messenger, m_services.dialogs});
    network::FrmMachine window(panel);
    window.ShowModal(m_mainWindow);
}

}  // namespace app
