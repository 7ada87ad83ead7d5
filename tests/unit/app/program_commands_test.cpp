#include "app/program_commands.h"

#include <gtest/gtest.h>

#include "base/product.h"
#include "fakes/fake_clock.h"
#include "fakes/fake_dialogs.h"
#include "fakes/fake_ip_helper.h"
#include "monitoring_fakes.h"

namespace app {
namespace {

class ProgramCommandsTest : public ::testing::Test {
protected:
    ProgramCommandsTest() {
        program.settings = DefaultSettings();
        program.allowList[0] = program.denyList[0] = "NG";
        host.mainMonitor.AddRow({base::kBanner});
    }

    Program program;
    fakes::FakeMonitorHost host;
    fakes::FakeNetApi net;
    fakes::FakeLookup lookup;
    fakes::FakeBeeper beeper;
    fakes::FakeIpHelper ipHelper;
    fakes::FakeTrayIcon tray;
    fakes::FakeClock clock;
    fakes::FakeDialogs dialogs;
    SessionGuard guard{program, host, net, lookup, beeper, clock};
    MonitoringCycle monitoring{program, host, clock, ipHelper, tray, guard};
    ProgramCommands commands{program, host, monitoring, dialogs, tray, clock};
};

TEST_F(ProgramCommandsTest, ExitAsksAndOnNoDoesNothing) {
    dialogs.answers = {platform::msgbox::kNo};
    EXPECT_FALSE(commands.Exit());
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].text, "終了してもよろしいですか？");
    EXPECT_EQ(dialogs.messages[0].title, "Veskar_Lookout");
    EXPECT_EQ(dialogs.messages[0].style, platform::msgbox::kYesNo | platform::msgbox::kQuestion);
    EXPECT_TRUE(host.savedRowCounts.empty());
    EXPECT_EQ(tray.removals, 0);
}

TEST_F(ProgramCommandsTest, ExitWithLogflagSavesTheWholeRunIncludingTheStopRow) {
    monitoring.StartMonitoring();
    dialogs.answers = {platform::msgbox::kYes};
    EXPECT_TRUE(commands.Exit());
    EXPECT_EQ(host.savedRowCounts, std::vector<std::size_t>{3});  // banner, start, stop
    EXPECT_EQ(host.LastRow(), "[2005/06/22 09:05:03] 監視を停止しました。");
    EXPECT_FALSE(host.timersOn);
    EXPECT_EQ(tray.removals, 1);

    program.settings.logflag = 0;
    dialogs.answers = {platform::msgbox::kYes};
    EXPECT_TRUE(commands.Exit());
    EXPECT_EQ(host.savedRowCounts.size(), 1u);  // nothing written without logflag
    EXPECT_EQ(tray.removals, 2);
}

TEST_F(ProgramCommandsTest, EndOfTheWindowsSessionIsTheLastSavedRow) {
    commands.WindowsSessionEnding();
    EXPECT_EQ(host.savedRowCounts, std::vector<std::size_t>{2});
    EXPECT_EQ(host.LastRow(), "[2005/06/22 09:05:03]Windowsが終了されました。");
    program.settings.logflag = 0;
    commands.WindowsSessionEnding();
    EXPECT_EQ(host.savedRowCounts.size(), 1u);
}

// Windows asks again while the save of the first request pumps messages.
TEST_F(ProgramCommandsTest, ASessionEndDuringItsOwnSaveAddsNoSecondRow) {
    host.onSave = [&] {
        host.onSave = nullptr;
        commands.WindowsSessionEnding();
    };
    commands.WindowsSessionEnding();
    EXPECT_EQ(host.savedRowCounts, std::vector<std::size_t>{2});
}

TEST_F(ProgramCommandsTest, ClearStartsTheMainMonitorAgainWithTheBanner) {
    host.mainMonitor.AddRow({"row"});
    dialogs.answers = {platform::msgbox::kNo};
    commands.ClearMainMonitor();
    EXPECT_EQ(host.mainMonitor.RowCount(), 2u);
    dialogs.answers = {platform::msgbox::kYes};
    commands.ClearMainMonitor();
    ASSERT_EQ(host.mainMonitor.RowCount(), 1u);
    EXPECT_EQ(host.Row(0), base::kBanner);
}

}  // namespace
}  // namespace app
