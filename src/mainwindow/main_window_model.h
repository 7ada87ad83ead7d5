#pragma once
// What frmMain shows and does, without a screen: the caption, the computer-name box, the
// status-bar panels, the rows of every list view, the shown tab, the form's timers, the state
// of the menu items and toolbar buttons, the automatic-log check box and the traffic band.
//
// Portable code changes the window only through this model; the view (FrmMain) registers as
// its IMainWindowView, is told what changed and reads the new state back. Constructing the
// model is the form's load, so the settings must have been read by then. The list rows live
// in base::TableModel objects, one per list view, that the view shows as virtual lists.
//
// The tabs plug in their lists through SetTabPage, the monitoring and exit through SetCommands
// and SetTimerHandler, the remaining menu items through SetMenuHandler; what nobody plugged in
// does nothing.
#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "app/program.h"
#include "base/colour.h"
#include "base/table_model.h"
#include "logs/log_writer.h"
#include "mainwindow/menu_tree.h"
#include "mainwindow/tab_page.h"
#include "mainwindow/tabs.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/message_pump.h"

namespace mainwindow {

enum class Change {
    Caption,
    ComputerName,
    Panel,          // index: panel 1 to 5
    Visible,
    ShownList,
    Timer,          // index: FormTimer
    MenuItem,       // index: MenuItem
    AutoLog,        // enabled or checked state of cheAutoLogApp
    ToolbarButton,  // index: the button's position
    TrafficLabel,   // index: 0 received, 1 sent
    InterfaceLabel,
    ListColours,
    AlwaysOnTop,
    ListStyle,      // the extended style of the six tab lists (grid lines)
    ColumnWidths,   // the reset widths of ResetColumnWidths() are to be applied
    ShowNormal,     // shown at the standard size, neither minimised nor maximised
};

// The extended list-view styles the tab lists get: full-row selection, with or without grid lines.
namespace list_style {
constexpr unsigned kGridLines = 0x01;
constexpr unsigned kFullRowSelect = 0x20;
}  // namespace list_style

class IMainWindowView {
public:
    virtual ~IMainWindowView() = default;
    virtual void OnChanged(Change what, int index) = 0;
};

// What the toolbar and the exit item call outside this window.
struct MainCommands {
    std::function<void()> startMonitoring;   // toolbar "run"
    std::function<void()> stopMonitoring;    // toolbar "stop"
    std::function<void()> clearMainMonitor;  // toolbar "clear"
    std::function<void()> exit;              // toolbar "exit" and the exit menu item
};

class MainWindowModel {
public:
    struct Services {
        platform::IFileSystem& files;
        platform::IClock& clock;
        platform::IMessagePump& pump;
        platform::IDialogs& dialogs;
    };

    // The form's load: status panels, stopped tab timers, the menu state of the main-monitor
    // tab, the always-on-top choice and the list colours from the settings.
    MainWindowModel(const app::Program& program, Services services);
    MainWindowModel(const MainWindowModel&) = delete;
    MainWindowModel& operator=(const MainWindowModel&) = delete;

    void SetView(IMainWindowView* view) { m_view = view; }

    // --- Texts and visibility.
    const std::string& Caption() const { return m_caption; }
    void SetCaption(std::string text);
    const std::string& ComputerNameText() const { return m_computerName; }
    void SetComputerNameText(std::string text);
    // Panels 1 to 5 of stbStatus.
    const std::string& PanelText(int panel) const;
    void SetPanelText(int panel, std::string text);
    bool Visible() const { return m_visible; }
    void SetVisible(bool visible);
    // The form's unload as the program ends: it leaves the screen and its tab timers stop, so
    // that nothing runs from it while the exit's save pumps messages.
    void Unload();
    bool Closing() const { return m_closing; }
    // Shows the window at its standard size, restoring it when it is minimised or maximised.
    void ShowNormal();
    // The traffic figures: 0 received, 1 sent.
    const std::string& TrafficLabel(int index) const;
    void SetTrafficLabel(int index, std::string text);
    const std::string& InterfaceLabel() const { return m_interfaceLabel; }
    void SetInterfaceLabel(std::string text);
    base::Colour ListBackColour() const { return m_backColour; }
    base::Colour ListTextColour() const { return m_textColour; }
    void SetListColours(base::Colour back, base::Colour text);
    bool AlwaysOnTop() const { return m_alwaysOnTop; }
    // The extended style of the six tab lists: grid lines while "グリッド線を表示する(&G)" is checked.
    unsigned TabListStyle() const;
    void SetAlwaysOnTop(bool onTop);
    // Kept up to date by the view.
    bool Minimised() const { return m_minimised; }
    void SetMinimised(bool minimised) { m_minimised = minimised; }

    // --- Lists.
    base::TableModel& List(ListId list) { return m_lists[ListIndex(list)]; }
    const base::TableModel& List(ListId list) const { return m_lists[ListIndex(list)]; }
    void AddMonitorRow(std::string text) { List(ListId::lstvMain).AddRow({std::move(text)}); }
    // The list view shown in the tab area.
    ListId ShownList() const { return m_shownList; }

