#include "app/monitoring_cycle.h"

#include <gtest/gtest.h>

#include "monitoring_fakes.h"

namespace app {
namespace {

class MonitoringCycleTest : public ::testing::Test, protected ::fakes::MonitoringRig {
protected:
    MonitoringCycleTest() {
        program.folder = "C:\\L\\";
        program.settings = DefaultSettings();
        program.settings.time = "1";
        program.allowList[0] = program.denyList[0] = "NG";
        ipHelper.interfaces = {{1, "lo"}, {2, "eth0"}};
        SetCounters(1000, 5000);
    }

    void SetCounters(std::uint32_t in, std::uint32_t out) {
        ipHelper.counters[2] = {in, out};  // eth0
    }
    // The cycle started from the toolbar on interface 1 ("1: eth0").
    void StartOnEth0() {
        cycle.LoadInterfaces();
        window.interfaceText = "1: eth0";
        cycle.StartCommand();
    }
};

TEST_F(MonitoringCycleTest, InterfaceLabelEndsOnTheLastRowOrTheStoredChoiceAndOnlyItsFirstCharacterCounts) {
    cycle.LoadInterfaces();
    EXPECT_EQ(cycle.InterfaceTexts(), (std::vector<std::string>{"0: lo", "1: eth0"}));
    EXPECT_EQ(window.interfaceText, "1: eth0");
    program.settings.nc = "0: lo";
    cycle.LoadInterfaces();
    EXPECT_EQ(window.interfaceText, "0: lo");

    // Only the first character of the label selects the row.
    ipHelper.interfaces.resize(13);
    for (std::uint32_t i = 2; i < 13; ++i) ipHelper.interfaces[i] = {i + 1, "if"};
    cycle.LoadInterfaces();
    window.interfaceText = "12: if";  // selects row 1, eth0
    cycle.StartCommand();
    cycle.Timer1Tick();
    SetCounters(1000 + 3000, 5000);
    cycle.Timer1Tick();
    EXPECT_EQ(window.labels[0], "3000");
}

TEST_F(MonitoringCycleTest, StartAndStopWriteTheirRowsAndSwitchTheTimersAndTheTray) {
    clock.ticks = 123 * 3600000u + 4 * 60000u + 5000u;  // 123 hours: each field keeps its last two digits
    StartOnEth0();
    EXPECT_EQ(window.LastRow(), "[2005/06/22 09:05:03]  監視を開始しました。Windows起動の経過時間 23:04:05");
    EXPECT_EQ(tray.shown.back(), "C:\\L\\veskarnetoff.ico|Veskar_Lookout  －監視中－");

    cycle.Timer1Tick();
    cycle.StopMonitoring();
    EXPECT_FALSE(window.timersOn);
    EXPECT_EQ(window.LastRow(), "[2005/06/22 09:05:03] 監視を停止しました。");
    EXPECT_EQ(tray.shown.back(), "C:\\L\\veskarnetoff.ico|Veskar_Lookout  －停止中－");

    SetCounters(1000 + 7000, 5000 + 9000);
    cycle.StartCommand();
    cycle.Timer1Tick();
    EXPECT_EQ(window.labels[0], "0");     // the received side starts afresh
    EXPECT_EQ(window.labels[1], "9000");  // the sent delta spans the stop
}

TEST_F(MonitoringCycleTest, DisconnectTimerRunsOnlyWhileASessionIsMarked) {
    StartOnEth0();
    cycle.Timer1Tick();
    EXPECT_FALSE(window.disconnectTimerOn);
    program.denyList[0] = "OK";
    program.denyList[2] = "BAD";
    net.steadySessions = ::fakes::FakeNetApi::Sessions({{"BAD", "eve", "W"}});
    cycle.Timer1Tick();
    EXPECT_TRUE(window.disconnectTimerOn);
    cycle.StopMonitoring();
    EXPECT_FALSE(window.disconnectTimerOn);
    cycle.StartCommand();  // the marked row stays, so the disconnection goes on
    EXPECT_TRUE(window.disconnectTimerOn);
}

TEST_F(MonitoringCycleTest, IntervalFollowsTheTimeSettingAndNonNumbersLeaveTheTimerIdle) {
    program.settings.time = "2.5";
    cycle.StartMonitoring();
    EXPECT_EQ(window.timer1Interval, 2500u);
    program.settings.time = "abc";
    cycle.StartMonitoring();
    EXPECT_EQ(window.timer1Interval, 0u);
}

// The first tick only takes the sample; an interval with nothing received writes no row.
TEST_F(MonitoringCycleTest, TrafficRowShowsReceivedAfterSendAndSentAfterReceive) {
    StartOnEth0();
    const std::size_t rows = window.rows.RowCount();
    cycle.Timer1Tick();
    EXPECT_EQ(window.labels[1], "0");  // the sent side only takes its sample
    EXPECT_TRUE(window.graphs[1].empty());
    SetCounters(1000, 5000 + 80000);  // outgoing traffic only
    cycle.Timer1Tick();
    EXPECT_EQ(window.rows.RowCount(), rows);

    SetCounters(1000 + 1234567, 5000 + 80000 + 250000);
    cycle.Timer1Tick();
    EXPECT_EQ(window.labels[0], "1234567");
    EXPECT_EQ(window.LastRow(), "[2005/06/22 09:05:03]  送信 : 1,235 KB  受信 : 250 KB");
    // The graphs are clipped at 100000; the labels keep the true delta.
    EXPECT_EQ(window.graphs[0], (std::vector<float>{0, 100000}));
    SetCounters(1000 + 1234567 + 99999, 5000);
    cycle.Timer1Tick();
    EXPECT_EQ(window.graphs[0].back(), 99999);

    program.settings.packet = 0;
    SetCounters(9000, 5000);
    cycle.Timer1Tick();
    EXPECT_EQ(window.rows.RowCount(), rows + 2);  // the two rows before packet was switched off
}

TEST_F(MonitoringCycleTest, CountersAreSignedThirtyTwoBitAndAWrapGivesANegativeDelta) {
    StartOnEth0();
    SetCounters(0x7FFFFFF0u, 0);
    cycle.Timer1Tick();
    SetCounters(0x80000010u, 0);  // passes 2^31
    cycle.Timer1Tick();
    EXPECT_EQ(window.labels[0], "-4294967264");
    EXPECT_EQ(window.graphs[0].back(), -4294967264.0f);
    ipHelper.interfaces[1].index = 99;  // a vanished interface reads zero
    cycle.Timer1Tick();
    EXPECT_EQ(window.labels[0], "2147483632");  // 0 minus the last, negative, reading
}

TEST_F(MonitoringCycleTest, ChangedSessionCountRaisesOneAlertPerSessionAndSwitchesTheTray) {
    StartOnEth0();
    net.steadySessions = fakes::FakeNetApi::Sessions({{"PC1", "taro", "W"}, {"PC2", "hana", "W"}});
    cycle.Timer1Tick();
    EXPECT_EQ(window.alerts, (std::vector<std::string>{"[マシン名]\r\nPC1\r\n[ユーザ名]\r\ntaro",
                                                     "[マシン名]\r\nPC2\r\n[ユーザ名]\r\nhana"}));
    EXPECT_EQ(tray.shown.back(), "C:\\L\\veskarneton.ico|[PC1][PC2]");
    EXPECT_EQ(window.serverPanel, "サーバ : MYPC");  // the computer-name box names the server

    cycle.Timer1Tick();  // same count: no new alert
    net.steadySessions = {};
    cycle.Timer1Tick();  // the count changed to 0: nothing to announce
    EXPECT_EQ(tray.shown.back(), "C:\\L\\veskarnetoff.ico|Veskar_Lookout  －監視中－");
    program.settings.window = 0;
    net.steadySessions = fakes::FakeNetApi::Sessions({{"PC3", "x", "W"}});
    cycle.Timer1Tick();
    EXPECT_EQ(window.alerts.size(), 2u);  // none of the later ticks raised one
}

}  // namespace
}  // namespace app
