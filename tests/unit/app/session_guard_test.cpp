#include "app/session_guard.h"

#include <gtest/gtest.h>

#include "app/settings.h"
#include "base/product.h"
#include "base/runtime_error.h"
#include "monitoring_fakes.h"

namespace app {
namespace {

using ::fakes::FakeNetApi;

platform::SessionInfo Session(std::string client, std::string user, std::string type = "Windows 2002 Service Pack 1 2600") {
    return {std::move(client), std::move(user), std::move(type)};
}

class SessionGuardTest : public ::testing::Test, protected ::fakes::MonitoringRig {
protected:
    SessionGuardTest() {
        program.settings = DefaultSettings();
        program.allowList[0] = program.denyList[0] = "NG";
        window.labels[0] = "1234567";
        window.labels[1] = "500";
    }
};

TEST_F(SessionGuardTest, EachSessionWithAUserGetsARowAndNullSessionsAreIgnored) {
    lookup.known["PC1"] = {"192.168.0.7", "pc1.local"};
    net.steadySessions = FakeNetApi::Sessions({Session("PC1", "taro"), Session("PC2", ""), Session("PC3", "hana", "")});
    program.settings.beep = 1;
    EXPECT_EQ(guard.Run("SERVER"), 2);
    EXPECT_EQ(beeper.beeps, 2);
    EXPECT_EQ(window.RowTexts(),
              (std::vector<std::string>{
                  "[2005/06/22 09:05:03]  PC : PC1(192.168.0.7/pc1.local) USER : taro OS : Windows 2002 "
                  "Service Pack 1 2600 送信 : 1,235 KB 受信 : 1 KB",
                  // Names that do not resolve show the raw client name.
                  "[2005/06/22 09:05:03]  PC : PC3(PC3/PC3) USER : hana OS :  送信 : 1,235 KB 受信 : 1 KB"}));
    EXPECT_EQ(window.disconnectList.RowCount(), 0u);  // both lists off: never disconnected

    // Every tick re-enumerates: an open session is logged and beeped again; a renamed
    // server shows on panel 2.
    guard.Run("RENAMED");
    EXPECT_EQ(beeper.beeps, 4);
    EXPECT_EQ(window.serverPanel, "サーバ : RENAMED");
}

TEST_F(SessionGuardTest, MoreDataIsFollowedAndFailedCallsSkipTheirRecords) {
    net.sessionAnswers = {
        {platform::kErrorMoreData, {Session("A", "a")}, 1, 3},
        {5, {Session("IGNORED", "x")}, 1, 3},  // access denied: its records are not used
        {platform::kNerrSuccess, {Session("B", "b"), Session("C", "c")}, 3, 3},
    };
    EXPECT_EQ(guard.Run("S"), 3);

    net.steadySessions = {50, {}, 0, 0};  // not supported; the counts were never written
    EXPECT_EQ(guard.Run("S"), 0);
}

TEST_F(SessionGuardTest, DenyListComparesSlotsTwoToTwentyExactly) {
    program.denyList[0] = "OK";
    program.denyList[1] = "FIRSTBOX";  // the first box is never enforced
    program.denyList[2] = "BAD";
    program.denyList[20] = "LAST";
    net.steadySessions = FakeNetApi::Sessions(
        {Session("FIRSTBOX", "u"), Session("bad", "u"), Session("BAD", "eve"), Session("LAST", "u")});
    guard.Run("S");
    const auto rows = window.RowTexts();
    ASSERT_EQ(rows.size(), 6u);
    EXPECT_EQ(rows[3], "[2005/06/22 09:05:03]  アクセス拒否違反の為､BADに対して切断処理を実行しました｡");
    EXPECT_EQ(rows[5], "[2005/06/22 09:05:03]  アクセス拒否違反の為､LASTに対して切断処理を実行しました｡");
    EXPECT_EQ(window.disconnectList.RowCount(), 2u);
}

// The deny check comes first: a client on both lists is reported once, as denied.
TEST_F(SessionGuardTest, AllowListReportsEveryClientItDoesNotHoldAndAClientOnBothListsIsDenied) {
    program.allowList[0] = program.denyList[0] = "OK";
    program.allowList[2] = "PC1";
    program.allowList[3] = program.denyList[5] = "BOTH";
    net.steadySessions = FakeNetApi::Sessions({Session("PC1", "u"), Session("PC2", "u"), Session("BOTH", "u")});
    guard.Run("S");
    const auto rows = window.RowTexts();
    ASSERT_EQ(rows.size(), 5u);
    EXPECT_EQ(rows[2], "[2005/06/22 09:05:03]  アクセス許可違反の為､PC2に対して切断処理を実行しました｡");
    EXPECT_EQ(rows[4], "[2005/06/22 09:05:03]  アクセス拒否違反の為､BOTHに対して切断処理を実行しました｡");
    EXPECT_EQ(window.disconnectList.RowCount(), 2u);
}

TEST_F(SessionGuardTest, MoreThanOneHundredSessionsRaiseTheSubscriptError) {
    std::vector<platform::SessionInfo> many;
    for (int i = 0; i < 101; ++i) many.push_back(Session("PC" + std::to_string(i), "u"));
    net.steadySessions = FakeNetApi::Sessions(many);
    EXPECT_THROW(guard.Run("S"), base::RuntimeError);
    many.pop_back();
    net.steadySessions = FakeNetApi::Sessions(many);
    EXPECT_EQ(guard.Run("S"), 100);
    EXPECT_EQ(guard.Run("S"), 100);  // every tick starts again at the first slot
}

// One row per session: a second user on the same client has a session of its own to close. Timer2
// closes every marked session again at each tick and skips a row without a client name.
TEST_F(SessionGuardTest, AViolatorConnectedAllDayKeepsOneRowPerUserAndTimer2sWorkStaysFlat) {
    program.denyList[0] = "OK";
    program.denyList[2] = "BAD";
    window.disconnectList.AddRow({"x", ""});
    net.steadySessions =
        FakeNetApi::Sessions({Session("BAD", "eve"), Session("BAD", "mallory"), Session("GOOD", "u")});
    for (int second = 0; second < 24 * 60 * 60; ++second) {
        clock.now = {2005, 6, 22, second / 3600, second / 60 % 60, second % 60};
        guard.Run("S");
        window.rows.Clear();
        const std::size_t before = net.deleted.size();
        guard.DisconnectMarked();
        ASSERT_EQ(net.deleted.size() - before, 2u) << "at second " << second;
    }
    EXPECT_EQ(net.deleted.back(), "BAD/mallory");
}

TEST_F(SessionGuardTest, OpenFilesAreLoggedAcrossBatchesAndAFailureLogsNothing) {
    net.fileAnswers = {{platform::kErrorMoreData, {{"C:\\share\\a.doc", "taro"}}},
                       {platform::kNerrSuccess, {{"C:\\share\\b.xls", "hana"}}}};
    guard.LogOpenFiles();
    EXPECT_EQ(window.RowTexts(),
              (std::vector<std::string>{"[2005/06/22 09:05:03]  使用中のファイル : C:\\share\\a.doc USER : taro",
                                        "[2005/06/22 09:05:03]  使用中のファイル : C:\\share\\b.xls USER : hana"}));
    net.fileAnswers = {{platform::kErrorMoreData, {{"C:\\x", "u"}}}, {50, {}}};
    guard.LogOpenFiles();
    EXPECT_EQ(window.rows.RowCount(), 2u);
}

TEST_F(SessionGuardTest, MainMonitorPastTenThousandRowsIsSavedAndStartedAfresh) {
    for (int i = 0; i < 9999; ++i) window.rows.AddRow({"row"});
    net.fileAnswers = {{platform::kNerrSuccess, {{"C:\\f", "u"}}}};
    guard.LogOpenFiles();  // exactly 10000 rows: kept
    EXPECT_EQ(window.rows.RowCount(), 10000u);

    net.fileAnswers = {{platform::kNerrSuccess, {{"C:\\f", "u"}}}};
    window.saveWrites = false;  // another save is under way: nothing written, nothing cleared
    guard.LogOpenFiles();
    EXPECT_EQ(window.rows.RowCount(), 10001u);

    window.saveWrites = true;
    window.duringSave = [&] { window.rows.AddRow({"added during the save"}); };
    guard.LogOpenFiles();
    EXPECT_EQ(window.RowTexts(), (std::vector<std::string>{base::kBanner, "added during the save",
                                                          "[2005/06/22 09:05:03]  ログを自動保存しました。"}));
}

}  // namespace
}  // namespace app
