#include "network/name_resolution.h"

#include <gtest/gtest.h>

#include "fakes/fake_dialogs.h"
#include "fakes/fake_winsock.h"

namespace network {
namespace {

TEST(WinsockHelpers, NamesAndAddressesResolveOrGiveNothingAndFailedStartsAndStopsShowTheirMessages) {
    fakes::FakeWinsock winsock;
    fakes::FakeDialogs dialogs;
    winsock.AddHost("PC01", {"192.168.200.254", "10.0.0.1"});
    winsock.AddHost("pc01.example.lan", {"192.168.1.20"});
    EXPECT_EQ(HostToAddress(winsock, "PC01"), "192.168.200.254");  // the first address
    EXPECT_EQ(AddressToName(winsock, "192.168.1.20"), "pc01.example.lan");
    EXPECT_EQ(AddressToName(winsock, "PC01"), "");  // a name is no address

    winsock.hostName = "MYPC";
    EXPECT_EQ(LocalAddressText(winsock), std::nullopt);  // the name does not resolve
    winsock.AddHost("MYPC", {"192.168.1.10", "172.16.0.3"});
    EXPECT_EQ(LocalAddressText(winsock), "ローカルIP : 192.168.1.10");
    EXPECT_EQ(winsock.started, 0);  // every start was cleaned up

    EXPECT_TRUE(WinsockStartForNames(winsock, dialogs));
    WinsockStop(winsock, dialogs);
    winsock.cleanupResult = -1;
    WinsockStop(winsock, dialogs);
    winsock.startupResult = 10092;  // WSAVERNOTSUPPORTED
    EXPECT_FALSE(WinsockStartForNames(winsock, dialogs));
    EXPECT_FALSE(WinsockStart(winsock));  // the plain start says nothing
    EXPECT_EQ(LocalAddressText(winsock), std::nullopt);
    ASSERT_EQ(dialogs.Texts(), (std::vector<std::string>{"エラー", "エラーNo.4"}));
    EXPECT_EQ(dialogs.messages[0].style, platform::msgbox::kExclamation);
    EXPECT_EQ(dialogs.messages[1].style, platform::msgbox::kOkOnly);
}

}  // namespace
}  // namespace network
