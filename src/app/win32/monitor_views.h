#pragma once
// The main window as the monitoring sees it: one small adapter per job over the main window's
// model, its two graphs and frmDemo.
#include "app/monitor_window.h"
#include "controls/win32/demo_window.h"
#include "mainwindow/main_window_model.h"
#include "mainwindow/win32/frm_main.h"

namespace app {

class MainMonitorView final : public IMainMonitor {
public:
    explicit MainMonitorView(mainwindow::MainWindowModel& model) : m_model(model) {}
    base::TableModel& Rows() override { return m_model.List(mainwindow::ListId::lstvMain); }
    bool Save() override { return m_model.SaveMainMonitor(); }
    void SaveBeforeSessionEnd() override { m_model.SaveMainMonitorBeforeSessionEnd(); }

private:
    mainwindow::MainWindowModel& m_model;
};

class SessionWindowView final : public ISessionWindow {
public:
    explicit SessionWindowView(mainwindow::MainWindowModel& model) : m_model(model) {}
    base::TableModel& SessionList() override { return m_model.List(mainwindow::ListId::ListView1); }
    base::TableModel& DisconnectList() override { return m_model.List(mainwindow::ListId::ListView2); }
    const std::string& ComputerNameText() override { return m_model.ComputerNameText(); }
    void SetServerPanel(const std::string& text) override { m_model.SetPanelText(2, text); }

private:
    mainwindow::MainWindowModel& m_model;
};

class TrafficView final : public ITrafficDisplay {
public:
    TrafficView(mainwindow::MainWindowModel& model, mainwindow::FrmMain& frmMain) : m_model(model), m_frmMain(frmMain) {}
    const std::string& InterfaceText() override { return m_model.InterfaceLabel(); }
    void SetInterfaceText(const std::string& text) override { m_model.SetInterfaceLabel(text); }
    const std::string& Label(int index) override { return m_model.TrafficLabel(index); }
    void SetLabel(int index, const std::string& text) override { m_model.SetTrafficLabel(index, text); }
    void FeedGraph(int index, float value) override { m_frmMain.Graph(index).setValue(value); }

private:
    mainwindow::MainWindowModel& m_model;
    mainwindow::FrmMain& m_frmMain;
};

class MonitoringSwitchesView final : public IMonitoringSwitches {
public:
    explicit MonitoringSwitchesView(mainwindow::MainWindowModel& model) : m_model(model) {}
    void SetMonitoringTimers(bool enabled, unsigned timer1IntervalMs) override;
    void SetDisconnectTimer(bool enabled) override;
    void SetRunButtons(bool running) override;

private:
    mainwindow::MainWindowModel& m_model;
};

class DemoAlerts final : public IAlerts {
public:
    explicit DemoAlerts(controls::DemoWindow& frmDemo) : m_frmDemo(frmDemo) {}
    void Raise(const std::string& text) override;

private:
    controls::DemoWindow& m_frmDemo;
};

// All of them, made with the main window.
struct MonitorViews {
    MonitorViews(mainwindow::MainWindowModel& model, mainwindow::FrmMain& frmMain, controls::DemoWindow& frmDemo)
        : mainMonitor(model), sessions(model), traffic(model, frmMain), switches(model), alerts(frmDemo) {}

    MainMonitorView mainMonitor;
    SessionWindowView sessions;
    TrafficView traffic;
    MonitoringSwitchesView switches;
    DemoAlerts alerts;
};

}  // namespace app
