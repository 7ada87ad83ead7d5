#pragma once
// frmMain, the main window: Toolbar1, TabStrip1 with the six tab lists, the hidden session
// tables ListView1 and ListView2, the traffic band (computer-name box, selected interface,
// received and sent figures with their graphs), the check box cheAutoLogApp, the status bar
// stbStatus, the menu bar and the lists' pop-up menu, and the form's five timers.
//
// It is a view of a MainWindowModel: it shows the model's state, follows its changes, and
// turns clicks, timer ticks and the resizing into calls on it. To put it on the screen:
//
//   mainwindow::MainWindowModel model(program, {files, clock, pump, dialogs});  // the form's load
//   mainwindow::FrmMain frmMain(model);   // creates the window, hidden, with the model's state
//   model.SetCaption(base::kBanner);      // portable code works on the model from now on
//   model.AddMonitorRow(base::kBanner);
//   model.SetVisible(true);               // shows the window
//   ... message loop ...
//
// The model must outlive the window. Closing the window destroys it and ends the message loop
// unless OnClose gives the closing another meaning.
#include <windows.h>
#include <commctrl.h>

#include <array>
#include <functional>
#include <memory>

#include "base/win32/unique_resource.h"
#include "base/win32/window.h"
#include "controls/win32/graph_move.h"
#include "mainwindow/main_window_model.h"
#include "mainwindow/win32/toolbar.h"
#include "mainwindow/win32/virtual_list_view.h"
#include "mainwindow/window_layout.h"

namespace mainwindow {

// Control identifiers of frmMain.
namespace control_id {
constexpr int kToolbar = 100;
constexpr int kFirstList = 101;  // + ListIndex(list): the six tab lists, then ListView1, ListView2
constexpr int kTabStrip = 110;
constexpr int kStatusBar = 111;
constexpr int kComputerName = 120;
constexpr int kInterfaceLabel = 121;
constexpr int kReceivedCaption = 122;
constexpr int kReceivedLabel = 123;
constexpr int kReceivedGraph = 124;
constexpr int kSentCaption = 125;
constexpr int kSentLabel = 126;
constexpr int kSentGraph = 127;
constexpr int kAutoLog = 130;
}  // namespace control_id

class FrmMain : public base::Window, private IMainWindowView {
public:
    explicit FrmMain(MainWindowModel& model);
    ~FrmMain() override;

    // The traffic graphs: 0 received, 1 sent.
    controls::GraphMove& Graph(int index) { return *m_graphs.at(static_cast<std::size_t>(index)); }
    HWND ListHandle(ListId list) const { return m_lists[ListIndex(list)]->Handle(); }

    // Called when Windows asks whether the session may end.
    void OnWindowsSessionEnding(std::function<void()> handler) { m_sessionEnding = std::move(handler); }
    // Called instead of destroying the window when it is closed.
    void OnClose(std::function<void()> handler) { m_close = std::move(handler); }
    // Mouse movement over the window, with its horizontal coordinate: the tray icon reports
    // its mouse messages this way.
    void OnMouseMove(std::function<void(int x)> handler) { m_mouseMove = std::move(handler); }
    // A command of a menu that is not this window's own (the tray menu's).
    void OnOtherCommand(std::function<void(int id)> handler) { m_otherCommand = std::move(handler); }
    // The shell's taskbar was created again (after the shell restarted): tray icons are gone.
    void OnTaskbarCreated(std::function<void()> handler) { m_taskbarCreated = std::move(handler); }

protected:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void OnChanged(Change what, int index) override;

    void CreateControls();
    void CreateBand();
    void ApplyAll();
    void LayOut();
    void ApplyTimer(int index);
    void OnCommand(int id, int code);
    bool OnNotify(NMHDR& header);
    void ShowListPopup(HWND list, POINT at);
    static LRESULT CALLBACK TabStripProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                              UINT_PTR id, DWORD_PTR self);

    MainWindowModel& m_model;
    bool m_created = false;  // every control exists, and none is being destroyed
    base::TwipsPerPixel m_twipsPerPixel;
    ResizeRule m_sizes;
    base::UniqueMenu m_listPopup;
    HMENU m_menuBar = nullptr;  // destroyed with the window

    std::unique_ptr<Toolbar> m_toolbar;
    HWND m_tabStrip = nullptr;
    std::array<std::unique_ptr<VirtualListView>, kListCount> m_lists;
    HWND m_statusBar = nullptr;
    HWND m_autoLog = nullptr;
    SIZE m_autoLogSize{};
    HWND m_computerName = nullptr;
    HWND m_interfaceLabel = nullptr;
    std::array<HWND, 2> m_trafficCaptions{};
    std::array<HWND, 2> m_trafficLabels{};
    std::array<std::unique_ptr<controls::GraphMove>, 2> m_graphs;

    std::function<void()> m_sessionEnding;
    std::function<void()> m_close;
    std::function<void(int)> m_mouseMove;
    std::function<void(int)> m_otherCommand;
    std::function<void()> m_taskbarCreated;
    UINT m_taskbarCreatedMessage = 0;
};

}  // namespace mainwindow
