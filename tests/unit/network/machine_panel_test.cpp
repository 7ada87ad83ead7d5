#include "network/machine_panel.h"

#include <gtest/gtest.h>

#include "fakes/fake_dialogs.h"

namespace network {
namespace {

// The panel's test reads a plain reply; here the counting in characters and a missing word.
TEST(ParseEchoReply, TakesTheFirstLineFromTwentyFiveCharactersAfterTheWord) {
    EXPECT_EQ(ParseEchoReply("日本語 REMOTE_ADDR" + std::string(14, ' ') + "10.1.2.3"), "10.1.2.3");
    EXPECT_EQ(ParseEchoReply("abcdefghijklmnopqrstuvwx192.0.2.1\r\nREMOTE_ADDR"), "192.0.2.1");
}

struct Services : platform::IHttpClient, platform::IMessenger {
    void Get(const std::string& url, std::function<void(std::string)> done) override {
        urls.push_back(url);
        pending = std::move(done);
    }
    std::uint32_t Send(const std::string&, const std::string&, const std::string&) override {
        enabledWhileSending = panel->SendEnabled();
        return result;
    }
    std::vector<std::string> urls;
    std::function<void(std::string)> pending;
    MachinePanel* panel = nullptr;
    std::uint32_t result = 0;
    bool enabledWhileSending = true;
};

TEST(MachinePanel, FetchesOnceAndSendsWithTheButtonsDisabledMeanwhile) {
    Services services;
    fakes::FakeDialogs dialogs;
    MachinePanel panel("http://echo.test/", "MYPC", {services, services, dialogs});
    services.panel = &panel;
    panel.cmdGET_Click();
    panel.cmdGET_Click();  // ignored while the first is under way
    EXPECT_EQ(services.urls, std::vector<std::string>{"http://echo.test/"});
    services.pending("REMOTE_ADDR" + std::string(14, '=') + "127.0.0.1\r\n");
    EXPECT_EQ(panel.TextIP(), "127.0.0.1");
    EXPECT_TRUE(panel.GetEnabled());

    for (const auto& [result, text] : std::vector<std::pair<std::uint32_t, std::string>>{
             {0, "送信が成功しました。"}, {2273, "PC名もしくはIPアドレスを確認してください。"}, {53, "送信に失敗しました。"}}) {
        services.result = result;
        panel.Command1_Click("OTHERPC", panel.Text7(), "こんにちは");
        EXPECT_FALSE(services.enabledWhileSending);
        EXPECT_TRUE(panel.SendEnabled());
        EXPECT_EQ(dialogs.messages.back().text, text);
        EXPECT_EQ(dialogs.messages.back().style, platform::msgbox::kExclamation);
    }
}

}  // namespace
}  // namespace network
