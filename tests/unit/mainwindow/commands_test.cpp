#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/text_encoding.h"
#include "unit/mainwindow/main_window_fixture.h"

namespace mainwindow {
namespace {

using enum MenuItem;

class CommandsTest : public MainWindowTest {
protected:
    CommandsTest() {
        model.SetCommands({[&] { called.push_back("start"); }, [&] { called.push_back("stop"); },
                           [&] { called.push_back("clear"); }, [&] { called.push_back("exit"); }});
    }
    std::string Log(const std::string& name) { return base::AnsiToUtf8(files.Get("C:\\Lookout\\logs\\" + name)); }

    std::vector<std::string> called;
};

TEST_F(CommandsTest, ToolbarDispatchesOnTheKey) {
    for (const char* key : {"run", "stop", "clear", "exit", "help", ""}) model.ToolbarClick(key);
    EXPECT_EQ(called, (std::vector<std::string>{"start", "stop", "clear", "exit"}));

    // (The save button is pressed end to end.) Monitoring switches its buttons off and on; a
    // disabled button does nothing, and the others stay as they were.
    model.SetButtonEnabled("run", false);
    model.ToolbarClick("run");
    EXPECT_EQ(called.size(), 4u);
    EXPECT_TRUE(model.ButtonEnabled("stop"));
}

TEST_F(CommandsTest, SaveItemsWriteTheShownTabsList) {
    model.List(ListId::lstvTask).AddRow({"a.exe", "1", "10 KB", "C:\\a.exe"});
    model.List(ListId::lstvProcess).AddRow({"b.exe", "2", "80", "TCP", "C:\\b.exe"});
    model.ClickTab(2);
    model.MenuClick(mnuFP);
    EXPECT_EQ(Log("process_log_20050622.txt"), "2005/06/22 09:05:03\ta.exe\t1\t10 KB\tC:\\a.exe\r\n");

    model.ClickTab(3);
    model.MenuClick(mnuFA);
    EXPECT_EQ(Log("application_log_20050622.txt"), "2005/06/22 09:05:03\tb.exe\t2\t80\tTCP\tC:\\b.exe\r\n");

    // Every list writes its own number of fields, whatever a row holds.
    model.List(ListId::lstvAddPort).AddRow({"x"});
    model.ClickTab(5);
    model.MenuClick(mnuIN);
    EXPECT_EQ(Log("netstat_tmplog_20050622.txt"), "2005/06/22 09:05:03\tx\t\t\t\t\t\r\n");
}

TEST_F(CommandsTest, MenuItemsOfThisWindowAndOfOthers) {
    model.AddMonitorRow("row");
    dialogs.saveAnswer.reset();
    model.MenuClick(mnuFMain);
    EXPECT_EQ(dialogs.saveRequests.size(), 1u);

    model.MenuClick(mnuEND);
    EXPECT_EQ(called, std::vector<std::string>{"exit"});

    int options = 0;
    model.SetMenuHandler(mnuSetForm, [&] { ++options; });
    model.MenuClick(mnuSetForm);
    model.MenuClick(mnuVER);  // nobody plugged it in yet: nothing
    EXPECT_EQ(options, 1);

    model.ClickTab(2);
    model.MenuClick(mnuFMain);  // disabled away from the main monitor
    EXPECT_EQ(dialogs.saveRequests.size(), 1u);
}

TEST_F(CommandsTest, AutomaticLogsFollowTheCheckBox) {
    model.List(ListId::lstvStartup).AddRow({"ctfmon", "C:\\ctfmon.exe", "HKCU"});
    model.AutomaticLog(logs::LogKind::Startup);
    EXPECT_TRUE(files.folders.count("C:\\Lookout\\logs") == 0);
    model.SetAutoLogChecked(true);
    model.AutomaticLog(logs::LogKind::Startup);
    EXPECT_EQ(Log("startup20050622.txt"), "2005/06/22 09:05:03\tctfmon\tC:\\ctfmon.exe\tHKCU\r\n");
}

}  // namespace
}  // namespace mainwindow
