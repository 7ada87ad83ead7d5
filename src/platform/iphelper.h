#pragma once
// IP Helper: the interface table and one interface's fresh counters; the ARP lookup; the TCP
// and UDP tables.
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace platform {

struct InterfaceRow {
    std::uint32_t index = 0;    // dwIndex
    std::string description;    // bDescr, cut to its stated length, as UTF-8
};

// One interface's traffic counters, read fresh at every monitoring tick.
struct InterfaceCounters {
    std::uint32_t inOctets = 0;
    std::uint32_t outOctets = 0;
};

// What SendARP left behind.
struct ArpReply {
    std::uint32_t result = 0;               // the call's result, 0 on success
    std::array<std::uint8_t, 8> address{};  // the 8-byte buffer, zeroed before the call
    std::uint32_t length = 0;               // the physical-address length the call returned
};

// One row of the TCP table: the state number, and the address and port fields as their four
// bytes lie in memory (addresses and ports are in network byte order inside them).
struct TcpTableRow {
    std::uint32_t state = 0;
    std::array<std::uint8_t, 4> localAddress{};
    std::array<std::uint8_t, 4> localPort{};
    std::array<std::uint8_t, 4> remoteAddress{};
    std::array<std::uint8_t, 4> remotePort{};
};

// One row of the UDP table, its fields as their bytes lie in memory.
struct UdpTableRow {
    std::array<std::uint8_t, 4> localAddress{};
    std::array<std::uint8_t, 4> localPort{};
};

class IIpHelper {
public:
    virtual ~IIpHelper() = default;
    // GetIfTable, sorted by index; empty when the call fails.
    virtual std::vector<InterfaceRow> InterfaceTable() = 0;
    // GetIfEntry for one index, its counters only; nothing when the call fails (the
    // interface vanished).
    virtual std::optional<InterfaceCounters> Counters(std::uint32_t index) = 0;
    // SendARP to an IPv4 address in network byte order (as inet_addr gives it), source 0,
    // an 8-byte buffer and a length of 6 on entry.
    virtual ArpReply SendArp(std::uint32_t destination) = 0;
    // GetTcpTable unsorted, in table order: a size query, then the table into a buffer of that
    // size (asked again while the table grows in between). Nothing when the size query answers
    // 50 (the system has no IP Helper); no rows when a call fails otherwise.
    virtual std::optional<std::vector<TcpTableRow>> TcpTable() = 0;
    // GetUdpTable unsorted, in table order, read the same way; no rows when it fails.
    virtual std::vector<UdpTableRow> UdpTable() = 0;
};

}  // namespace platform
