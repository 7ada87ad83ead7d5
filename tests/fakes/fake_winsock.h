#pragma once
// Winsock over tables: host entries by name and by address, a parser for dotted text, and a
// count of the starts not yet cleaned up.
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/winsock.h"

namespace fakes {

// What inet_addr gives for the text: the four bytes of "a.b.c.d" in memory order, all ones for
// anything else.
platform::InetAddress InetAddr(std::string_view text);

class FakeWinsock : public platform::IWinsock {
public:
    int Startup(std::uint16_t version) override;
    int Cleanup() override;
    std::optional<platform::HostEntry> HostByName(const std::string& name) override;
    std::optional<platform::HostEntry> HostByAddress(platform::InetAddress address) override;
    std::optional<std::string> HostName() override;
    platform::InetAddress InetAddr(const std::string& text) override { return fakes::InetAddr(text); }

    // A host whose name resolves to the given dotted addresses, and whose first address resolves back.
    void AddHost(const std::string& name, const std::vector<std::string>& addresses);

    int startupResult = 0;
    int cleanupResult = 0;
    std::optional<std::string> hostName;
    std::map<std::string, platform::HostEntry> byName;
    std::map<platform::InetAddress, platform::HostEntry> byAddress;

    int started = 0;                 // successful starts not yet cleaned up
};

}  // namespace fakes
