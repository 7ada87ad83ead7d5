#pragma once
// The commands that end the program or clear its log: the exit command (toolbar and menu),
// the end of the Windows session, and the clearing of the main monitor.
#include <functional>

#include "app/monitor_window.h"
#include "app/monitoring_cycle.h"
#include "app/program.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/shell.h"

namespace app {

class ProgramCommands {
public:
    ProgramCommands(Program& program, IMainMonitor& mainMonitor, MonitoringCycle& monitoring, platform::IDialogs& dialogs,
                    platform::ITrayIcon& trayIcon, platform::IClock& clock);

    // Asks for confirmation; on Yes unloads the main window (hides it and stops monitoring),
    // saves the main monitor when "logflag" is 1 and removes the tray icon. True when the
    // program is to end.
    bool Exit(const std::function<void()>& hideMainWindow);
    // Windows ends the session: with "logflag" 1 the main monitor gets its last row and is saved.
    // During another save of the main monitor, that save writes the row.
    void WindowsSessionEnding();
    // Clears the main monitor after confirmation; it starts again with the banner row.
    void ClearMainMonitor();

private:
    Program& m_program;
    IMainMonitor& m_mainMonitor;
    MonitoringCycle& m_monitoring;
    platform::IDialogs& m_dialogs;
    platform::ITrayIcon& m_trayIcon;
    platform::IClock& m_clock;
    bool m_sessionEnding = false;
};

}  // namespace app
