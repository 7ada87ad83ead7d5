// Winsock 1.1 has only ANSI calls: names cross the boundary in the ANSI code page.
#define _WINSOCK_DEPRECATED_NO_WARNINGS
#include "platform/win32/winsock.h"

#include <winsock2.h>

#include "base/text_encoding.h"

namespace platform::win32 {
namespace {

// The hostent belongs to the calling thread and lives only until its next Winsock call: copy it out.
std::optional<HostEntry> Copy(const hostent* entry) {
    if (!entry) return std::nullopt;
    HostEntry copy;
    copy.name = entry->h_name ? base::AnsiToUtf8(entry->h_name) : std::string();
    const auto length = static_cast<std::size_t>(entry->h_length > 0 ? entry->h_length : 0);
    for (char** address = entry->h_addr_list; address && *address; ++address) {
        const auto* bytes = reinterpret_cast<const std::uint8_t*>(*address);
        copy.addresses.emplace_back(bytes, bytes + length);
    }
    return copy;
}

}  // namespace

int Winsock::Startup(std::uint16_t version) {
    WSADATA data{};
    return WSAStartup(version, &data);
}

int Winsock::Cleanup() { return WSACleanup(); }

std::optional<HostEntry> Winsock::HostByName(const std::string& name) {
    return Copy(gethostbyname(base::Utf8ToAnsi(name).c_str()));
}

std::optional<HostEntry> Winsock::HostByAddress(InetAddress address) {
    return Copy(gethostbyaddr(reinterpret_cast<const char*>(&address), sizeof address, AF_INET));
}

std::optional<std::string> Winsock::HostName() {
    char name[256]{};
    if (gethostname(name, sizeof name) != 0) return std::nullopt;
    name[sizeof name - 1] = '\0';
    return base::AnsiToUtf8(name);
}

InetAddress Winsock::InetAddr(const std::string& text) { return inet_addr(base::Utf8ToAnsi(text).c_str()); }

}  // namespace platform::win32
