#include "app/program_commands.h"

#include "base/local_time.h"
#include "base/product.h"

namespace app {
namespace {

bool Confirmed(platform::IDialogs& dialogs, const char* question) {
    return dialogs.ShowMessage(question, base::kProductName, platform::msgbox::kYesNo | platform::msgbox::kQuestion) ==
           platform::msgbox::kYes;
}

}  // namespace

ProgramCommands::ProgramCommands(Program& program, IMainMonitor& mainMonitor, MonitoringCycle& monitoring,
                                 platform::IDialogs& dialogs, platform::ITrayIcon& trayIcon, platform::IClock& clock)
    : m_program(program), m_mainMonitor(mainMonitor), m_monitoring(monitoring), m_dialogs(dialogs), m_trayIcon(trayIcon),
      m_clock(clock) {}

bool ProgramCommands::Exit(const std::function<void()>& unloadMainWindow) {
    if (!Confirmed(m_dialogs, "終了してもよろしいですか？")) return false;
    // Unloading the main window: it goes from the screen and monitoring stops, before the save
    // pumps messages for a while.
    unloadMainWindow();
    m_monitoring.StopMonitoring();
    // Only 0 skips the save here, unlike at the end of the session, where only 1 saves.
    if (m_program.settings.logflag != 0) m_mainMonitor.Save();
    m_trayIcon.Remove();
    return true;
}

void ProgramCommands::WindowsSessionEnding() {
    if (m_program.settings.logflag != 1) return;
    m_mainMonitor.Rows().AddRow({base::MonitorStamp(m_clock.Now()) + "Windowsが終了されました。"});
    m_mainMonitor.SaveBeforeSessionEnd();
}

void ProgramCommands::ClearMainMonitor() {
    if (!Confirmed(m_dialogs, "メインモニタをクリアしてもよろしいですか？")) return;
    base::TableModel& monitor = m_mainMonitor.Rows();
    monitor.Clear();
    monitor.AddRow({base::kBanner});
}

}  // namespace app
