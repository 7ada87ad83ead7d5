#include "network/connection_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/fake_dialogs.h"
#include "fakes/fake_ip_helper.h"

namespace network {
namespace {

using ::testing::ElementsAre;

// A port field as the table holds it: network byte order in the low two bytes.
std::array<std::uint8_t, 4> Port(int port) { return {std::uint8_t(port >> 8), std::uint8_t(port & 0xFF), 0, 0}; }

// TCP ports keep the fraction of a division by 256 and round it to even (50000 shows 50001); UDP
// ports overflow above 32767.
TEST(ConnectionTable, TcpRowsThenUdpRowsThenTheLogAndFailuresShowTheirTextKeepingTheRowsSoFar) {
    fakes::FakeDialogs dialogs;
    fakes::FakeIpHelper ipHelper;
    base::TableModel list;
    int logs = 0;
    ConnectionTablePage page{dialogs, ipHelper, list, [&] { ++logs; }};
    ipHelper.tcpRows = {{2, {127, 0, 0, 1}, Port(50000), {0, 0, 0, 0}, Port(0)},
                        {99, {10, 0, 0, 2}, Port(32769), {192, 168, 1, 200}, Port(32768)}};  // 99: no name
    ipHelper.udpRows = {{{0, 0, 0, 0}, Port(32767)}};
    EXPECT_TRUE(page.Refresh());
    ASSERT_EQ(list.RowCount(), 3u);
    EXPECT_THAT(list.RowAt(0).cells, ElementsAre("TCP", "127.0.0.1", "50001", "0.0.0.0", "0", "LISTEN"));
    EXPECT_THAT(list.RowAt(1).cells, ElementsAre("TCP", "10.0.0.2", "32770", "192.168.1.200", "32768", ""));
    EXPECT_THAT(list.RowAt(2).cells, ElementsAre("UDP", "0.0.0.0", "32767", "*", "*", ""));
    EXPECT_EQ(logs, 1);

    ipHelper.udpRows = {{{0, 0, 0, 0}, Port(53)}, {{0, 0, 0, 0}, Port(40000)}, {{0, 0, 0, 0}, Port(54)}};
    page.Refresh();
    EXPECT_EQ(list.RowCount(), 3u);  // the TCP rows and port 53
    ipHelper.tcpRows.reset();  // no IP Helper
    page.Refresh();
    EXPECT_EQ(list.RowCount(), 0u);
    EXPECT_THAT(dialogs.Texts(),
                ElementsAre("NETSTAT タブで m1 が発生しました。", "IP Helper is not supported by this system."));
    EXPECT_EQ(logs, 1);  // no log after a failure
}

}  // namespace
}  // namespace network
