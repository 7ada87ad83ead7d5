#include "system/startup_registration.h"

#include <gtest/gtest.h>

#include "fakes/fake_dialogs.h"

namespace system_items {
namespace {

namespace msgbox = platform::msgbox;

struct RenamedInstance : platform::IInstance {
    std::string ExecutableFolder() override { return "D:\\My Tools"; }
    std::string ExecutableName() override { return "lookout2"; }
    std::string VersionComments() override { return ""; }
    void LockStart() override {}
    void UnlockStart() override {}
    bool IsAnotherCopyRunning() override { return false; }
    bool ActivateWindowTitled(const std::string&) override { return false; }
    bool Start(const std::string&) override { return false; }
};

struct FakeStartupFolder : platform::IStartupFolder {
    std::optional<std::string> Path() override { return path; }
    bool SaveShortcut(const std::string& file, const std::string& target) override {
        saved.emplace_back(file, target);
        return saves;
    }
    std::optional<std::string> path = "C:\\Startup";
    bool saves = true;
    std::vector<std::pair<std::string, std::string>> saved;
};

class RegistrationTest : public ::testing::Test {
protected:
    void Click() { mnuSUpTouroku_Click(dialogs, folder, instance); }

    fakes::FakeDialogs dialogs;
    FakeStartupFolder folder;
    RenamedInstance instance;
};

TEST_F(RegistrationTest, YesSavesAShortcutNamedAfterTheCurrentExecutable) {
    dialogs.answers = {msgbox::kYes};
    Click();
    ASSERT_EQ(folder.saved.size(), 1u);
    EXPECT_EQ(folder.saved[0].first, "C:\\Startup\\lookout2.exe.lnk");
    EXPECT_EQ(folder.saved[0].second, "D:\\My Tools\\lookout2.exe");
    ASSERT_EQ(dialogs.messages.size(), 2u);
    EXPECT_EQ(dialogs.messages[0].text, "本プログラムをスタートアップに登録しますか？\r\n");
    EXPECT_EQ(dialogs.messages[0].style, msgbox::kYesNo | msgbox::kQuestion);
    EXPECT_EQ(dialogs.messages[1].text, "スタートアップの登録に成功しました。");
    EXPECT_EQ(dialogs.messages[1].style, msgbox::kExclamation);
}

TEST_F(RegistrationTest, NoChangesNothingAndAFailureSaysSo) {
    dialogs.answers = {msgbox::kNo};
    Click();
    EXPECT_TRUE(folder.saved.empty());
    EXPECT_EQ(dialogs.messages.size(), 1u);

    folder.path.reset();
    dialogs.answers = {msgbox::kYes};
    Click();
    ASSERT_EQ(dialogs.messages.size(), 3u);
    EXPECT_EQ(dialogs.messages[2].text, "スタートアップの登録に失敗しました。");
    EXPECT_EQ(dialogs.messages[2].style, msgbox::kExclamation);
}

}  // namespace
}  // namespace system_items
