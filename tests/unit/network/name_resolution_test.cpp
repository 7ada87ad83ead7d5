#include "network/name_resolution.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/product.h"
#include "fakes/fake_dialogs.h"
#include "fakes/fake_winsock.h"
#include "network/dotted_address.h"

namespace network {
namespace {

using ::testing::ElementsAre;

TEST(DottedAddress, BytesAreUnsignedDecimalsWithoutPadding) {
    const std::uint8_t address[] = {192, 168, 0, 7};
    EXPECT_EQ(DottedAddress(address), "192.168.0.7");
    const std::uint8_t high[] = {255, 128, 10, 1};
    EXPECT_EQ(DottedAddress(high), "255.128.10.1");
    EXPECT_EQ(DottedAddress({}), "");
}

class WinsockHelpers : public ::testing::Test {
protected:
    fakes::FakeWinsock winsock;
    fakes::FakeDialogs dialogs;
};

TEST_F(WinsockHelpers, StartAsksForVersionOnePointOne) {
    EXPECT_TRUE(WinsockStart(winsock));
    winsock.startupResult = 10091;  // WSASYSNOTREADY
    EXPECT_FALSE(WinsockStart(winsock));
    EXPECT_THAT(winsock.calls, ElementsAre("startup 257", "startup 257"));
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(WinsockHelpers, StopReportsAFailedCleanupWithTheExclamationIcon) {
    WinsockStop(winsock, dialogs);
    EXPECT_TRUE(dialogs.messages.empty());

    winsock.cleanupResult = -1;
    WinsockStop(winsock, dialogs);
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].text, "エラー");
    EXPECT_EQ(dialogs.messages[0].title, base::kProductName);
    EXPECT_EQ(dialogs.messages[0].style, platform::msgbox::kExclamation);
}

TEST_F(WinsockHelpers, StartForNamesReportsOnlyAFailedStart) {
    EXPECT_TRUE(WinsockStartForNames(winsock, dialogs));
    EXPECT_TRUE(dialogs.messages.empty());

    winsock.startupResult = 10092;  // WSAVERNOTSUPPORTED
    EXPECT_FALSE(WinsockStartForNames(winsock, dialogs));
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].text, "エラーNo.4");
    EXPECT_EQ(dialogs.messages[0].title, base::kProductName);
    EXPECT_EQ(dialogs.messages[0].style, platform::msgbox::kOkOnly);
    EXPECT_EQ(winsock.calls.back(), "startup 257");
}

TEST_F(WinsockHelpers, HostToAddressGivesTheFirstAddressOfTheEntry) {
    winsock.AddHost("PC01", {"192.168.200.254", "10.0.0.1"});
    EXPECT_EQ(HostToAddress(winsock, "PC01"), "192.168.200.254");
}

TEST_F(WinsockHelpers, HostToAddressIsEmptyForANameThatDoesNotResolve) {
    winsock.AddHost("NOADDRESS", {});
    EXPECT_EQ(HostToAddress(winsock, "UNKNOWN"), "");
    EXPECT_EQ(HostToAddress(winsock, "NOADDRESS"), "");
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(WinsockHelpers, AddressToNameLooksTheAddressUp) {
    winsock.AddHost("pc01.example.lan", {"192.168.1.20"});
    EXPECT_EQ(AddressToName(winsock, "192.168.1.20"), "pc01.example.lan");
    EXPECT_EQ(winsock.calls.back(), "byaddress 192.168.1.20");
    EXPECT_EQ(AddressToName(winsock, "192.168.1.21"), "");
    // A client known only by its name is no address: the lookup of the all-ones value finds nothing.
    EXPECT_EQ(AddressToName(winsock, "PC01"), "");
    EXPECT_EQ(winsock.calls.back(), "byaddress 255.255.255.255");
}

TEST_F(WinsockHelpers, LocalAddressTextNamesTheFirstAddressOfThisPc) {
    winsock.hostName = "MYPC";
    winsock.AddHost("MYPC", {"192.168.1.10", "172.16.0.3"});
    EXPECT_EQ(LocalAddressText(winsock), "ローカルIP : 192.168.1.10");
    EXPECT_THAT(winsock.calls, ElementsAre("startup 257", "hostname", "byname MYPC", "cleanup"));
    EXPECT_EQ(winsock.started, 0);
}

TEST_F(WinsockHelpers, LocalAddressTextIsNothingWhenThePcNameDoesNotResolve) {
    winsock.hostName = "MYPC";
    EXPECT_EQ(LocalAddressText(winsock), std::nullopt);
    EXPECT_THAT(winsock.calls, ElementsAre("startup 257", "hostname", "byname MYPC", "cleanup"));

    winsock.calls.clear();
    winsock.hostName.reset();
    EXPECT_EQ(LocalAddressText(winsock), std::nullopt);
    EXPECT_THAT(winsock.calls, ElementsAre("startup 257", "hostname", "cleanup"));
    EXPECT_EQ(winsock.started, 0);
}

TEST_F(WinsockHelpers, LocalAddressTextIsNothingWithoutWinsock) {
    winsock.startupResult = 10091;
    winsock.hostName = "MYPC";
    winsock.AddHost("MYPC", {"192.168.1.10"});
    EXPECT_EQ(LocalAddressText(winsock), std::nullopt);
    EXPECT_THAT(winsock.calls, ElementsAre("startup 257"));
}

}  // namespace
}  // namespace network