    // --- Tabs.
    int CurrentTab() const { return m_currentTab; }    // 0 until a tab was handled
    int SelectedTab() const { return m_selectedTab; }  // the tab strip's selection
    bool Busy() const { return m_busy; }
    // The page that fills the tab's list; it must outlive the model's use of it.
    void SetTabPage(int tab, ITabPage& page);
    // A click on a tab of TabStrip1 (which selects it).
    void ClickTab(int tab);
    // "最新の情報に更新(&R)".
    void RefreshCurrentTab();
    // Panel 5: the tab's count label and its list's row count.
    void ShowCountOf(int tab);

    // --- Timers: an interval of 0 or a disabled timer does not run.
    int TimerInterval(FormTimer timer) const { return m_timers[TimerIndex(timer)].interval; }
    bool TimerEnabled(FormTimer timer) const { return m_timers[TimerIndex(timer)].enabled; }
    bool TimerRunning(FormTimer timer) const { return TimerEnabled(timer) && TimerInterval(timer) > 0; }
    void SetTimerInterval(FormTimer timer, int milliseconds);
    void SetTimerEnabled(FormTimer timer, bool enabled);
    // A timer with a handler runs it; a tab's timer without one refreshes its tab's page while
    // that tab is selected.
    void SetTimerHandler(FormTimer timer, std::function<void()> handler);
    void TimerTick(FormTimer timer);

    // --- Menus.
    bool MenuEnabled(MenuItem item) const { return m_menus[Index(item)].enabled; }
    bool MenuChecked(MenuItem item) const { return m_menus[Index(item)].checked; }
    void SetMenuEnabled(MenuItem item, bool enabled);
    void SetMenuChecked(MenuItem item, bool checked);
    // Behaviour of the items this window does not handle itself.
    void SetMenuHandler(MenuItem item, std::function<void()> handler);
    // A disabled item cannot be clicked.
    void MenuClick(MenuItem item);

    // --- Toolbar: buttons by position in ToolbarButtons(), clicks by key.
    bool ButtonEnabled(std::string_view key) const;
    void SetButtonEnabled(std::string_view key, bool enabled);
    void SetCommands(MainCommands commands) { m_commands = std::move(commands); }
    // A disabled button cannot be clicked; an unknown key does nothing.
    void ToolbarClick(std::string_view key);

    // --- cheAutoLogApp, the switch of the automatic logs.
    bool AutoLogEnabled() const { return m_autoLogEnabled; }
    bool AutoLogChecked() const { return m_autoLogChecked; }
    void SetAutoLogChecked(bool checked);

    // --- Logs of this window's lists.
    // Writes the kind's list to its automatic log if cheAutoLogApp is checked.
    void AutomaticLog(logs::LogKind kind);
    // Writes the main monitor to the next free YYYYMMDD-N.txt; asked again while it pumps
    // messages, it writes nothing and answers false.
    bool SaveMainMonitor();
    // The same when the Windows session ends: a main-monitor save under way is finished at once
    // with every row, so there is one file, complete when the process is ended.
    void SaveMainMonitorBeforeSessionEnd();
    void SaveMainMonitorAs() { m_logs.SaveMainMonitorAs(List(ListId::lstvMain), m_dialogs); }
    logs::LogWriter& Logs() { return m_logs; }

private:
    struct TimerState {
        bool enabled = true;
        int interval = 0;
        std::function<void()> handler;
    };
    struct MenuState {
        bool enabled = true;
        bool checked = false;
        std::function<void()> handler;
    };

    static int Index(MenuItem item) { return static_cast<int>(item); }
    // Assigns and reports whether anything changed, so that the view hears only of real changes.
    template <typename T>
    static bool Store(T& target, T value) {
        if (target == value) return false;
        target = std::move(value);
        return true;
    }
    void Notify(Change what, int index = 0) const;
    // Runs a tab's refresh (or its timer's); on failure shows errorText when there is one.
    void RunRefresh(int tab, const char* errorText, bool fromTimer = false);
    void ApplyMenuStateOf(int tab);
    void ToggleGridLines();
    void ToggleAlwaysOnTop();
    logs::ListRows RowsOf(logs::LogKind kind) const;

    IMainWindowView* m_view = nullptr;
    platform::IDialogs& m_dialogs;
    logs::LogWriter m_logs;

    std::string m_caption;
    std::string m_computerName;
    std::array<std::string, 5> m_panels;
    bool m_visible = false;
    bool m_closing = false;
    std::array<std::string, 2> m_trafficLabels;
    std::string m_interfaceLabel;
    base::Colour m_backColour;
    base::Colour m_textColour;
    bool m_alwaysOnTop;
    bool m_minimised = false;

    std::array<base::TableModel, kListCount> m_lists;
    ListId m_shownList = ListId::lstvMain;

    int m_currentTab = 0;
    int m_selectedTab = 1;
    bool m_busy = false;
    std::array<ITabPage*, kTabCount> m_pages{};

    std::array<TimerState, kTimerCount> m_timers;
    std::array<MenuState, kMenuItemCount> m_menus;
    std::vector<bool> m_buttonsEnabled;
    MainCommands m_commands;

    bool m_autoLogEnabled = true;
    bool m_autoLogChecked = false;
};

}  // namespace mainwindow
