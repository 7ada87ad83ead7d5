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
    m_guard = std::make_unique<SessionGuard>(m_program, *this, m_net, m_clientLookup, m_beeper, m_clock);
    m_monitoring =
        std::make_unique<MonitoringCycle>(m_program, *this, m_clock, m_ipHelper, *m_trayIcon, *m_guard);
    m_commands =
        std::make_unique<ProgramCommands>(m_program, *this, *m_monitoring, m_dialogs, *m_trayIcon, m_clock);
    m_pages = std::make_unique<TabPages>(*m_model, SharedServices{m_dialogs, m_files, m_pump, m_ipHelper, m_winsock, *m_frmMain});
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
            if (m_commands->Exit()) EndProgram();
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
    ShowWindow(m_frmMain->Handle(), SW_HIDE);
    PostQuitMessage(0);
}

void Application::AddMainMonitorRow(const std::string& text) { m_model->AddMonitorRow(text); }
void Application::SetComputerNameText(const std::string& name) { m_model->SetComputerNameText(name); }
void Application::ShowMainWindow() { m_model->SetVisible(true); }
void Application::StartMonitoring() { m_monitoring->StartMonitoring(); }
void Application::SetStatusPanel(int panel, const std::string& text) { m_model->SetPanelText(panel, text); }

// --- The monitoring cycle's view of the window

base::TableModel& Application::MainMonitor() { return m_model->List(mainwindow::ListId::lstvMain); }
base::TableModel& Application::SessionList() { return m_model->List(mainwindow::ListId::ListView1); }
base::TableModel& Application::DisconnectList() { return m_model->List(mainwindow::ListId::ListView2); }
const std::string& Application::ComputerNameText() { return m_model->ComputerNameText(); }
const std::string& Application::SelectedInterfaceText() { return m_model->InterfaceLabel(); }
void Application::SetSelectedInterfaceText(const std::string& text) { m_model->SetInterfaceLabel(text); }
const std::string& Application::TrafficLabel(int index) { return m_model->TrafficLabel(index); }
void Application::SetTrafficLabel(int index, const std::string& text) {
    m_model->SetTrafficLabel(index, text);
}
void Application::FeedGraph(int index, float value) { m_frmMain->Graph(index).setValue(value); }

void Application::SetMonitoringTimers(bool enabled, unsigned timer1IntervalMs) {
    using mainwindow::FormTimer;
    m_model->SetTimerInterval(FormTimer::Timer1, static_cast<int>(std::min(timer1IntervalMs, 0x7FFFFFFFu)));
    m_model->SetTimerEnabled(FormTimer::Timer1, enabled);
}

void Application::SetDisconnectTimer(bool enabled) {
    m_model->SetTimerEnabled(mainwindow::FormTimer::Timer2, enabled);
}

void Application::SetRunButtons(bool running) {
    m_model->SetButtonEnabled("run", !running);
    m_model->SetButtonEnabled("stop", running);
}

void Application::RaiseAlert(const std::string& text) {
    m_frmDemo->Form().SetText1(text);
    m_frmDemo->Form().Command1Click();
}

void Application::SaveMainMonitor() { m_model->SaveMainMonitor(); }
void Application::DoEvents() { m_pump.DoEvents(); }

}  // namespace app
