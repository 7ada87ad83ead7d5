#include "system/startup_items.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "fakes/fake_icon_list.h"
#include "fakes/fake_registry.h"

namespace system_items {
namespace {

using ::testing::ElementsAre;
using platform::RegistryHive;

constexpr const char* kRun = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr const char* kRunServices = "Software\\Microsoft\\Windows\\CurrentVersion\\RunServices";

base::RuntimeErrorNumber ErrorOf(const std::function<void()>& body) {
    try {
        body();
    } catch (const base::RuntimeError& error) {
        return error.Number();
    }
    ADD_FAILURE() << "no runtime error";
    return {};
}

class StartupItemsTest : public ::testing::Test {
protected:
    fakes::FakeRegistry::Values& Key(RegistryHive hive, const char* path) { return registry.keys[{hive, path}]; }

    fakes::FakeRegistry registry;
    fakes::FakeIconList icons;
    base::TableModel list;
    int logs = 0;
    StartupItemsPage page{registry, icons, list, [this] { ++logs; }};
};

TEST_F(StartupItemsTest, ListsTheFourLocationsInOrderWithTheirIcons) {
    Key(RegistryHive::LocalMachine, kRunServices) = {{"svc", 1, "SYSTEM"}};
    Key(RegistryHive::CurrentUser, kRun) = {{"tool", 1, "\"C:\\Program Files\\T\\tool.EXE\" /min"},
                                            {"", 1, "rundll32 shell32.dll,Control_RunDLL"}};
    Key(RegistryHive::CurrentUser, kRunServices);  // exists, empty
    Key(RegistryHive::LocalMachine, kRun) = {{"broken", 1, "x", true}};
    icons.noIcon = {"rundll32"};
    EXPECT_TRUE(page.Refresh());

    ASSERT_EQ(list.RowCount(), 4u);
    EXPECT_THAT(list.RowAt(0).cells, ElementsAre("tool", "\"C:\\Program Files\\T\\tool.EXE\" /min", "User_Run"));
    EXPECT_THAT(list.RowAt(1).cells, ElementsAre("", "rundll32 shell32.dll,Control_RunDLL", "User_Run"));
    EXPECT_THAT(list.RowAt(2).cells, ElementsAre("broken", "Error", "Machine_Run"));
    EXPECT_THAT(list.RowAt(3).cells, ElementsAre("svc", "SYSTEM", "Machine_RunServices"));
    EXPECT_THAT(icons.images, ElementsAre("C:\\Program Files\\T\\tool.EXE", "?", "Error", "?"));
    for (std::size_t row = 0; row < list.RowCount(); ++row) EXPECT_EQ(list.Icon(row), static_cast<int>(row));
    EXPECT_EQ(logs, 1);
}

TEST_F(StartupItemsTest, FiftyOneNamesFitAFiftySecondRaisesTheSubscriptError) {
    auto& values = Key(RegistryHive::CurrentUser, kRun);
    for (int i = 0; i < 51; ++i) values.push_back({"v" + std::to_string(i), 1, "a.exe"});
    page.Refresh();
    EXPECT_EQ(list.RowCount(), 51u);

    values.push_back({"v51", 1, "a.exe"});
    EXPECT_EQ(ErrorOf([&] { page.Refresh(); }), base::RuntimeErrorNumber::SubscriptOutOfRange);
}

TEST_F(StartupItemsTest, AnExpandableStringRaisesTheTypeMismatch) {
    Key(RegistryHive::CurrentUser, kRun) = {{"env", platform::regtype::kExpandString, "%windir%\\a.exe"}};
    EXPECT_EQ(ErrorOf([&] { page.Refresh(); }), base::RuntimeErrorNumber::TypeMismatch);
    EXPECT_EQ(logs, 0);
}

TEST(ProgramPathOf, CutsThePathOutOfTheCommandLine) {
    EXPECT_EQ(ProgramPathOf("\"C:\\A B\\x.exe\" -a \"b c\""), "C:\\A B\\x.exe");
    EXPECT_EQ(ProgramPathOf("C:\\A B\\setup.exe.bak\\x.Exe"), "C:\\A B\\setup.exe.bak\\x.Exe");
    EXPECT_EQ(ProgramPathOf("notepad file.txt"), "notepad");
    EXPECT_EQ(ProgramPathOf("notepad"), "notepad");
    EXPECT_EQ(ProgramPathOf(""), "");
}

}  // namespace
}  // namespace system_items
