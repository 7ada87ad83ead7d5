#include "network/machine_panel.h"

#include <gtest/gtest.h>

#include "fakes/fake_dialogs.h"
#include "fakes/fake_profile.h"

namespace network {
namespace {

TEST(ParseEchoReply, TakesTheFirstLineFromTwentyFiveCharactersAfterTheWord) {
    const std::string gap(14, ' ');
    EXPECT_EQ(ParseEchoReply("REMOTE_ADDR" + gap + "203.0.113.7\r\nREMOTE_HOST x\r\n"), "203.0.113.7");
    EXPECT_EQ(ParseEchoReply("日本語 REMOTE_ADDR" + gap + "10.1.2.3"), "10.1.2.3");
    // Without the word: from character 25 of the first line.
    EXPECT_EQ(ParseEchoReply("abcdefghijklmnopqrstuvwx192.0.2.1\r\nREMOTE_ADDR"), "192.0.2.1");
    EXPECT_EQ(ParseEchoReply("short"), "");
    EXPECT_EQ(ParseEchoReply(""), "");
}

struct FakeHttp : platform::IHttpClient {
    void Get(const std::string& url, std::function<void(std::string)> done) override {
        urls.push_back(url);
        pending = std::move(done);
    }
    std::vector<std::string> urls;
    std::function<void(std::string)> pending;
};

struct FakeMessenger : platform::IMessenger {
    std::uint32_t Send(const std::string&, const std::string&, const std::string&) override {
        enabledWhileSending = panel->SendEnabled();
        return result;
    }
    MachinePanel* panel = nullptr;
    std::uint32_t result = 0;
    bool enabledWhileSending = true;
};

class MachinePanelTest : public ::testing::Test {
protected:
    void SetUp() override { messenger.panel = &panel; }

    FakeHttp http;
    FakeMessenger messenger;
    fakes::FakeDialogs dialogs;
    MachinePanel panel{"http://echo.test/", "MYPC", {http, messenger, dialogs}};
};

TEST_F(MachinePanelTest, FetchWaitsForTheAnswerWithTheButtonDisabled) {
    EXPECT_EQ(panel.Text7(), "MYPC");
    panel.cmdGET_Click();
    panel.cmdGET_Click();  // ignored while the first is under way
    EXPECT_EQ(http.urls, std::vector<std::string>{"http://echo.test/"});
    EXPECT_FALSE(panel.GetEnabled());
    http.pending("REMOTE_ADDR" + std::string(14, '=') + "127.0.0.1\r\n");
    EXPECT_EQ(panel.TextIP(), "127.0.0.1");
    EXPECT_TRUE(panel.GetEnabled());
}

TEST_F(MachinePanelTest, SendShowsItsResultWithTheButtonDisabledMeanwhile) {
    for (const auto& [result, text] : std::vector<std::pair<std::uint32_t, std::string>>{
             {0, "送信が成功しました。"},
             {2273, "PC名もしくはIPアドレスを確認してください。"},
             {53, "送信に失敗しました。"}}) {
        messenger.result = result;
        panel.Command1_Click("OTHERPC", "MYPC", "こんにちは");
        EXPECT_FALSE(messenger.enabledWhileSending);
        EXPECT_TRUE(panel.SendEnabled());
        ASSERT_FALSE(dialogs.messages.empty());
        EXPECT_EQ(dialogs.messages.back().text, text);
        EXPECT_EQ(dialogs.messages.back().style, platform::msgbox::kExclamation);
    }
}

TEST(EchoAddress, ASettingOverridesTheBuildDefault) {
    fakes::FakeFileSystem files;
    fakes::FakeProfile profile{files};
    EXPECT_EQ(EchoAddress(profile, "C:\\p\\setting.ini"), LOOKOUT_ECHO_URL);
    profile.WriteSection("C:\\p\\setting.ini", "utility", std::string("other=1\0echo_url=http://127.0.0.1:8000/\0", 40));
    EXPECT_EQ(EchoAddress(profile, "C:\\p\\setting.ini"), "http://127.0.0.1:8000/");
}

}  // namespace
}  // namespace network
