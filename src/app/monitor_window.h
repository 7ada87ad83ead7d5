#pragma once
// What the monitoring cycle, the session guard and the exit commands do to the main window, one
// small interface per job; adapters over the main window implement them.
#include <string>

#include "base/table_model.h"

namespace app {

// lstvMain, the main monitor, and its save to the next free main-monitor log file.
class IMainMonitor {
public:
    virtual ~IMainMonitor() = default;
    virtual base::TableModel& Rows() = 0;
    // False when nothing was written: another save of it was under way.
    virtual bool Save() = 0;
    // The save when the Windows session ends: it also finishes a save under way.
    virtual void SaveBeforeSessionEnd() = 0;
};

// The traffic display: the selected-interface label, the two traffic labels (0 received, 1 sent)
// and the two graphs. The texts live as long as the window.
class ITrafficDisplay {
public:
    virtual ~ITrafficDisplay() = default;
    virtual const std::string& InterfaceText() = 0;
    virtual void SetInterfaceText(const std::string& text) = 0;
    virtual const std::string& Label(int index) = 0;
    virtual void SetLabel(int index, const std::string& text) = 0;
    // setValue of the received (0) or sent (1) graph.
    virtual void FeedGraph(int index, float value) = 0;
};

// What the session guard works on: the hidden working tables ListView1 (this tick's sessions:
// machine, user) and ListView2 (the clients to disconnect: user, client), the computer-name box
// that names the server, and the status panel that shows it.
class ISessionWindow {
public:
    virtual ~ISessionWindow() = default;
    virtual base::TableModel& SessionList() = 0;
    virtual base::TableModel& DisconnectList() = 0;
    virtual const std::string& ComputerNameText() = 0;
    virtual void SetServerPanel(const std::string& text) = 0;
};

// The monitoring's switches: Timer1 at an interval (0 leaves it idle), Timer2, which
// disconnects the marked sessions, and the toolbar's run and stop buttons.
class IMonitoringSwitches {
public:
    virtual ~IMonitoringSwitches() = default;
    virtual void SetMonitoringTimers(bool enabled, unsigned timer1IntervalMs) = 0;
    virtual void SetDisconnectTimer(bool enabled) = 0;
    // While running the start button is off and the stop button on.
    virtual void SetRunButtons(bool running) = 0;
};

// frmDemo: Text1 := text, then Command1_Click (a four-second square alert).
class IAlerts {
public:
    virtual ~IAlerts() = default;
    virtual void Raise(const std::string& text) = 0;
};

}  // namespace app
