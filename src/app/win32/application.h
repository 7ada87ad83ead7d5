#pragma once
// The composition root: the real OS services, the program state, the windows and the
// monitoring, wired together. It is what start-up and the monitoring cycle act on.
#include <memory>

#include "app/monitoring_cycle.h"
#include "app/program.h"
#include "app/program_commands.h"
#include "app/session_guard.h"
#include "app/win32/help_and_tray_menus.h"
#include "app/startup.h"
#include "app/win32/monitor_views.h"
#include "app/win32/tab_pages.h"
#include "app/win32/tool_commands.h"
#include "app/winsock_client_lookup.h"
#include "controls/win32/demo_window.h"
#include "mainwindow/main_window_model.h"
#include "mainwindow/win32/frm_main.h"
#include "platform/win32/beeper.h"
#include "platform/win32/clock.h"
#include "platform/win32/dialogs.h"
#include "platform/win32/file_system.h"
#include "platform/win32/instance.h"
#include "platform/win32/ip_helper.h"
#include "platform/win32/message_pump.h"
#include "platform/win32/net_api.h"
#include "platform/win32/profile.h"
#include "platform/win32/system_info.h"
#include "platform/win32/tray_icon.h"
#include "platform/win32/winsock.h"

namespace app {

class Application final : public IStartupHost {
public:
    Application() = default;
    ~Application() override;
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    // Start-up, then the message loop; returns the exit code.
    int Run();

private:
    // IStartupHost
    void LoadMainWindow(const std::string& caption) override;
    void AddMainMonitorRow(const std::string& text) override;
    void SetComputerNameText(const std::string& name) override;
    void ShowMainWindow() override;
    void StartMonitoring() override;
    void SetStatusPanel(int panel, const std::string& text) override;

    void WireMainWindow();
    void OpenOptions();
    void EndProgram();

    platform::win32::FileSystem m_files;
    platform::win32::Profile m_profile;
    platform::win32::Dialogs m_dialogs;
    platform::win32::Clock m_clock;
    platform::win32::MessagePump m_pump;
    platform::win32::SystemInfo m_system;
    platform::win32::Instance m_instance;
    platform::win32::IpHelper m_ipHelper;
    platform::win32::Winsock m_winsock;
    platform::win32::NetApi m_net;
    platform::win32::Beeper m_beeper;

    Program m_program;
    WinsockClientLookup m_clientLookup{m_winsock, m_dialogs};
    std::unique_ptr<mainwindow::MainWindowModel> m_model;
    std::unique_ptr<mainwindow::FrmMain> m_frmMain;
    std::unique_ptr<controls::DemoWindow> m_frmDemo;
    std::unique_ptr<MonitorViews> m_views;
    std::unique_ptr<platform::win32::TrayIcon> m_trayIcon;
    std::unique_ptr<SessionGuard> m_guard;
    std::unique_ptr<MonitoringCycle> m_monitoring;
    std::unique_ptr<ProgramCommands> m_commands;
    std::unique_ptr<TabPages> m_pages;
    std::unique_ptr<HelpAndTrayMenus> m_menus;
    std::unique_ptr<ToolCommands> m_tools;
};

}  // namespace app
