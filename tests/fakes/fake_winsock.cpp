#include "fakes/fake_winsock.h"

#include <array>
#include <charconv>
#include <cstring>


namespace fakes {

platform::InetAddress InetAddr(std::string_view text) {
    constexpr platform::InetAddress kNone = 0xFFFFFFFF;
    std::array<std::uint8_t, 4> bytes{};
    const char* position = text.data();
    const char* const end = text.data() + text.size();
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i > 0) {
            if (position == end || *position != '.') return kNone;
            ++position;
        }
        unsigned value = 0;
        const auto [next, error] = std::from_chars(position, end, value);
        if (error != std::errc() || value > 255) return kNone;
        bytes[i] = static_cast<std::uint8_t>(value);
        position = next;
    }
    if (position != end) return kNone;
    platform::InetAddress address;
    std::memcpy(&address, bytes.data(), sizeof address);
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

std::optional<platform::HostEntry> FakeWinsock::HostByName(const std::string& name) {
    const auto found = byName.find(name);
    if (found == byName.end()) return std::nullopt;
    return found->second;
}

std::optional<platform::HostEntry> FakeWinsock::HostByAddress(platform::InetAddress address) {
    const auto found = byAddress.find(address);
    if (found == byAddress.end()) return std::nullopt;
    return found->second;
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
