#pragma once
// One tab's list, filled by one object. The main window runs the same refresh on the tab
// switch, on "最新の情報に更新(&R)" and, while the tab is selected, on the tab's own timer, and
// shows the tab's error text when it reports failure. A feature registers its page once with
// MainWindowModel::SetTabPage.
namespace mainwindow {

class ITabPage {
public:
    virtual ~ITabPage() = default;
    // Fills the tab's list; false when it failed.
    virtual bool Refresh() = 0;
    // The tab's own timer fired while the tab is selected: by default the same refresh.
    virtual bool TimerRefresh() { return Refresh(); }
};

}  // namespace mainwindow
