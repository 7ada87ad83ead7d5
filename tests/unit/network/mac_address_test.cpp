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
    arp.AddArpReply(fakes::InetAddr("192.168.1.6"), {0x00, 0x1B, 0x0C, 0x00, 0x05, 0xFF});
    EXPECT_EQ(Mac("192.168.1.6"), "00:1B:C:00:5:FF");
    arp.AddArpReply(fakes::InetAddr("10.0.0.2"), {0xAB, 0x01, 0x10, 0xF0});  // the returned length counts
    EXPECT_EQ(Mac("10.0.0.2"), "AB:1:10:F0");
    EXPECT_EQ(Mac(""), "");
}

TEST_F(AddressToMacTest, AFailedLookupIsNamedInTheMacColumn) {
    EXPECT_EQ(Mac("192.168.1.99"), "(SendARP call failed)");  // no answer
    arp.AddArpReply(fakes::InetAddr("192.168.1.7"), {0, 0, 0, 0, 0x12, 0x34});  // the first four bytes zero
    EXPECT_EQ(Mac("192.168.1.7"), "(SendARP call failed)");
    platform::ArpReply failed{31, {0x00, 0x0A, 0x95, 0x9D, 0x68, 0x16}, 6};  // a non-zero result wins
    arp.arpReplies[fakes::InetAddr("192.168.1.9")] = failed;
    EXPECT_EQ(Mac("192.168.1.9"), "(SendARP call failed)");
    arp.AddArpReply(0, {0x00, 0x0A, 0x95, 0x9D, 0x68, 0x16});
    EXPECT_EQ(Mac("0.0.0.0"), "(SendARP call failed)");  // an address that converts to zero is not asked
}

}  // namespace
}  // namespace network
