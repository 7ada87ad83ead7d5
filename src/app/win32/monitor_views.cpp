#include "app/win32/monitor_views.h"

#include <algorithm>

namespace app {

void MonitoringSwitchesView::SetMonitoringTimers(bool enabled, unsigned timer1IntervalMs) {
    using mainwindow::FormTimer;
    m_model.SetTimerInterval(FormTimer::Timer1, static_cast<int>(std::min(timer1IntervalMs, 0x7FFFFFFFu)));
    m_model.SetTimerEnabled(FormTimer::Timer1, enabled);
}

void MonitoringSwitchesView::SetDisconnectTimer(bool enabled) {
    m_model.SetTimerEnabled(mainwindow::FormTimer::Timer2, enabled);
}

void MonitoringSwitchesView::SetRunButtons(bool running) {
    m_model.SetButtonEnabled("run", !running);
    m_model.SetButtonEnabled("stop", running);
}

void DemoAlerts::Raise(const std::string& text) {
    m_frmDemo.Form().SetText1(text);
    m_frmDemo.Form().Command1Click();
}

}  // namespace app
