#pragma once
// Monitoring: start and stop, and the Timer1 tick that samples one interface's octet
// counters, feeds the two graphs, runs the session guard, writes the traffic row, raises
// the session alert and keeps the tray icon up to date.
#include <vector>

#include "app/monitor_window.h"
#include "app/program.h"
#include "app/session_guard.h"
#include "platform/clock.h"
#include "platform/iphelper.h"
#include "platform/shell.h"

namespace app {

class MonitoringCycle {
public:
    // The parts of the main window the monitoring works on.
    struct Window {
        IMainMonitor& mainMonitor;
        ISessionWindow& sessions;
        ITrafficDisplay& traffic;
        IMonitoringSwitches& switches;
        IAlerts& alerts;
    };
    MonitoringCycle(Program& program, Window window, platform::IClock& clock, platform::IIpHelper& ipHelper,
                    platform::ITrayIcon& trayIcon, SessionGuard& guard);

    // When the main window loads: reads the interface table, keeps a copy, and sets the
    // selected-interface label (the last row's text, then the setting "nc" if there is one).
    void LoadInterfaces();
    const std::vector<std::string>& InterfaceTexts() const { return m_interfaceTexts; }

    // The toolbar's "run" button.
    void StartCommand();
    // Start-up with "start" = 1 calls this directly.
    void StartMonitoring();
    // The toolbar's "stop" button, and the end of the program.
    void StopMonitoring();
    void Timer1Tick();
    void Timer2Tick() { m_guard.DisconnectMarked(); }
    // Shows the current icon and tip when they differ from what the tray shows.
    void UpdateTrayIcon();

private:
    void SampleTraffic();
    void SampleSide(std::uint32_t counter, std::string& now, std::string& delta, std::string& before, int side);
    void MonitoringStep();
    // Timer2 runs while monitoring is on and a session is marked: a tick over an empty
    // disconnection list would only wake the program.
    void UpdateDisconnectTimer();
    // The traffic row of a tick that received something.
    void AddTrafficRow(const std::string& received);
    // One alert per session when the number of sessions has changed.
    void AnnounceSessions();
    unsigned Timer1Interval() const;
    std::string IconPath(const std::string& iconFile) const;

    Program& m_program;
    Window m_window;
    platform::IClock& m_clock;
    platform::IIpHelper& m_ipHelper;
    platform::ITrayIcon& m_trayIcon;
    SessionGuard& m_guard;
    std::vector<platform::InterfaceRow> m_interfaces;
    std::vector<std::string> m_interfaceTexts;
    std::size_t m_announcedSessions = 0;
    std::string m_shownTip;
};

}  // namespace app
