#include "processes/process_commands.h"

#include "fakes/fake_processes.h"
#include "unit/mainwindow/main_window_fixture.h"

namespace processes {
namespace {

using mainwindow::ListId;
using mainwindow::MenuItem;
using ProcessCommandsTest = mainwindow::MainWindowTest;

struct MappedFiles : platform::IImageHelp {  // every path maps, as a file without imports
    bool ReadMappedImage(const std::string&, const std::function<void(std::span<const std::uint8_t>)>& read) override {
        read({});
        return true;
    }
};

TEST_F(ProcessCommandsTest, KillEndsTheRowsProcessOnlyOnYesCopyAndDependenciesTakeTheTabsPath) {
    fakes::FakeProcesses processes;
    MappedFiles images;
    ProcessCommands commands{model, processes, {files, images, pump, dialogs}};
    const auto select = [&](int tab, ListId list) { model.ClickTab(tab), model.List(list).SetSelectedRow(0); };
    const auto clickAll = [&] {
        for (const auto item : {MenuItem::mnuKill, MenuItem::mnuCOPY, MenuItem::mnuDepend}) model.MenuClick(item);
    };
    model.List(ListId::lstvTask).AddRow({"b.exe", "8", "2 K", "C:\\b.exe"});
    model.List(ListId::lstvProcess).AddRow({"System", "-5", "139", "TCP", "SYSTEM"});
    files.Put("C:\\b.exe", "MZ");
    dialogs.answers = {platform::msgbox::kNo, platform::msgbox::kOk, platform::msgbox::kYes};
    select(2, ListId::lstvTask);
    clickAll();
    EXPECT_EQ(dialogs.clipboard, "C:\\b.exe");
    select(3, ListId::lstvProcess);
    clickAll();
    EXPECT_EQ(dialogs.clipboard, "SYSTEM");
    EXPECT_EQ(processes.terminated, std::vector<std::int32_t>{-5});
    // A rebuild selects nothing, and other tabs have no such commands.
    model.List(ListId::lstvProcess).Replace({{{"c.exe", "12", "0", "TCP", "C:\\c.exe"}}});
    clickAll();
    select(4, ListId::lstvProcess);
    clickAll();
    ASSERT_EQ(dialogs.Texts(), (std::vector<std::string>{"\r\nプロセスを終了してもよろしいですか\r\nb.exe ",
                                                         "\r\nFile : C:\\b.exe\r\n\r\n",
                                                         "\r\nプロセスを終了してもよろしいですか\r\nSystem ",
                                                         "\r\nFile : SYSTEM\r\n\r\nFile SYSTEM Doesn't Exist"}));
    EXPECT_EQ(dialogs.messages[0].title, "プロセスを切断しています");
    EXPECT_EQ(dialogs.messages[0].style, 308u);  // Yes and No with No the default, an exclamation mark
    EXPECT_EQ(dialogs.messages[1].style, 64u);   // its title: the tabs scenario
}

}  // namespace
}  // namespace processes
