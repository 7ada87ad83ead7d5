#include "mainwindow/main_window_model.h"

#include <stdexcept>

#include "app/settings.h"
#include "mainwindow/toolbar_buttons.h"

namespace mainwindow {
namespace {

std::size_t ButtonPosition(std::string_view key) {
    const auto buttons = ToolbarButtons();
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        if (key == buttons[i].key) return i;
    }
    throw std::out_of_range("toolbar key");
}

}  // namespace

MainWindowModel::MainWindowModel(const app::Program& program, Services services)
    : m_dialogs(services.dialogs),
      m_logs(program.folder, {services.files, services.clock, services.pump}),
      m_backColour(static_cast<base::Colour>(program.settings.Backcolor())),
      m_textColour(static_cast<base::Colour>(program.settings.Fontcolor())),
      m_alwaysOnTop(program.settings.front == 1),
      m_buttonsEnabled(ToolbarButtons().size(), true) {
    m_panels[3] = app::IntervalPanelText(program.settings);
    m_panels[4] = std::string(Tab(1).countLabel) + std::to_string(List(ListId::lstvMain).RowCount());
    // Only showing the applications tab enables the registration item of the pop-up menu.
    m_menus[Index(MenuItem::mnuTouroku)].enabled = false;
    ApplyMenuStateOf(1);
}

void MainWindowModel::Notify(Change what, int index) const {
    if (m_view) m_view->OnChanged(what, index);
}

void MainWindowModel::SetCaption(std::string text) {
    if (Store(m_caption, std::move(text))) Notify(Change::Caption);
}

void MainWindowModel::SetComputerNameText(std::string text) {
    if (Store(m_computerName, std::move(text))) Notify(Change::ComputerName);
}

const std::string& MainWindowModel::PanelText(int panel) const {
    return m_panels.at(static_cast<std::size_t>(panel - 1));
}

void MainWindowModel::SetPanelText(int panel, std::string text) {
    if (Store(m_panels.at(static_cast<std::size_t>(panel - 1)), std::move(text))) Notify(Change::Panel, panel);
}

void MainWindowModel::SetVisible(bool visible) {
    if (Store(m_visible, visible)) Notify(Change::Visible);
}

const std::string& MainWindowModel::TrafficLabel(int index) const {
    return m_trafficLabels.at(static_cast<std::size_t>(index));
}

void MainWindowModel::ShowNormal() {
    m_visible = true;
    Notify(Change::ShowNormal);
}

unsigned MainWindowModel::TabListStyle() const {
    return list_style::kFullRowSelect | (MenuChecked(MenuItem::mnuGRID) ? list_style::kGridLines : 0u);
}

void MainWindowModel::SetTrafficLabel(int index, std::string text) {
    if (Store(m_trafficLabels.at(static_cast<std::size_t>(index)), std::move(text))) {
        Notify(Change::TrafficLabel, index);
    }
}

void MainWindowModel::SetInterfaceLabel(std::string text) {
    if (Store(m_interfaceLabel, std::move(text))) Notify(Change::InterfaceLabel);
}

void MainWindowModel::SetListColours(base::Colour back, base::Colour text) {
    const bool changed = Store(m_backColour, back) | Store(m_textColour, text);
    if (changed) Notify(Change::ListColours);
}

void MainWindowModel::SetAlwaysOnTop(bool onTop) {
    if (Store(m_alwaysOnTop, onTop)) Notify(Change::AlwaysOnTop);
}

void MainWindowModel::SetTimerInterval(FormTimer timer, int milliseconds) {
    // Assigning an interval restarts the timer even when it is the same one.
    m_timers[TimerIndex(timer)].interval = milliseconds;
    Notify(Change::Timer, TimerIndex(timer));
}

void MainWindowModel::SetTimerEnabled(FormTimer timer, bool enabled) {
    if (Store(m_timers[TimerIndex(timer)].enabled, enabled)) Notify(Change::Timer, TimerIndex(timer));
}

void MainWindowModel::SetTimerHandler(FormTimer timer, std::function<void()> handler) {
    m_timers[TimerIndex(timer)].handler = std::move(handler);
}

void MainWindowModel::TimerTick(FormTimer timer) {
    const auto& state = m_timers[TimerIndex(timer)];
    if (!TimerRunning(timer)) return;
    if (state.handler) return state.handler();
    // A tab's timer refreshes its page only while its tab is selected, with the text of the switch.
    const TabInfo& selected = Tab(m_selectedTab);
    if (selected.timer == timer) RunRefresh(m_selectedTab, selected.switchErrorText, true);
}

void MainWindowModel::SetMenuEnabled(MenuItem item, bool enabled) {
    if (Store(m_menus[Index(item)].enabled, enabled)) Notify(Change::MenuItem, Index(item));
}

void MainWindowModel::SetMenuChecked(MenuItem item, bool checked) {
    if (Store(m_menus[Index(item)].checked, checked)) Notify(Change::MenuItem, Index(item));
}

void MainWindowModel::SetMenuHandler(MenuItem item, std::function<void()> handler) {
    m_menus[Index(item)].handler = std::move(handler);
}

bool MainWindowModel::ButtonEnabled(std::string_view key) const { return m_buttonsEnabled[ButtonPosition(key)]; }

void MainWindowModel::SetButtonEnabled(std::string_view key, bool enabled) {
    const std::size_t position = ButtonPosition(key);
    if (m_buttonsEnabled[position] == enabled) return;
    m_buttonsEnabled[position] = enabled;
    Notify(Change::ToolbarButton, static_cast<int>(position));
}

void MainWindowModel::SetAutoLogChecked(bool checked) {
    if (Store(m_autoLogChecked, checked)) Notify(Change::AutoLog);
}

}  // namespace mainwindow
