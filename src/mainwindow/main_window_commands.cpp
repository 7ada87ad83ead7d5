// The commands of frmMain: the tab switch, the refresh command, the menu items and the
// toolbar buttons it handles itself, and the logs of its lists.
#include <algorithm>

#include "base/product.h"
#include "base/reentry_guard.h"
#include "mainwindow/list_columns.h"
#include "mainwindow/main_window_model.h"
#include "mainwindow/toolbar_buttons.h"

namespace mainwindow {

void MainWindowModel::SetTabPage(int tab, ITabPage& page) {
    Tab(tab);  // checks the index
    m_pages[static_cast<std::size_t>(tab - 1)] = &page;
}

void MainWindowModel::RunRefresh(int tab, const char* errorText, bool fromTimer) {
    ITabPage* page = m_pages[static_cast<std::size_t>(tab - 1)];
    if (!page) return;
    const bool ok = fromTimer ? page->TimerRefresh() : page->Refresh();
    if (!ok && errorText) m_dialogs.ShowMessage(errorText, base::kProductName, platform::msgbox::kOkOnly);
}

void MainWindowModel::ShowCountOf(int tab) {
    const TabInfo& info = Tab(tab);
    SetPanelText(5, info.countLabel + std::to_string(List(info.list).RowCount()));
}

void MainWindowModel::ApplyMenuStateOf(int tab) {
    const std::optional<logs::LogKind> shownKind = Tab(tab).logKind;
    SetMenuEnabled(MenuItem::mnuFMain, tab == 1);
    for (const logs::LogKind kind : logs::kLogKinds) {
        SetMenuEnabled(AppendSaveItem(kind), shownKind == kind);
        SetMenuEnabled(TemporarySaveItem(kind), shownKind == kind);
    }
    if (tab == 3) SetMenuEnabled(MenuItem::mnuTouroku, true);
}

void MainWindowModel::ClickTab(int tab) {
    const TabInfo& info = Tab(tab);
    m_selectedTab = tab;
    // There is no automatic log of the network neighbourhood.
    if (Store(m_autoLogEnabled, tab != 6)) Notify(Change::AutoLog);
    // A second click while a refresh pumps messages is ignored, and so is a click on the tab
    // already shown, except the main monitor's, which always runs.
    if (m_busy || (tab != 1 && tab == m_currentTab)) return;
    m_busy = true;
    for (const FormTimer timer : kTabTimers) {
        if (info.timer != timer) SetTimerInterval(timer, 0);
    }
    RunRefresh(tab, info.switchErrorText);
    if (Store(m_shownList, info.list)) Notify(Change::ShownList);
    ShowCountOf(tab);
    if (info.timer) SetTimerInterval(*info.timer, info.timerInterval);
    ApplyMenuStateOf(tab);
    m_currentTab = tab;
    m_busy = false;
}

void MainWindowModel::RefreshCurrentTab() {
    if (m_selectedTab != m_currentTab) return;
    RunRefresh(m_currentTab, Tab(m_currentTab).refreshErrorText);
    ShowCountOf(m_currentTab);
}

logs::ListRows MainWindowModel::RowsOf(logs::LogKind kind) const {
    const ListId list = Tab(TabOfLogKind(kind)).list;
    return {List(list), Columns(list).size()};
}

void MainWindowModel::AutomaticLog(logs::LogKind kind) { m_logs.AutomaticLog(kind, RowsOf(kind), m_autoLogChecked); }

void MainWindowModel::MenuClick(MenuItem item) {
    if (!MenuEnabled(item)) return;
    for (const logs::LogKind kind : logs::kLogKinds) {
        if (item == AppendSaveItem(kind)) return m_logs.AppendSave(kind, RowsOf(kind));
        if (item == TemporarySaveItem(kind)) return m_logs.TemporarySave(kind, RowsOf(kind));
    }
    switch (item) {
        case MenuItem::mnuFMain: return SaveMainMonitorAs();
        case MenuItem::mnuUPDATE: return RefreshCurrentTab();
        case MenuItem::mnuEND:
            if (m_commands.exit) m_commands.exit();
            return;
        case MenuItem::mnuFRONT: return ToggleAlwaysOnTop();
        case MenuItem::mnuGRID: return ToggleGridLines();
        case MenuItem::mnuITEM_HABA: return Notify(Change::ColumnWidths);
        default: break;
    }
    if (const auto& handler = m_menus[Index(item)].handler) handler();
}

// Not kept in the settings: every start begins without grid lines.
void MainWindowModel::ToggleGridLines() {
    SetMenuChecked(MenuItem::mnuGRID, !MenuChecked(MenuItem::mnuGRID));
    Notify(Change::ListStyle);
}

// A minimised window only changes the check mark; the window follows at the next toggle.
void MainWindowModel::ToggleAlwaysOnTop() {
    SetMenuChecked(MenuItem::mnuFRONT, !MenuChecked(MenuItem::mnuFRONT));
    if (!m_minimised) SetAlwaysOnTop(MenuChecked(MenuItem::mnuFRONT));
}

void MainWindowModel::SaveMainMonitor() {
    const base::ReentryGuard saving(m_savingMainMonitor);
    if (saving.First()) m_logs.SaveMainMonitor(List(ListId::lstvMain));
}

void MainWindowModel::ToolbarClick(std::string_view key) {
    const auto call = [](const std::function<void()>& command) {
        if (command) command();
    };
    const auto buttons = ToolbarButtons();
    if (std::none_of(buttons.begin(), buttons.end(), [&](const auto& b) { return key == b.key; })) return;
    if (!ButtonEnabled(key)) return;
    if (key == "save") SaveMainMonitorAs();
    else if (key == "clear") call(m_commands.clearMainMonitor);
    else if (key == "run") call(m_commands.startMonitoring);
    else if (key == "stop") call(m_commands.stopMonitoring);
    else if (key == "exit") call(m_commands.exit);
}

}  // namespace mainwindow
