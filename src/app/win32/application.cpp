#include "app/win32/application.h"

#include "app/options_model.h"
#include "app/settings_file.h"
#include "app/win32/frm_option.h"
#include "network/name_resolution.h"

namespace app {
namespace {

// Timer2 disconnects the marked sessions; its interval is the form's own choice.
constexpr int kTimer2Interval = 1000;

}  // namespace

Application::~Application() = default;

int Application::Run() {
    StartupServices services{m_instance, m_files, m_profile, m_dialogs, m_system};
    if (RunStartup(m_program, services, *this) != StartupOutcome::Running) return 0;
    MSG message;
    BOOL got;
    while ((got = GetMessageW(&message, nullptr, 0, 0)) != 0 && got != -1) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return got == -1 ? 1 : static_cast<int>(message.wParam);
}

// --- Start-up

void Application::LoadMainWindow(const std::string& caption) {
    // The main window reads the settings again when it loads.
    SettingsFile(m_program.folder, m_files, m_profile, m_dialogs).Read(m_program.settings);
    m_model = std::make_unique<mainwindow::MainWindowModel>(
        m_program, mainwindow::MainWindowModel::Services{m_files, m_clock, m_pump, m_dialogs});
    m_frmMain = std::make_unique<mainwindow::FrmMain>(*m_model);
    m_frmDemo = std::make_unique<controls::DemoWindow>();
    m_trayIcon = std::make_unique<platform::win32::TrayIcon>(m_frmMain->Handle());
    m_views = std::make_unique<MonitorViews>(*m_model, *m_frmMain, *m_frmDemo);
    m_guard = std::make_unique<SessionGuard>(
        m_program, SessionGuard::Window{m_views->mainMonitor, m_views->sessions, m_views->traffic},
        SessionGuard::Services{m_net, m_clientLookup, m_beeper, m_pump, m_clock});
    m_monitoring = std::make_unique<MonitoringCycle>(
        m_program,
        MonitoringCycle::Window{m_views->mainMonitor, m_views->sessions, m_views->traffic, m_views->switches,
                                m_views->alerts},
        m_clock, m_ipHelper, *m_trayIcon, *m_guard);
    m_commands = std::make_unique<ProgramCommands>(m_program, m_views->mainMonitor, *m_monitoring, m_dialogs,
                                                   *m_trayIcon, m_clock);
    m_pages = std::make_unique<TabPages>(*m_model, SharedServices{m_dialogs, m_files, m_pump, m_ipHelper, m_winsock,
                                                                  *m_frmMain, m_program, m_frmDemo->Form()});
    m_menus = std::make_unique<HelpAndTrayMenus>(*m_model, *m_frmMain, *m_trayIcon, m_dialogs);
    m_tools = std::make_unique<ToolCommands>(*m_model, m_frmMain->Handle(),
                                             ToolServices{m_dialogs, m_instance, m_profile, m_program.folder});
    WireMainWindow();
    m_monitoring->LoadInterfaces();
    if (const auto local = network::LocalAddressText(m_winsock)) m_model->SetPanelText(1, *local);
    m_model->SetCaption(caption);
}

void Application::WireMainWindow() {
    using mainwindow::FormTimer;
    using mainwindow::MenuItem;
    m_model->SetCommands({
        [this] { m_monitoring->StartCommand(); },
        [this] { m_monitoring->StopMonitoring(); },
        [this] { m_commands->ClearMainMonitor(); },
        [this] {
            if (m_commands->Exit([this] { m_model->Unload(); })) EndProgram();
        },
    });
    m_model->SetTimerInterval(FormTimer::Timer2, kTimer2Interval);
    m_model->SetTimerEnabled(FormTimer::Timer2, false);  // the monitoring switches it
    m_model->SetTimerHandler(FormTimer::Timer1, [this] { m_monitoring->Timer1Tick(); });
    m_model->SetTimerHandler(FormTimer::Timer2, [this] { m_monitoring->Timer2Tick(); });
    m_model->SetMenuHandler(MenuItem::mnuSetForm, [this] { OpenOptions(); });
    m_frmMain->OnWindowsSessionEnding([this] { m_commands->WindowsSessionEnding(); });
    // Closing the main window ends the program as unloading it always did: monitoring stops
    // and the tray icon goes, without the exit command's question and save.
    m_frmMain->OnClose([this] {
        m_monitoring->StopMonitoring();
        m_trayIcon->Remove();
        EndProgram();
    });
}

void Application::OpenOptions() {
    OptionsModel options(m_program, m_files, m_profile, m_dialogs, m_monitoring->InterfaceTexts());
    FrmOption dialog(options, [this] {
        m_model->SetPanelText(4, IntervalPanelText(m_program.settings));
        m_model->SetListColours(static_cast<base::Colour>(m_program.settings.Backcolor()),
                                static_cast<base::Colour>(m_program.settings.Fontcolor()));
    });
    dialog.ShowModal(m_frmMain->Handle());
}

void Application::EndProgram() {
    // Called from inside the main window's own handlers: the window goes away with the
    // application object, after the message loop has ended.
    m_model->SetVisible(false);
    PostQuitMessage(0);
}

void Application::AddMainMonitorRow(const std::string& text) { m_model->AddMonitorRow(text); }
void Application::SetComputerNameText(const std::string& name) { m_model->SetComputerNameText(name); }
void Application::ShowMainWindow() { m_model->SetVisible(true); }
void Application::StartMonitoring() { m_monitoring->StartMonitoring(); }
void Application::SetStatusPanel(int panel, const std::string& text) { m_model->SetPanelText(panel, text); }

}  // namespace app
