#include "fakes/fake_winsock.h"

#include <cstdio>
#include <cstring>

namespace fakes {

platform::InetAddress InetAddr(std::string_view text) {
    unsigned b[4];
    char rest;
    const std::string copy(text);
    if (std::sscanf(copy.c_str(), "%3u.%3u.%3u.%3u%c", &b[0], &b[1], &b[2], &b[3], &rest) != 4 || b[0] > 255 ||
        b[1] > 255 || b[2] > 255 || b[3] > 255) {
        return 0xFFFFFFFF;
    }
    const std::uint8_t bytes[4] = {std::uint8_t(b[0]), std::uint8_t(b[1]), std::uint8_t(b[2]), std::uint8_t(b[3])};
    platform::InetAddress address;
    std::memcpy(&address, bytes, sizeof address);
    return address;
}

int FakeWinsock::Startup(std::uint16_t) {
    if (startupResult == 0) ++started;
    return startupResult;
}

int FakeWinsock::Cleanup() {
    if (cleanupResult == 0 && started > 0) --started;
    return cleanupResult;
}

template <typename Key>
static std::optional<platform::HostEntry> Find(const std::map<Key, platform::HostEntry>& table, const Key& key) {
    const auto found = table.find(key);
    return found == table.end() ? std::nullopt : std::optional(found->second);
}

std::optional<platform::HostEntry> FakeWinsock::HostByName(const std::string& name) { return Find(byName, name); }

std::optional<platform::HostEntry> FakeWinsock::HostByAddress(platform::InetAddress address) {
    return Find(byAddress, address);
}

std::optional<std::string> FakeWinsock::HostName() { return hostName; }

void FakeWinsock::AddHost(const std::string& name, const std::vector<std::string>& addresses) {
    platform::HostEntry entry{name, {}};
    for (const std::string& text : addresses) {
        const platform::InetAddress address = fakes::InetAddr(text);
        std::vector<std::uint8_t> bytes(4);
        std::memcpy(bytes.data(), &address, sizeof address);
        entry.addresses.push_back(bytes);
    }
    byName[name] = entry;
    if (!addresses.empty()) byAddress[fakes::InetAddr(addresses.front())] = entry;
}

}  // namespace fakes
