#include "app/program_commands.h"

#include "base/local_time.h"
#include "base/product.h"
#include "base/reentry_guard.h"

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

bool ProgramCommands::Exit(const std::function<void()>& hideMainWindow) {
    if (!Confirmed(m_dialogs, "終了してもよろしいですか？")) return false;
    // Unloading the main window: it goes from the screen and monitoring stops, before the save
    // pumps messages for a while.
    hideMainWindow();
    m_monitoring.StopMonitoring();
    if (m_program.settings.logflag == 1) m_mainMonitor.Save();
    m_trayIcon.Remove();
    return true;
}

void ProgramCommands::WindowsSessionEnding() {
    // Asked again while its own save pumps messages, the session has ended once: one row, one file.
    const base::ReentryGuard ending(m_sessionEnding);
    if (m_program.settings.logflag != 1 || !ending.First()) return;
    m_mainMonitor.Rows().AddRow({base::MonitorStamp(m_clock.Now()) + "Windowsが終了されました。"});
    m_mainMonitor.Save();
}

void ProgramCommands::ClearMainMonitor() {
    if (!Confirmed(m_dialogs, "メインモニタをクリアしてもよろしいですか？")) return;
    base::TableModel& monitor = m_mainMonitor.Rows();
    monitor.Clear();
    monitor.AddRow({base::kBanner});
}

}  // namespace app
