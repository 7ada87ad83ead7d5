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
        window.rows.AddRow({base::kBanner});
    }

    fakes::FakeDialogs dialogs;
    ProgramCommands commands{program, window, cycle, dialogs, tray, clock};
};

TEST_F(ProgramCommandsTest, ExitAsksAndWithLogflagSavesTheWholeRunIncludingTheStopRow) {
    cycle.StartMonitoring();
    dialogs.answers = {platform::msgbox::kNo};
    EXPECT_FALSE(commands.Exit([] { FAIL(); }));
    EXPECT_EQ(dialogs.messages.back().text, "終了してもよろしいですか？");

    dialogs.answers = {platform::msgbox::kYes};
    bool hidden = false;
    EXPECT_TRUE(commands.Exit([&] { hidden = window.savedRowCounts.empty(); }));
    EXPECT_TRUE(hidden);  // before the save
    EXPECT_EQ(window.savedRowCounts, std::vector<std::size_t>{3});  // banner, start, stop
    EXPECT_EQ(tray.removals, 1);

    program.settings.logflag = 0;
    dialogs.answers = {platform::msgbox::kYes};
    EXPECT_TRUE(commands.Exit([] {}));
    EXPECT_EQ(window.savedRowCounts.size(), 1u);  // nothing written without logflag
    EXPECT_EQ(tray.removals, 2);

    program.settings.logflag = 2;  // any value but 0 saves on exit
    dialogs.answers = {platform::msgbox::kYes};
    EXPECT_TRUE(commands.Exit([] {}));
    EXPECT_EQ(window.savedRowCounts.size(), 2u);
}

TEST_F(ProgramCommandsTest, EndOfTheWindowsSessionIsTheLastSavedRow) {
    commands.WindowsSessionEnding();
    EXPECT_EQ(window.sessionEndSaveRowCounts, std::vector<std::size_t>{2});
    EXPECT_EQ(window.LastRow(), "[2005/06/22 09:05:03]Windowsが終了されました。");
    program.settings.logflag = 0;
    commands.WindowsSessionEnding();
    EXPECT_EQ(window.sessionEndSaveRowCounts.size(), 1u);
}

TEST_F(ProgramCommandsTest, ClearStartsTheMainMonitorAgainWithTheBanner) {
    window.rows.AddRow({"row"});
    dialogs.answers = {platform::msgbox::kNo};
    commands.ClearMainMonitor();
    EXPECT_EQ(window.rows.RowCount(), 2u);
    dialogs.answers = {platform::msgbox::kYes};
    commands.ClearMainMonitor();
    EXPECT_EQ(window.RowTexts(), std::vector<std::string>{base::kBanner});
}

}  // namespace
}  // namespace app
