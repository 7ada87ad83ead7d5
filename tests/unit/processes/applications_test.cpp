// The applications tab over a fake handle table: owners per port, rows, counts, errors, the
// walk's bounds and the allowed-applications check.
#include <gtest/gtest.h>

#include "fakes/fake_icon_list.h"
#include "fakes/fake_native_handles.h"
#include "unit/mainwindow/main_window_fixture.h"
#include "unit/processes/app_fakes.h"
#include "processes/applications_tab.h"

namespace processes {
namespace {

using mainwindow::ListId;

const std::u16string kTcp = u"\\Device\\Tcp", kUdp = u"\\Device\\Udp";

class ApplicationsTest : public mainwindow::MainWindowTest {
protected:
    ApplicationsTest() {
        files.Put("C:\\Lookout\\app.ini", "a.exe,Ok\r\n");
        native.paths = {{100, "C:\\bin\\a.exe"}, {200, "C:\\bin\\b.exe"}};
        model.SetTabPage(3, tab);
    }
    std::vector<std::vector<std::string>> Rows() {
        std::vector<std::vector<std::string>> rows;
        const base::TableModel& list = model.List(ListId::lstvProcess);
        for (std::size_t i = 0; i < list.RowCount(); ++i) rows.push_back(list.RowAt(i).cells);
        return rows;
    }

