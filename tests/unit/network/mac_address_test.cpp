#include "network/mac_address.h"

#include <gtest/gtest.h>

#include "fakes/fake_ip_helper.h"
#include "fakes/fake_winsock.h"

namespace network {
namespace {

class AddressToMacTest : public ::testing::Test {
protected:
    std::string Mac(const std::string& address) { return AddressToMac(winsock, arp, address); }

    fakes::FakeWinsock winsock;
    fakes::FakeIpHelper arp;
};

TEST_F(AddressToMacTest, ZeroBytesKeepTwoDigitsOthersLoseTheirLeadingZero) {
    arp.AddArpReply(fakes::InetAddr("192.168.1.5"), {0x00, 0x0A, 0x95, 0x9D, 0x68, 0x16});
    arp.AddArpReply(fakes::InetAddr("192.168.1.6"), {0x00, 0x1B, 0x0C, 0x00, 0x05, 0xFF});
    EXPECT_EQ(Mac("192.168.1.5"), "00:A:95:9D:68:16");
    EXPECT_EQ(Mac("192.168.1.6"), "00:1B:C:00:5:FF");
    EXPECT_EQ(arp.arpRequests, (std::vector<std::uint32_t>{fakes::InetAddr("192.168.1.5"),
                                                            fakes::InetAddr("192.168.1.6")}));
}

TEST_F(AddressToMacTest, TheReturnedLengthDecidesHowManyBytesAreShown) {
    arp.AddArpReply(fakes::InetAddr("10.0.0.2"), {0xAB, 0x01, 0x10, 0xF0});
    EXPECT_EQ(Mac("10.0.0.2"), "AB:1:10:F0");
    platform::ArpReply longer{0, {0x11, 0x22, 0x33, 0x44, 0x55, 0x66, 0x77, 0x88}, 8};
    arp.arpReplies[fakes::InetAddr("10.0.0.3")] = longer;
    EXPECT_EQ(Mac("10.0.0.3"), "11:22:33:44:55:66:77:88");
}

TEST_F(AddressToMacTest, AFailedLookupIsNamedInTheMacColumn) {
    // No answer: the call itself fails.
    EXPECT_EQ(Mac("192.168.1.99"), "(SendARP call failed)");

    // Success, but the first four bytes are zero.
    arp.AddArpReply(fakes::InetAddr("192.168.1.7"), {0, 0, 0, 0, 0x12, 0x34});
    EXPECT_EQ(Mac("192.168.1.7"), "(SendARP call failed)");

    // Success with bytes, but a length of 0.
    platform::ArpReply empty{0, {0x00, 0x0A, 0x95, 0x9D, 0x68, 0x16}, 0};
    arp.arpReplies[fakes::InetAddr("192.168.1.8")] = empty;
    EXPECT_EQ(Mac("192.168.1.8"), "(SendARP call failed)");

    // A non-zero result wins over good bytes.
    platform::ArpReply failed{31, {0x00, 0x0A, 0x95, 0x9D, 0x68, 0x16}, 6};
    arp.arpReplies[fakes::InetAddr("192.168.1.9")] = failed;
    EXPECT_EQ(Mac("192.168.1.9"), "(SendARP call failed)");
}

TEST_F(AddressToMacTest, AnAddressThatConvertsToZeroIsNotLookedUp) {
    arp.AddArpReply(0, {0x00, 0x0A, 0x95, 0x9D, 0x68, 0x16});
    EXPECT_EQ(Mac("0.0.0.0"), "(SendARP call failed)");
    EXPECT_TRUE(arp.arpRequests.empty());
}

TEST_F(AddressToMacTest, TextThatIsNoAddressIsStillLookedUp) {
    EXPECT_EQ(Mac("PC01"), "(SendARP call failed)");
    EXPECT_EQ(arp.arpRequests, std::vector<std::uint32_t>{0xFFFFFFFF});
}

TEST_F(AddressToMacTest, AnEmptyAddressGivesAnEmptyMac) {
    EXPECT_EQ(Mac(""), "");
    EXPECT_TRUE(arp.arpRequests.empty());
    EXPECT_TRUE(winsock.calls.empty());
}

}  // namespace
}  // namespace network
