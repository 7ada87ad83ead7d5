#include "app/monitoring_cycle.h"

#include <cstdint>

#include "app/interface_list.h"
#include "app/traffic_text.h"
#include "app/uptime.h"
#include "base/conversions.h"
#include "base/local_time.h"

namespace app {
namespace {

constexpr double kGraphClip = 100000;

}  // namespace

MonitoringCycle::MonitoringCycle(Program& program, Window window, platform::IClock& clock,
                                 platform::IIpHelper& ipHelper, platform::ITrayIcon& trayIcon, SessionGuard& guard)
    : m_program(program), m_window(window), m_clock(clock), m_ipHelper(ipHelper), m_trayIcon(trayIcon), m_guard(guard) {}

std::string MonitoringCycle::IconPath(const std::string& iconFile) const {
    return m_program.folder + iconFile;
}

unsigned MonitoringCycle::Timer1Interval() const {
    // A "time" of 0 or one that is no number gives 0, which leaves the timer idle.
    const double ms = 1000 * base::Val(m_program.settings.time);
    return ms > 0 && ms < 4294967295.0 ? static_cast<unsigned>(ms) : 0;
}

void MonitoringCycle::LoadInterfaces() {
    m_interfaces = m_ipHelper.InterfaceTable();
    m_interfaceTexts = app::InterfaceTexts(m_interfaces);
    for (const auto& text : m_interfaceTexts) m_window.traffic.SetInterfaceText(text);
    if (!m_program.settings.nc.empty()) m_window.traffic.SetInterfaceText(m_program.settings.nc);
}

void MonitoringCycle::StartCommand() {
    m_window.switches.SetMonitoringTimers(true, Timer1Interval());
    m_program.tray.shownIcon = kIconOff;
    m_program.tray.tip = MonitoringTip();
    m_trayIcon.Show(IconPath(m_program.tray.shownIcon), m_program.tray.tip);
    m_shownTip = m_program.tray.tip;
    UpdateTrayIcon();
    StartMonitoring();
}

void MonitoringCycle::StartMonitoring() {
    const std::string uptime = UptimeText(m_clock.TickCount());
    m_program.tray.tip = MonitoringTip();
    m_window.switches.SetRunButtons(true);
    m_window.mainMonitor.Rows().AddRow({base::MonitorStamp(m_clock.Now()) + " " + " 監視を開始しました。" + uptime});
    m_window.switches.SetMonitoringTimers(true, Timer1Interval());
    UpdateDisconnectTimer();
    UpdateTrayIcon();
}

void MonitoringCycle::StopMonitoring() {
    m_window.switches.SetMonitoringTimers(false, 0);
    m_window.switches.SetDisconnectTimer(false);
    // Only the received side starts afresh: the first sent delta after a restart spans the
    // whole stopped time.
    m_program.traffic.receivedDelta.clear();
    m_program.tray.currentIcon = kIconOff;
    m_program.tray.tip = StoppedTip();
    m_window.switches.SetRunButtons(false);
    m_window.mainMonitor.Rows().AddRow({base::MonitorStamp(m_clock.Now()) + " 監視を停止しました。"});
    UpdateTrayIcon();
}

void MonitoringCycle::UpdateDisconnectTimer() {
    m_window.switches.SetDisconnectTimer(m_window.sessions.DisconnectList().RowCount() > 0);
}

void MonitoringCycle::UpdateTrayIcon() {
    TrayState& tray = m_program.tray;
    if (tray.currentIcon == tray.shownIcon && tray.tip == m_shownTip) return;
    m_trayIcon.Show(IconPath(tray.currentIcon), tray.tip);
    tray.shownIcon = tray.currentIcon;
    m_shownTip = tray.tip;
}

void MonitoringCycle::Timer1Tick() {
    SampleTraffic();
    MonitoringStep();
    m_guard.LogOpenFiles();
}

void MonitoringCycle::SampleTraffic() {
    // The row is chosen by the first character of the label alone, so only rows 0 to 9 can
    // be monitored and "12: ..." selects row 1. A row the table lacks reads as a vanished
    // interface: counters 0.
    const std::string& label = m_window.traffic.InterfaceText();
    const auto position = static_cast<std::size_t>(base::Val(std::string_view(label).substr(0, 1)));
    std::optional<platform::InterfaceCounters> fresh;
    if (position < m_interfaces.size()) fresh = m_ipHelper.Counters(m_interfaces[position].index);
    const platform::InterfaceCounters counters = fresh.value_or(platform::InterfaceCounters{});
    TrafficState& t = m_program.traffic;
    SampleSide(counters.inOctets, t.receivedNow, t.receivedDelta, t.receivedBefore, 0);
    SampleSide(counters.outOctets, t.sentNow, t.sentDelta, t.sentBefore, 1);
}

void MonitoringCycle::SampleSide(std::uint32_t counter, std::string& now, std::string& delta,
                                             std::string& before, int side) {
    now = std::to_string(static_cast<std::int32_t>(counter));
    if (delta.empty()) {
        before = now;
        m_window.traffic.SetLabel(side, "0");
        delta = "0";
        return;
    }
    const double difference = base::Val(now) - base::Val(before);
    delta = base::NumberText(difference);
    m_window.traffic.SetLabel(side, delta);
    // The graphs are clipped at 100000; a negative delta (a wrapped counter) passes as it is.
    m_window.traffic.FeedGraph(side, static_cast<float>(difference < kGraphClip ? difference : kGraphClip));
    before = now;
}

void MonitoringCycle::MonitoringStep() {
    const std::int16_t sessions = m_guard.Run(m_window.sessions.ComputerNameText());
    UpdateDisconnectTimer();

    // The figure after "送信" is the received delta (label 0) and the one after "受信" the sent
    // delta (label 1), and an interval with nothing received writes no row.
    const std::string received = m_window.traffic.Label(0);
    if (m_program.settings.packet == 1 && base::Val(received) != 0) AddTrafficRow(received);
    if (m_program.settings.window == 1 && m_window.sessions.SessionList().RowCount() != m_announcedSessions) {
        AnnounceSessions();
    }

    if (sessions > 0) {
        m_program.tray.currentIcon = kIconOn;
    } else {
        m_program.tray.currentIcon = kIconOff;
        m_program.tray.tip = MonitoringTip();
    }
    UpdateTrayIcon();
}

void MonitoringCycle::AddTrafficRow(const std::string& received) {
    m_window.mainMonitor.Rows().AddRow({base::MonitorStamp(m_clock.Now()) + "  送信 : " + KilobyteFigure(received) + " KB" +
                                 "  受信 : " + KilobyteFigure(m_window.traffic.Label(1)) + " KB"});
}

void MonitoringCycle::AnnounceSessions() {
    const base::TableModel& sessions = m_window.sessions.SessionList();
    m_announcedSessions = sessions.RowCount();
    for (std::size_t row = 0; row < sessions.RowCount(); ++row) {
        m_window.alerts.Raise("[マシン名]\r\n" + sessions.Cell(row, 0) + "\r\n[ユーザ名]\r\n" + sessions.Cell(row, 1));
    }
}

}  // namespace app
