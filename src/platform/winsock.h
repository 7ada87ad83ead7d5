#pragma once
// Windows Sockets 1.1: start and stop, host entries by name and by address, the local host
// name and the dotted-text parser. Names are UTF-8 here; the wrapper converts them through the
// ANSI code page, the only character set these calls know.
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace platform {

// An IPv4 address as inet_addr returns it: network byte order, i.e. the value whose memory
// holds the four bytes of the address in order. Models only compare it with 0 and pass it on.
using InetAddress = std::uint32_t;

// The parts of a hostent the program reads.
struct HostEntry {
    std::string name;                                 // h_name
    std::vector<std::vector<std::uint8_t>> addresses; // h_addr_list, h_length bytes each
};

class IWinsock {
public:
    virtual ~IWinsock() = default;
    // WSAStartup with the requested version (low byte major, high byte minor); its result, 0 on success.
    virtual int Startup(std::uint16_t version) = 0;
    // WSACleanup; 0 on success, SOCKET_ERROR (-1) otherwise.
    virtual int Cleanup() = 0;
    // gethostbyname; nothing when it returns no entry.
    virtual std::optional<HostEntry> HostByName(const std::string& name) = 0;
    // gethostbyaddr of the 4-byte address, family AF_INET; nothing when it returns no entry.
    virtual std::optional<HostEntry> HostByAddress(InetAddress address) = 0;
    // gethostname into a 256-byte buffer; nothing when it fails.
    virtual std::optional<std::string> HostName() = 0;
    // inet_addr; INADDR_NONE (all ones) for text that is no address.
    virtual InetAddress InetAddr(const std::string& text) = 0;
};

}  // namespace platform
