#include "system/startup_items.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/fake_icon_list.h"
#include "fakes/fake_registry.h"
#include "unit/expect_runtime_error.h"

namespace system_items {
namespace {

using ::testing::ElementsAre;
using platform::RegistryHive;

const std::string kRun = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";

TEST(StartupItems, ListsTheFourLocationsInOrderWithTheirIconsUpToFiftyOneNamesAndNoExpandableString) {
    fakes::FakeRegistry registry;
    fakes::FakeIconList icons;
    base::TableModel list;
    int logs = 0;
    StartupItemsPage page{registry, icons, list, [&] { ++logs; }};
    registry.keys[{RegistryHive::LocalMachine, kRun + "Services"}] = {{"svc", 1, "SYSTEM"}};
    registry.keys[{RegistryHive::CurrentUser, kRun}] = {{"tool", 1, "\"C:\\P F\\t.EXE\" /m"}, {"", 1, "rundll32 a,b"}};
    registry.keys[{RegistryHive::LocalMachine, kRun}] = {{"broken", 1, "x", true}};
    icons.noIcon = {"rundll32"};
    EXPECT_TRUE(page.Refresh());
    ASSERT_EQ(list.RowCount(), 4u);
    EXPECT_THAT(list.RowAt(0).cells, ElementsAre("tool", "\"C:\\P F\\t.EXE\" /m", "User_Run"));
    EXPECT_THAT(list.RowAt(1).cells, ElementsAre("", "rundll32 a,b", "User_Run"));
    EXPECT_THAT(list.RowAt(2).cells, ElementsAre("broken", "Error", "Machine_Run"));
    EXPECT_THAT(list.RowAt(3).cells, ElementsAre("svc", "SYSTEM", "Machine_RunServices"));
    EXPECT_THAT(icons.images, ElementsAre("C:\\P F\\t.EXE", "?", "Error", "?"));
    EXPECT_EQ(logs, 1);

    // Fifty-one names fit a key, a fifty-second and an expandable string raise errors.
    registry.keys.clear();
    auto& values = registry.keys[{RegistryHive::CurrentUser, kRun}];
    for (int i = 0; i < 51; ++i) values.push_back({"v" + std::to_string(i), 1, "a.exe"});
    page.Refresh();
    EXPECT_EQ(list.RowCount(), 51u);
    values.push_back({"v51", 1, "a.exe"});
    ExpectRuntimeError(base::RuntimeErrorNumber::SubscriptOutOfRange, [&] { page.Refresh(); });
    values = {{"env", platform::regtype::kExpandString, "%windir%\\a.exe"}};
    ExpectRuntimeError(base::RuntimeErrorNumber::TypeMismatch, [&] { page.Refresh(); });
}

}  // namespace
}  // namespace system_items
