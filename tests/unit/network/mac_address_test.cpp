#include "network/mac_address.h"

#include <gtest/gtest.h>

#include "fakes/fake_ip_helper.h"
#include "fakes/fake_winsock.h"

namespace network {
namespace {

// The MAC text itself is pinned by the network neighbourhood's rows.
TEST(AddressToMac, TheReturnedLengthCountsAndAFailedLookupIsNamedInTheMacColumn) {
    fakes::FakeWinsock winsock;
    fakes::FakeIpHelper arp;
    const auto mac = [&](const std::string& address) { return AddressToMac(winsock, arp, address); };
    arp.AddArpReply(fakes::InetAddr("10.0.0.2"), {0xAB, 0x01, 0x10, 0xF0});
    EXPECT_EQ(mac("10.0.0.2"), "AB:1:10:F0");

    EXPECT_EQ(mac("192.168.1.99"), "(SendARP call failed)");  // no answer
    arp.AddArpReply(fakes::InetAddr("192.168.1.7"), {0, 0, 0, 0, 0x12, 0x34});  // the first four bytes zero
    EXPECT_EQ(mac("192.168.1.7"), "(SendARP call failed)");
    arp.arpReplies[fakes::InetAddr("192.168.1.9")] = {31, {0x00, 0x0A, 0x95, 0x9D, 0x68, 0x16}, 6};  // result 31
    EXPECT_EQ(mac("192.168.1.9"), "(SendARP call failed)");
    arp.AddArpReply(0, {0x00, 0x0A, 0x95, 0x9D, 0x68, 0x16});
    EXPECT_EQ(mac("0.0.0.0"), "(SendARP call failed)");  // an address that converts to zero is not asked
}

}  // namespace
}  // namespace network
