#include "app/program_commands.h"

#include <gtest/gtest.h>

#include "base/product.h"
#include "fakes/fake_dialogs.h"
#include "monitoring_fakes.h"

namespace app {
namespace {

class ProgramCommandsTest : public ::testing::Test, protected fakes::MonitoringRig {
protected:
    ProgramCommandsTest() {
        program.settings = DefaultSettings();
        program.allowList[0] = program.denyList[0] = "NG";
        monitor.rows.AddRow({base::kBanner});
    }

    fakes::FakeDialogs dialogs;
    ProgramCommands commands{program, monitor, cycle, dialogs, tray, clock};
};

TEST_F(ProgramCommandsTest, ExitAsksAndOnNoDoesNothing) {
    dialogs.answers = {platform::msgbox::kNo};
    EXPECT_FALSE(commands.Exit([] { FAIL(); }));
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].text, "終了してもよろしいですか？");
    EXPECT_TRUE(monitor.savedRowCounts.empty());
    EXPECT_EQ(tray.removals, 0);
}

TEST_F(ProgramCommandsTest, ExitWithLogflagSavesTheWholeRunIncludingTheStopRow) {
    cycle.StartMonitoring();
    dialogs.answers = {platform::msgbox::kYes};
    bool hidden = false;
    EXPECT_TRUE(commands.Exit([&] { hidden = monitor.savedRowCounts.empty(); }));
    EXPECT_TRUE(hidden);  // before the save
    EXPECT_EQ(monitor.savedRowCounts, std::vector<std::size_t>{3});  // banner, start, stop
    EXPECT_EQ(monitor.LastRow(), "[2005/06/22 09:05:03] 監視を停止しました。");
    EXPECT_FALSE(switches.timersOn);
    EXPECT_EQ(tray.removals, 1);

    program.settings.logflag = 0;
    dialogs.answers = {platform::msgbox::kYes};
    EXPECT_TRUE(commands.Exit([] {}));
    EXPECT_EQ(monitor.savedRowCounts.size(), 1u);  // nothing written without logflag
    EXPECT_EQ(tray.removals, 2);

    program.settings.logflag = 2;  // any value but 0 saves on exit
    dialogs.answers = {platform::msgbox::kYes};
    EXPECT_TRUE(commands.Exit([] {}));
    EXPECT_EQ(monitor.savedRowCounts.size(), 2u);
}

TEST_F(ProgramCommandsTest, EndOfTheWindowsSessionIsTheLastSavedRow) {
    commands.WindowsSessionEnding();
    EXPECT_EQ(monitor.sessionEndSaveRowCounts, std::vector<std::size_t>{2});
    EXPECT_EQ(monitor.LastRow(), "[2005/06/22 09:05:03]Windowsが終了されました。");
    program.settings.logflag = 0;
    commands.WindowsSessionEnding();
    EXPECT_EQ(monitor.sessionEndSaveRowCounts.size(), 1u);
}

TEST_F(ProgramCommandsTest, ClearStartsTheMainMonitorAgainWithTheBanner) {
    monitor.rows.AddRow({"row"});
    dialogs.answers = {platform::msgbox::kNo};
    commands.ClearMainMonitor();
    EXPECT_EQ(monitor.rows.RowCount(), 2u);
    dialogs.answers = {platform::msgbox::kYes};
    commands.ClearMainMonitor();
    ASSERT_EQ(monitor.rows.RowCount(), 1u);
    EXPECT_EQ(monitor.Row(0), base::kBanner);
}

}  // namespace
}  // namespace app