    fakes::FakeNativeHandles native;
    fakes::FakeIconList icons;
    FakeProgramSettings settings;
    RecordingAlert alert;
    AppListFile appList{files, settings, program.folder};
    AppDictionary allowed{appList, alert};
    ApplicationsTab tab{model, program, allowed, {native, dialogs, pump, icons}, kLayout64,
                        {std::chrono::milliseconds(100), std::chrono::milliseconds(5)}};
};

TEST_F(ApplicationsTest, RowsFollowPortsWithTcpFirstAndTheLaterOwnerOfACellAndTheCountIsShown) {
    native.handles = {{200, 8, kUdp, 137}, {100, 4, kTcp, 80},   {100, 12, kUdp, 80}, {100, 16, kUdp, 137},
                      {-25536, 4, kTcp, 8080}, {100, 20, u"\\Device\\Xyz", 99}, {100, 24, u"\\Device\\Afd", 0},
                      {0, 28, kTcp, 81}, {100, 32, u"\\Device\\Tcp6", 82}};
    model.ClickTab(3);
    const std::vector<std::vector<std::string>> expected{
        {"a.exe", "100", "80", "TCP", "C:\\bin\\a.exe"},   {"a.exe", "100", "80", "UDP", "C:\\bin\\a.exe"},
        {"a.exe", "100", "99", "UDP", "C:\\bin\\a.exe"},   {"a.exe", "100", "137", "UDP", "C:\\bin\\a.exe"},
        {"SYSTEM", "-25536", "8080", "TCP", "SYSTEM"}};
    EXPECT_EQ(Rows(), expected);
    EXPECT_EQ(icons.images, (std::vector<std::string>{"C:\\bin\\a.exe", "C:\\bin\\a.exe", "C:\\bin\\a.exe",
                                                      "C:\\bin\\a.exe", "?"}));
    EXPECT_EQ(model.List(ListId::lstvProcess).Icon(4), 4);
    EXPECT_EQ(model.PanelText(5), "プロセス : 5");
    EXPECT_EQ(native.opened.load(), native.closed.load());
    EXPECT_TRUE(dialogs.messages.empty());
    // tmrADDPORT shows the last refresh's count again.
    model.SetPanelText(5, "");
    tab.ShowEntryCount();
    EXPECT_EQ(model.PanelText(5), "プロセス : 5");
}

TEST_F(ApplicationsTest, AnUnchangedCountKeepsTheRowsAndTheLogGrowsEveryTime) {
    model.SetAutoLogChecked(true);
    native.handles = {{100, 4, kTcp, 80}};
    model.ClickTab(3);
    native.handles = {{200, 4, kTcp, 81}};
    model.SetPanelText(5, "");
    model.TimerTick(mainwindow::FormTimer::tmrPID);  // the tab's own timer shows the count too
    EXPECT_EQ(Rows()[0][1], "100");
    EXPECT_EQ(model.PanelText(5), "プロセス : 1");
    const std::string log = files.Get("C:\\Lookout\\logs\\application20050622.txt");
    EXPECT_EQ(std::count(log.begin(), log.end(), '\n'), 2);
    native.handles.push_back({200, 8, kUdp, 81});
    model.RefreshCurrentTab();
    EXPECT_EQ(Rows().size(), 2u);
    EXPECT_EQ(Rows()[0][1], "200");
}

TEST_F(ApplicationsTest, MoreThanAThousandPairsEndTheRefreshWithM1) {
    for (std::uint16_t port = 1; port <= 1001; ++port) native.handles.push_back({100, port, kTcp, port});
    model.ClickTab(3);
    EXPECT_EQ(dialogs.Texts(), std::vector<std::string>{"アプリケーション で Error Level m1 が発生しました。"});
    EXPECT_EQ(Rows().size(), 0u);
}

TEST_F(ApplicationsTest, TheWalkEndsOnWinesZeroCountAndReadsTheThirtyTwoBitLayout) {
    native.layout = kLayout32;
    native.handles = {{100, 4, kTcp, 80}, {100, 8, kUdp, 80}};
    native.wineCount = true;
    native.neverFits = true;
    ApplicationsTab tab32{model, program, allowed, {native, dialogs, pump, icons}, kLayout32};
    tab32.Refresh();
    EXPECT_EQ(Rows().size(), 0u);
    native.neverFits = false;
    tab32.Refresh();
    EXPECT_EQ(Rows().size(), 2u);
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(ApplicationsTest, ABlockedNameQueryIsCutOffAndSkippedLater) {
    // Never destroyed: the cut-off worker goes on using it after the test.
    static auto& stuck = *new fakes::FakeNativeHandles;
    std::promise<void> never;
    stuck.gate = never.get_future().share();
    stuck.blockingValue = 8;
    stuck.handles = {{100, 4, kTcp, 80}, {100, 8, kUdp, 53}, {100, 12, kUdp, 137}};
    ApplicationsTab blocking{model, program, allowed, {stuck, dialogs, pump, icons}, kLayout64,
                             {std::chrono::milliseconds(50), std::chrono::milliseconds(5)}};
    blocking.Refresh();
    EXPECT_EQ(Rows().size(), 2u);
    EXPECT_GT(pump.calls, 0);
    stuck.handles.push_back({100, 16, kTcp, 443});
    blocking.Refresh();  // would hang on handle 8 again
    EXPECT_EQ(Rows().size(), 3u);
}

TEST_F(ApplicationsTest, WithoutTransportHandlesTheOwnerTablesGiveTheOwners) {
    native.tcpOwners = {{80, 100}, {81, 0}, {80, 200}};
    native.udpOwners = {{53, 40000}};
    model.ClickTab(3);
    EXPECT_EQ(Rows(), (std::vector<std::vector<std::string>>{{"SYSTEM", "-25536", "53", "UDP", "SYSTEM"},
                                                            {"b.exe", "200", "80", "TCP", "C:\\bin\\b.exe"}}));
}

TEST_F(ApplicationsTest, ThePrivilegeIsAskedForUntilItOnceSucceeds) {
    native.privilege = {platform::PrivilegeStep::AdjustToken, 1300};
    native.handles = {{100, 4, kTcp, 80}};
    model.ClickTab(3);
    native.privilege = {platform::PrivilegeStep::None, 0};
    model.RefreshCurrentTab();
    native.privilege = {platform::PrivilegeStep::OpenToken, 5};
    model.RefreshCurrentTab();
    EXPECT_EQ(dialogs.Texts(), (std::vector<std::string>{"AdjustTokenPrivileges, Error: 1300",
                                                         "アプリケーション で Error Level m1-1 が発生しました。"}));
    EXPECT_EQ(Rows().size(), 1u);
}

TEST_F(ApplicationsTest, AtMostEightAlertsARefreshAndTheLookUpIsCaseSensitive) {
    program.settings.app = 1;
    for (std::uint16_t i = 0; i < 10; ++i) {
        native.paths[300 + i] = "C:\\x\\p" + std::to_string(i) + ".exe";
        native.handles.push_back({static_cast<std::int16_t>(300 + i), i, kTcp, static_cast<std::uint16_t>(1000 + i)});
    }
    native.paths[301] = "C:\\x\\a.exe";
    native.paths[302] = "C:\\x\\A.exe";
    model.ClickTab(3);
    ASSERT_EQ(alert.texts.size(), 8u);
    EXPECT_EQ(alert.texts[0], "[アプリケーション]\r\np0.exe\r\n");
    EXPECT_EQ(alert.texts[1], "[アプリケーション]\r\nA.exe\r\n");
    model.TimerTick(mainwindow::FormTimer::tmrPID);
    EXPECT_EQ(alert.texts.size(), 16u);
    program.settings.app = 0;
    model.TimerTick(mainwindow::FormTimer::tmrPID);
    EXPECT_EQ(alert.texts.size(), 16u);
}

}  // namespace
}  // namespace processes
