// The real Winsock, WNet and IP Helper wrappers and the name helpers over them. Under Wine there is
// no network neighbourhood and no ARP, so those checks hold on any machine: they compare the
// wrappers with what the system answers and pin the failure paths the program shows.
#include <winsock2.h>
#include <windows.h>
#include <iphlpapi.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "fakes/fake_dialogs.h"
#include "network/mac_address.h"
#include "network/name_resolution.h"
#include "network/network_neighbourhood.h"
#include "platform/win32/ip_helper.h"
#include "platform/win32/winsock.h"
#include "platform/win32/wnet.h"

namespace {

TEST(Winsock, StartsAndStopsVersionOnePointOne) {
    platform::win32::Winsock winsock;
    fakes::FakeDialogs dialogs;
    ASSERT_TRUE(network::WinsockStart(winsock));
    network::WinsockStop(winsock, dialogs);
    EXPECT_TRUE(dialogs.messages.empty());

    // One stop more than starts: WSACleanup fails and the program says so.
    network::WinsockStop(winsock, dialogs);
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].text, "エラー");
}

class WinsockStarted : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(winsock.Startup(network::kWinsockVersion), 0); }
    void TearDown() override { EXPECT_EQ(winsock.Cleanup(), 0); }

    platform::win32::Winsock winsock;
    platform::win32::IpHelper ipHelper;
};

TEST_F(WinsockStarted, ThisPcsNameResolvesToIpv4Addresses) {
    const auto name = winsock.HostName();
    ASSERT_TRUE(name);
    EXPECT_FALSE(name->empty());
    const auto entry = winsock.HostByName(*name);
    ASSERT_TRUE(entry);
    ASSERT_FALSE(entry->addresses.empty());
    for (const auto& address : entry->addresses) EXPECT_EQ(address.size(), 4u);

    const auto text = network::LocalAddressText(winsock);
    ASSERT_TRUE(text);
    EXPECT_EQ(text->rfind("ローカルIP : ", 0), 0u) << *text;
    EXPECT_EQ(std::count(text->begin(), text->end(), '.'), 3) << *text;
}

TEST_F(WinsockStarted, DottedTextConvertsToTheBytesInOrder) {
    const platform::InetAddress loopback = winsock.InetAddr("127.0.0.1");
    std::uint8_t bytes[4];
    std::memcpy(bytes, &loopback, sizeof bytes);
    EXPECT_EQ(bytes[0], 127);
    EXPECT_EQ(bytes[1], 0);
    EXPECT_EQ(bytes[2], 0);
    EXPECT_EQ(bytes[3], 1);
    EXPECT_EQ(winsock.InetAddr("no address"), INADDR_NONE);
}

TEST_F(WinsockStarted, NamesAndAddressesResolve) {
    EXPECT_EQ(network::HostToAddress(winsock, "localhost"), "127.0.0.1");
    EXPECT_EQ(network::HostToAddress(winsock, "no-such-host.invalid"), "");
    EXPECT_FALSE(network::AddressToName(winsock, "127.0.0.1").empty());
}

TEST_F(WinsockStarted, AFailedArpLookupIsShownAsSuch) {
    const platform::ArpReply reply = ipHelper.SendArp(winsock.InetAddr("127.0.0.1"));
    EXPECT_NE(reply.result, 0u);
    EXPECT_EQ(network::AddressToMac(winsock, ipHelper, "127.0.0.1"), "(SendARP call failed)");
    EXPECT_EQ(network::AddressToMac(winsock, ipHelper, ""), "");
}

TEST(IpHelper, InterfaceTableIsSortedAndHoldsTheLoopback) {
    platform::win32::IpHelper ipHelper;
    const auto table = ipHelper.InterfaceTable();
    ASSERT_FALSE(table.empty());
    EXPECT_TRUE(std::is_sorted(table.begin(), table.end(),
                               [](const auto& a, const auto& b) { return a.index < b.index; }));
    bool loopback = false;
    for (const auto& row : table) {
        MIB_IFROW system{};
        system.dwIndex = row.index;
        ASSERT_EQ(GetIfEntry(&system), static_cast<DWORD>(NO_ERROR)) << row.index;
        if (system.dwType == IF_TYPE_SOFTWARE_LOOPBACK) loopback = true;

        ASSERT_TRUE(ipHelper.Counters(row.index)) << row.index;
        EXPECT_FALSE(row.description.empty());
        EXPECT_EQ(row.description.find('\0'), std::string::npos);
    }
    EXPECT_TRUE(loopback);
    EXPECT_FALSE(ipHelper.Counters(table.back().index + 1000));
}

TEST(WNet, TheNeighbourhoodListReportsAnUnreachableNetwork) {
    platform::win32::WNet wnet;
    platform::NetResource network;
    network.provider = "Microsoft Windows Network";
    const platform::OpenedEnumeration opened =
        wnet.OpenEnum(platform::wnet::kScopeGlobalNet, platform::wnet::kTypeAny, 0, network);
    EXPECT_EQ(opened.result == 0, opened.enumeration != nullptr);

    platform::win32::Winsock winsock;
    platform::win32::IpHelper ipHelper;
    fakes::FakeDialogs dialogs;
    dialogs.answers = {platform::msgbox::kYes};
    base::TableModel lstvPc;
    const std::size_t count = network::ListNetworkPcs(dialogs, wnet, winsock, ipHelper, lstvPc);
    EXPECT_EQ(count, lstvPc.RowCount());
    ASSERT_EQ(dialogs.messages.size(), 2u);
    if (opened.result != 0) {
        EXPECT_EQ(dialogs.messages[1].text, "WNetOpenEnum Error No.1");
        EXPECT_EQ(count, 0u);
    } else {
        EXPECT_EQ(dialogs.messages[1].text, "マイ ネットワーク情報取得完了");
    }
}

}  // namespace
