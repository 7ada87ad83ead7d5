// The real Winsock, WNet and IP Helper wrappers and the name helpers over them. Under Wine there is
// no network neighbourhood and no ARP, so those checks hold on any machine: they compare the
// wrappers with what the system answers and pin the failure paths the program shows.
#include <winsock2.h>
#include <windows.h>

#include <gtest/gtest.h>

#include "fakes/fake_dialogs.h"
#include "network/mac_address.h"
#include "network/name_resolution.h"
#include "network/network_neighbourhood.h"
#include "platform/win32/ip_helper.h"
#include "platform/win32/winsock.h"
#include "platform/win32/wnet.h"

namespace {

class WinsockStarted : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(winsock.Startup(network::kWinsockVersion), 0); }
    void TearDown() override { EXPECT_EQ(winsock.Cleanup(), 0); }

    platform::win32::Winsock winsock;
    platform::win32::IpHelper ipHelper;
};

TEST_F(WinsockStarted, NamesAndAddressesResolve) {
    EXPECT_EQ(network::HostToAddress(winsock, "localhost"), "127.0.0.1");
    EXPECT_EQ(network::HostToAddress(winsock, "no-such-host.invalid"), "");
    EXPECT_FALSE(network::AddressToName(winsock, "127.0.0.1").empty());
    EXPECT_TRUE(network::LocalAddressText(winsock));
}

TEST_F(WinsockStarted, AFailedArpLookupIsShownAsSuch) {
    EXPECT_EQ(network::AddressToMac(winsock, ipHelper, "127.0.0.1"), "(SendARP call failed)");
    EXPECT_EQ(network::AddressToMac(winsock, ipHelper, ""), "");
}

// The loopback's table entry and counters are the loopback monitoring scenario's.
TEST(IpHelper, DescriptionsEndAtTheirTextAndAnUnknownInterfaceHasNoCounters) {
    platform::win32::IpHelper ipHelper;
    const auto table = ipHelper.InterfaceTable();
    ASSERT_FALSE(table.empty());
    for (const auto& row : table) EXPECT_EQ(row.description.find('\0'), std::string::npos);
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
    network::ListNetworkPcs(dialogs, wnet, winsock, ipHelper, lstvPc);  // its count is the unit tests'
    ASSERT_EQ(dialogs.messages.size(), 2u);
    EXPECT_EQ(dialogs.messages[1].text == "WNetOpenEnum Error No.1", opened.result != 0);
}

}  // namespace
