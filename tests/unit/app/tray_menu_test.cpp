#include "app/tray_menu.h"

#include <gtest/gtest.h>

#include "unit/mainwindow/main_window_fixture.h"

namespace app {
namespace {

struct FakeRecentDocuments : platform::IRecentDocuments {
    void Clear() override { ++clears; }
    int clears = 0;
};

class TrayMenuTest : public mainwindow::MainWindowTest {
protected:
    FakeRecentDocuments recent;
    TrayMenu tray{model, recent};
};

// While the exit saves and pumps messages, neither the tray nor a tab timer may run anything.
TEST_F(TrayMenuTest, MouseOnTheTrayIconUntilTheMainWindowIsUnloaded) {
    EXPECT_TRUE(tray.Mouse(517, false));   // right button up, window hidden: the menu
    EXPECT_FALSE(tray.Mouse(517, true));   // window shown: nothing
    EXPECT_FALSE(tray.Mouse(512, false));  // a move
    EXPECT_FALSE(tray.Mouse(515, false));  // double-click: the window at its standard size
    EXPECT_EQ(view.Count(mainwindow::Change::ShowNormal), 1);

    model.ClickTab(2);
    ASSERT_TRUE(model.TimerRunning(mainwindow::FormTimer::tmrTASK));
    model.Unload();
    EXPECT_FALSE(model.TimerRunning(mainwindow::FormTimer::tmrTASK));
    EXPECT_FALSE(tray.Mouse(517, false));
    EXPECT_FALSE(tray.Mouse(515, false));
    EXPECT_EQ(view.Count(mainwindow::Change::ShowNormal), 1);
}

TEST_F(TrayMenuTest, ItemsRunTheMainWindowsItemsOfTheSameName) {
    std::vector<std::string> ran;
    model.SetCommands({{}, {}, {}, [&] { ran.push_back("exit"); }});
    model.SetMenuHandler(mainwindow::MenuItem::mnuVESKARTOOLZ, [&] { ran.push_back("utilities"); });
    model.SetMenuHandler(mainwindow::MenuItem::mnuVER, [&] { ran.push_back("about"); });
    model.SetMenuHandler(mainwindow::MenuItem::mnuVESKARWEBSITE, [&] { ran.push_back("web"); });
    for (const TrayMenuEntry& entry : TrayMenuEntries()) {
        ASSERT_EQ(TrayMenuItemOfCommand(TrayMenuCommand(entry.item)), entry.item);
        tray.Click(entry.item);
    }
    EXPECT_EQ(ran, (std::vector<std::string>{"utilities", "exit", "about", "web"}));
    EXPECT_EQ(recent.clears, 1);
    EXPECT_TRUE(model.Visible());
    EXPECT_FALSE(TrayMenuItemOfCommand(kFirstTrayMenuCommand + 6));
}

}  // namespace
}  // namespace app
