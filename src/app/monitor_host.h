#pragma once
// What the monitoring cycle and the session guard do to the main window and its helpers.
// The composition root implements it over frmMain, its model, frmDemo and the log writers.
#include <cstddef>
#include <string>

#include "base/table_model.h"

namespace app {

class IMonitorHost {
public:
    virtual ~IMonitorHost() = default;

    // lstvMain, the main monitor.
    virtual base::TableModel& MainMonitor() = 0;
    // The hidden working tables: ListView1 (this tick's sessions: machine, user) and
    // ListView2 (the clients to disconnect: the client name in the first sub-item).
    virtual base::TableModel& SessionList() = 0;
    virtual base::TableModel& DisconnectList() = 0;

    // The texts live as long as the window; a tick reads them without copying.
    virtual const std::string& ComputerNameText() = 0;
    virtual const std::string& SelectedInterfaceText() = 0;
    virtual void SetSelectedInterfaceText(const std::string& text) = 0;
    // The two traffic labels: 0 received, 1 sent.
    virtual const std::string& TrafficLabel(int index) = 0;
    virtual void SetTrafficLabel(int index, const std::string& text) = 0;
    // setValue of the received (0) or sent (1) graph.
    virtual void FeedGraph(int index, float value) = 0;
    virtual void SetStatusPanel(int panel, const std::string& text) = 0;

    // Timer1 at the given interval (0 leaves it idle).
    virtual void SetMonitoringTimers(bool enabled, unsigned timer1IntervalMs) = 0;
    // Timer2, which disconnects the marked sessions.
    virtual void SetDisconnectTimer(bool enabled) = 0;
    // Toolbar: while running the start button is off and the stop button on.
    virtual void SetRunButtons(bool running) = 0;

    // frmDemo: Text1 := text, then Command1_Click (a four-second square alert).
    virtual void RaiseAlert(const std::string& text) = 0;
    // Writes lstvMain to the next free main-monitor log file.
    virtual void SaveMainMonitor() = 0;
    // The program's message pump.
    virtual void DoEvents() = 0;
};

}  // namespace app
