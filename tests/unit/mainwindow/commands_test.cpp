#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/text_encoding.h"
#include "mainwindow/toolbar_buttons.h"
#include "unit/mainwindow/main_window_fixture.h"

namespace mainwindow {
namespace {

using enum MenuItem;

TEST(MenuTree, TheMenuBarInOrder) {
    const std::vector<std::string> expected = {
        "0 mnuFAILE ファイル(&F)",
        "1 mnuFMain メインモニタの名前を付けて保存...(&M)",
        "1 mnulLne3 -",
        "1 mnuTUIKASAVE 追加保存(&K)",
        "2 mnuFP プロセスのログを追加保存(&P)",
        "2 mnuFA アプリケーションのログを追加保存(&A)",
        "2 mnuFS スタートアップのログを追加保存(&S)",
        "2 mnuFN NETSTATのログを追加保存(&N)",
        "2 mnuFM マイネットワークのログを追加保存(&M)",
        "1 mnuLine4 -",
        "1 mnuIS 一時保存(&I)",
        "2 mnuIP プロセスのログを一時保存(&P)",
        "2 mnuIA アプリケーションのログを一時保存(&A)",
        "2 mnuIIS スタートアップのログを一時保存(&S)",
        "2 mnuIN NETSTATのログを一時保存(&N)",
        "2 mnuIM マイネットワークのログを一時保存(&M)",
        "1 mnuLine1 -",
        "1 mnuEND Veskar_Lookoutの終了(&X)",
        "0 mnuHYOUJI 表示(&V)...",
        "1 mnuUPDATE 最新の情報に更新(&R)",
        "1 mnuLine -",
        "1 mnuFRONT 常に手前に表示(&A)",
        "1 mnuGRID グリッド線を表示する(&G)",
        "1 mnuITEM_HABA アイテムの幅を初期値に戻す(&W)",
        "0 mnuTool ツール(&T)",
        "1 mnuSetForm 全般的な設定...(&G)",
        "1 mnuLine5 -",
        "1 mnuVESKARTOOLZ ユーティリティ(&U)",
        "1 mnuSUpTouroku スタートアップに登録(&S)",
        "1 mnuAppEdit アプリケーションの登録(&A)",
        "0 mnuHELP ヘルプ(&H)",
        "1 mnuVESKARWEBSITE Veskar Development WEBサイト(&W)",
        "1 mnuVER バージョン情報(&A)",
        "0 menu Menu",
        "1 mnuTouroku アプリケーションを登録する(&T)",
        "1 mnuKill アプリケーションを終了する(&E)",
        "1 mnuDepend アプリケーションが使用しているDLL表示(&D)",
        "1 mnuCOPY パスをクリップボードへコピーする(&C)",
    };
    std::vector<std::string> actual;
    std::vector<MenuItem> items;
    for (const auto menu : {MenuBar(), ListPopupMenu()}) {
        for (const auto& e : menu) {
            actual.push_back(std::to_string(e.depth) + " " + e.name + " " + e.caption);
            items.push_back(e.item);
        }
    }
    EXPECT_EQ(actual, expected);
    // Every item once, and its command leads back to it.
    ASSERT_EQ(items.size(), static_cast<std::size_t>(kMenuItemCount));
    for (std::size_t i = 0; i < items.size(); ++i) {
        EXPECT_EQ(items[i], static_cast<MenuItem>(i));
        EXPECT_EQ(MenuItemOfCommand(MenuCommand(items[i])), items[i]);
    }
    EXPECT_FALSE(MenuItemOfCommand(kFirstMenuCommand - 1));
    EXPECT_FALSE(MenuItemOfCommand(kFirstMenuCommand + kMenuItemCount));
}

TEST(Toolbar, ButtonsByKeyWithTheirToolTips) {
    std::vector<std::string> actual;
    for (const auto& b : ToolbarButtons()) actual.push_back(std::string(b.key) + " " + b.toolTip);
    EXPECT_EQ(actual, (std::vector<std::string>{"save メインモニタを名前を付けて保存", "clear メインモニタをクリア",
                                                "run 監視を開始", "stop 監視を停止",
                                                "exit Veskar_Lookoutを終了"}));
    // Pictures that differ from each other and leave the button face around them.
    for (std::size_t i = 0; i < ToolbarButtons().size(); ++i) {
        const ToolbarImage image = ToolbarButtonImage(i);
        EXPECT_EQ(image[0] >> 24, 0u) << i;
        for (std::size_t j = 0; j < i; ++j) EXPECT_NE(image, ToolbarButtonImage(j));
    }
}

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

