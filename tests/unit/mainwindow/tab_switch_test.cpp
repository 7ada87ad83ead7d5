#include <gtest/gtest.h>

#include "unit/mainwindow/main_window_fixture.h"

namespace mainwindow {
namespace {

using enum MenuItem;

TEST_F(MainWindowTest, LoadShowsTheMainMonitorWithEverythingStopped) {
    EXPECT_EQ(model.ShownList(), ListId::lstvMain);
    for (const FormTimer timer : kTabTimers) EXPECT_FALSE(model.TimerRunning(timer));
    EXPECT_TRUE(model.TimerEnabled(FormTimer::Timer1));  // the monitoring timers are created enabled
}

TEST_F(MainWindowTest, LoadTakesTheIntervalAndAlwaysOnTopFromTheSettings) {
    program.settings.time = "30";
    program.settings.front = 1;
    program.settings.colours = {255, 65280};
    MainWindowModel loaded(program, {files, clock, pump, dialogs});
    EXPECT_EQ(loaded.PanelText(4), "ログ間隔 : 30秒");
    EXPECT_TRUE(loaded.AlwaysOnTop());
    EXPECT_EQ(loaded.ListBackColour(), base::Rgb(255, 0, 0));
    EXPECT_EQ(loaded.ListTextColour(), base::Rgb(0, 255, 0));
}

TEST_F(MainWindowTest, ASwitchLeavesOnlyTheNewTabsTimerCountAndSavePair) {
    Fill(ListId::lstvAddPort, 12);
    model.ClickTab(2);  // what tabs 2 and 3 switched on must not stay
    EXPECT_FALSE(model.MenuEnabled(mnuTouroku));
    model.ClickTab(3);  // the applications tab enables the registration item for good
    model.ClickTab(5);
    EXPECT_TRUE(model.MenuEnabled(mnuTouroku));
    EXPECT_EQ(model.TimerInterval(FormTimer::tmrTASK), 0);
    EXPECT_EQ(model.TimerInterval(FormTimer::tmrADDPORT), 5000);
    EXPECT_EQ(model.PanelText(5), "プロセス : 12");
    EXPECT_FALSE(model.MenuEnabled(mnuFMain));
    EXPECT_TRUE(model.MenuEnabled(mnuFN));
    EXPECT_TRUE(model.MenuEnabled(mnuIN));
    EXPECT_FALSE(model.MenuEnabled(mnuIA));  // the applications tab's pair went off again
    model.ClickTab(6);
    EXPECT_EQ(model.TimerInterval(FormTimer::tmrADDPORT), 0);
    EXPECT_FALSE(model.AutoLogEnabled());  // my network has no automatic log
    model.ClickTab(1);
    EXPECT_TRUE(model.MenuEnabled(mnuFMain));
    EXPECT_TRUE(model.AutoLogEnabled());
}

TEST_F(MainWindowTest, ClickingTheShownTabDoesNothingButForTheMainMonitor) {
    int refreshes = 0;
    SetRefresh(5, [&] { return ++refreshes > 0; });
    model.ClickTab(5);
    const auto timerChanges = view.Count(Change::Timer);
    model.List(ListId::lstvAddPort).AddRow({"new"});
    model.ClickTab(5);
    EXPECT_EQ(refreshes, 1);
    EXPECT_EQ(view.Count(Change::Timer), timerChanges);  // not even restarted
    EXPECT_EQ(model.PanelText(5), "プロセス : 0");        // not recounted

    model.ClickTab(1);
    Fill(ListId::lstvMain, 4);
    model.ClickTab(1);
    EXPECT_EQ(model.PanelText(5), "ログ行数 : 4");  // the main monitor always runs its steps
}

TEST_F(MainWindowTest, AClickDuringARefreshOnlySetsTheCheckBox) {
    SetRefresh(2, [&] {
        // The refresh pumps messages; the user clicks My Network meanwhile.
        model.ClickTab(6);
        EXPECT_EQ(model.CurrentTab(), 0);
        return true;
    });
    model.ClickTab(2);
    EXPECT_EQ(model.CurrentTab(), 2);
    EXPECT_EQ(model.ShownList(), ListId::lstvTask);
    EXPECT_FALSE(model.TimerRunning(FormTimer::tmrADDPORT));
    // The tab strip shows My Network while the process list stays: the check box keeps the
    // state of the ignored click, and the refresh command finds the tabs differing.
    EXPECT_EQ(model.SelectedTab(), 6);
    EXPECT_FALSE(model.AutoLogEnabled());
    int again = 0;
    SetRefresh(2, [&] { return ++again > 0; });
    model.RefreshCurrentTab();
    EXPECT_EQ(again, 0);
}

TEST_F(MainWindowTest, AFailedRefreshShowsTheTabsTextAndStillShowsTheTab) {
    for (int tab : {2, 3, 4}) {
        SetRefresh(tab, [] { return false; });
        model.ClickTab(tab);
    }
    ASSERT_EQ(dialogs.messages.size(), 2u);
    EXPECT_EQ(dialogs.messages[0].text, "プロセス でエラーが発生しました。");
    EXPECT_EQ(dialogs.messages[1].text, "アプリケーション でエラーが発生しました。");
    EXPECT_EQ(model.CurrentTab(), 4);
    EXPECT_EQ(model.ShownList(), ListId::lstvStartup);
}

TEST_F(MainWindowTest, TheRefreshCommandRerunsTheCurrentTab) {
    bool ok = true;
    SetRefresh(3, [&] {
        model.List(ListId::lstvProcess).AddRow({"app"});  // the count tells how many refreshes ran
        return ok;
    });
    model.RefreshCurrentTab();  // nothing handled yet: tab 1 is selected, the current tab is 0
    model.ClickTab(3);
    EXPECT_EQ(model.PanelText(5), "プロセス : 1");  // counted after the refresh filled the list
    model.RefreshCurrentTab();
    EXPECT_EQ(model.PanelText(5), "プロセス : 2");
    ok = false;
    model.MenuClick(mnuUPDATE);
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].text, "アプリケーション タブでエラーが発生しました。");
    EXPECT_EQ(model.PanelText(5), "プロセス : 3");
    EXPECT_EQ(model.TimerInterval(FormTimer::tmrPID), 20000);
}

TEST_F(MainWindowTest, ATabTimerRefreshesItsPageOnlyWhileItsTabIsSelected) {
    int refreshes = 0;
    SetRefresh(2, [&] { return ++refreshes != 2; });
    model.ClickTab(2);
    model.TimerTick(FormTimer::tmrTASK);  // the timer's first refresh fails: the switch's text shows
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].text, "プロセス でエラーが発生しました。");
    model.TimerTick(FormTimer::tmrTASK);
    EXPECT_EQ(refreshes, 3);
    // A refresh pumping messages lets the user select another tab before the timer stops.
    SetRefresh(3, [&] {
        model.ClickTab(2);
        model.ClickTab(1);
        return true;
    });
    model.ClickTab(3);
    model.SetTimerInterval(FormTimer::tmrTASK, 10000);
    model.TimerTick(FormTimer::tmrTASK);
    EXPECT_EQ(refreshes, 3);
}

}  // namespace
}  // namespace mainwindow
