#include "network/connection_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "fakes/fake_dialogs.h"
#include "fakes/fake_ip_helper.h"

namespace network {
namespace {

using ::testing::ElementsAre;

// A port field as the table holds it: network byte order in the low two bytes.
std::array<std::uint8_t, 4> Port(int port) {
    return {static_cast<std::uint8_t>(port >> 8), static_cast<std::uint8_t>(port & 0xFF), 0, 0};
}

TEST(TcpPortNumber, SwapsBytesButKeepsTheFractionRoundedHalfToEven) {
    EXPECT_EQ(TcpPortNumber(Port(80)), 80);
    EXPECT_EQ(TcpPortNumber(Port(443)), 443);
    EXPECT_EQ(TcpPortNumber(Port(8080)), 8080);
    EXPECT_EQ(TcpPortNumber(Port(32768)), 32768);  // high byte 128: x.5 rounds down to even
    EXPECT_EQ(TcpPortNumber(Port(32769)), 32770);  // the same tie rounds up to even
    EXPECT_EQ(TcpPortNumber(Port(49152)), 49153);
    EXPECT_EQ(TcpPortNumber(Port(50000)), 50001);
}

TEST(UdpPortNumber, IsSixteenBitSigned) {
    EXPECT_EQ(UdpPortNumber(Port(137)), 137);
    EXPECT_EQ(UdpPortNumber(Port(32767)), 32767);
    EXPECT_THROW(UdpPortNumber(Port(32768)), base::RuntimeError);
}

TEST(TcpStateText, NamesOneToTwelveOnly) {
    EXPECT_EQ(TcpStateText(1), "CLOSED");
    EXPECT_EQ(TcpStateText(5), "ESTABLISHED");
    EXPECT_EQ(TcpStateText(12), "DELETE_TCB");
    EXPECT_EQ(TcpStateText(0), "");
    EXPECT_EQ(TcpStateText(13), "");
}

class ConnectionTableTest : public ::testing::Test {
protected:
    std::vector<std::vector<std::string>> Rows() const {
        std::vector<std::vector<std::string>> rows;
        for (std::size_t i = 0; i < list.RowCount(); ++i) rows.push_back(list.RowAt(i).cells);
        return rows;
    }

    fakes::FakeDialogs dialogs;
    fakes::FakeIpHelper ipHelper;
    base::TableModel list;
    int logs = 0;
    ConnectionTablePage page{dialogs, ipHelper, list, [this] { ++logs; }};
};

TEST_F(ConnectionTableTest, TcpRowsThenUdpRowsThenTheLog) {
    list.AddRow({"old"});
    ipHelper.tcpRows = {{2, {127, 0, 0, 1}, Port(50000), {0, 0, 0, 0}, Port(0)},
                        {99, {10, 0, 0, 2}, Port(1025), {192, 168, 1, 200}, Port(443)}};
    ipHelper.udpRows = {{{0, 0, 0, 0}, Port(137)}};
    EXPECT_TRUE(page.Refresh());
    EXPECT_THAT(Rows(), ElementsAre(ElementsAre("TCP", "127.0.0.1", "50001", "0.0.0.0", "0", "LISTEN"),
                                    ElementsAre("TCP", "10.0.0.2", "1025", "192.168.1.200", "443", ""),
                                    ElementsAre("UDP", "0.0.0.0", "137", "*", "*", "")));
    EXPECT_TRUE(dialogs.messages.empty());
    EXPECT_EQ(logs, 1);
}

TEST_F(ConnectionTableTest, WithoutIpHelperTheListStaysEmpty) {
    list.AddRow({"old"});
    ipHelper.tcpRows.reset();
    page.Refresh();
    EXPECT_EQ(list.RowCount(), 0u);
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].text, "IP Helper is not supported by this system.");
    EXPECT_EQ(logs, 0);
}

TEST_F(ConnectionTableTest, AHighUdpPortEndsTheListingWithTheRowsSoFar) {
    ipHelper.tcpRows = {{5, {127, 0, 0, 1}, Port(80), {127, 0, 0, 1}, Port(1030)}};
    ipHelper.udpRows = {{{0, 0, 0, 0}, Port(53)}, {{0, 0, 0, 0}, Port(40000)}, {{0, 0, 0, 0}, Port(54)}};
    page.Refresh();
    ASSERT_EQ(list.RowCount(), 2u);
    EXPECT_EQ(list.Cell(1, 2), "53");
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].text, "NETSTAT タブで m1 が発生しました。");
    EXPECT_EQ(logs, 0);
}

}  // namespace
}  // namespace network
