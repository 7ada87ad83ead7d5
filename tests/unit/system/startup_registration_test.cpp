#include "system/startup_registration.h"

#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "fakes/fake_dialogs.h"

namespace system_items {
namespace {

namespace msgbox = platform::msgbox;

struct FakeStartupFolder : platform::IStartupFolder {
    std::optional<std::string> Path() override { return path; }
    bool SaveShortcut(const std::string& file, const std::string& target) override {
        saved = file + ">" + target;
        return true;
    }
    std::optional<std::string> path = "C:\\Startup";
    std::string saved;
};

TEST(Registration, YesSavesAShortcutNamedAfterTheCurrentExecutable) {
    fakes::FakeDialogs dialogs;
    FakeStartupFolder folder;
    dialogs.answers = {msgbox::kNo, msgbox::kYes, msgbox::kOk, msgbox::kYes};
    mnuSUpTouroku_Click(dialogs, folder, {"D:\\My Tools", "renamed"});  // No saves nothing
    mnuSUpTouroku_Click(dialogs, folder, {"D:\\My Tools", "renamed"});
    EXPECT_EQ(folder.saved, "C:\\Startup\\renamed.exe.lnk>D:\\My Tools\\renamed.exe");
    // Nothing traps a failure: the runtime's error report follows, not a message of its own.
    folder.path.reset();
    EXPECT_THROW(mnuSUpTouroku_Click(dialogs, folder, {"D:\\My Tools", "renamed"}), base::RuntimeError);
    ASSERT_EQ(dialogs.messages.size(), 4u);
    EXPECT_EQ(dialogs.messages[0].text, "本プログラムをスタートアップに登録しますか？\r\n");
    EXPECT_EQ(dialogs.messages[0].style, msgbox::kYesNo | msgbox::kQuestion);
    EXPECT_EQ(dialogs.messages[2].text, "スタートアップの登録に成功しました。");
    EXPECT_EQ(dialogs.messages[2].style, msgbox::kExclamation);
}

}  // namespace
}  // namespace system_items