    model.AddMonitorRow("Veskar_Lookout v1.01");
    dialogs.saveAnswer = "C:\\Lookout\\logs\\mylog";
    model.ToolbarClick("save");
    EXPECT_EQ(dialogs.saveRequests.size(), 1u);
    EXPECT_EQ(Log("mylog.txt"), "Veskar_Lookout v1.01\r\n");

    // Monitoring switches its buttons off and on; a disabled button does nothing.
    model.SetButtonEnabled("run", false);
    model.ToolbarClick("run");
    EXPECT_EQ(called.size(), 4u);
    EXPECT_FALSE(model.ButtonEnabled("run"));
    EXPECT_TRUE(model.ButtonEnabled("stop"));
}

TEST_F(CommandsTest, SaveItemsWriteTheShownTabsList) {
    model.List(ListId::lstvTask).AddRow({"a.exe", "1", "10 KB", "C:\\a.exe"});
    model.List(ListId::lstvProcess).AddRow({"b.exe", "2", "80", "TCP", "C:\\b.exe"});
    model.ClickTab(2);
    model.MenuClick(mnuFP);
    model.MenuClick(mnuIP);
    model.MenuClick(mnuFA);  // disabled on the process tab
    EXPECT_EQ(Log("process_log_20050622.txt"), "2005/06/22 09:05:03\ta.exe\t1\t10 KB\tC:\\a.exe\r\n");
    EXPECT_EQ(Log("process_tmplog_20050622.txt"), "2005/06/22 09:05:03\ta.exe\t1\t10 KB\tC:\\a.exe\r\n");
    EXPECT_FALSE(files.Has("C:\\Lookout\\logs\\application_log_20050622.txt"));

    model.ClickTab(3);
    model.MenuClick(mnuFA);
    EXPECT_EQ(Log("application_log_20050622.txt"), "2005/06/22 09:05:03\tb.exe\t2\t80\tTCP\tC:\\b.exe\r\n");

    // Every list writes its own number of fields.
    const std::pair<int, MenuItem> pairs[] = {{4, mnuIIS}, {5, mnuIN}, {6, mnuIM}};
    const char* names[] = {"startup_tmplog_20050622.txt", "netstat_tmplog_20050622.txt",
                           "mynetwork_tmplog_20050622.txt"};
    const char* lines[] = {"2005/06/22 09:05:03\tx\t\t\r\n", "2005/06/22 09:05:03\tx\t\t\t\t\t\r\n",
                           "2005/06/22 09:05:03\tx\t\t\t\r\n"};
    for (int i = 0; i < 3; ++i) {
        model.List(Tab(pairs[i].first).list).AddRow({"x"});
        model.ClickTab(pairs[i].first);
        model.MenuClick(pairs[i].second);
        EXPECT_EQ(Log(names[i]), lines[i]);
    }
}

TEST_F(CommandsTest, MenuItemsOfThisWindowAndOfOthers) {
    model.AddMonitorRow("row");
    dialogs.saveAnswer.reset();
    model.MenuClick(mnuFMain);
    EXPECT_EQ(dialogs.saveRequests.size(), 1u);
    EXPECT_EQ(dialogs.saveRequests[0].fileName, "C:\\Lookout\\logs\\20050622-1.txt");

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

TEST_F(CommandsTest, TheMainMonitorSaveWithoutDialog) {
    model.AddMonitorRow("Veskar_Lookout v1.01");
    files.Put("C:\\Lookout\\logs\\20050622-1.txt", "");
    model.SaveMainMonitor();
    EXPECT_EQ(Log("20050622-2.txt"), "Veskar_Lookout v1.01\r\n");
    EXPECT_TRUE(dialogs.saveRequests.empty());
}

}  // namespace
}  // namespace mainwindow
