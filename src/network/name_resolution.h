#pragma once
// The small Winsock helpers that the neighbourhood list and the monitoring code share.
// HostToAddress and AddressToName need Winsock started: call them between WinsockStart
// (or WinsockStartForNames) and WinsockStop.
#include <cstdint>
#include <optional>
#include <string>

#include "platform/dialogs.h"
#include "platform/winsock.h"

namespace network {

// The program speaks Windows Sockets 1.1.
inline constexpr std::uint16_t kWinsockVersion = 0x0101;

// WSAStartup 1.1; true when it answers 0.
bool WinsockStart(platform::IWinsock& winsock);

// WSAStartup 1.1 for the address-to-name lookups; a failure shows "エラーNo.4".
bool WinsockStartForNames(platform::IWinsock& winsock, platform::IDialogs& dialogs);

// WSACleanup; a failure shows "エラー" with the exclamation icon.
void WinsockStop(platform::IWinsock& winsock, platform::IDialogs& dialogs);

// The first address of the host's entry as dotted text; empty when the name does not resolve.
std::string HostToAddress(platform::IWinsock& winsock, const std::string& hostName);

// The host name of a dotted address (inet_addr, then gethostbyaddr); empty when it does not resolve.
std::string AddressToName(platform::IWinsock& winsock, const std::string& address);

// "ローカルIP : " and the first address of this PC's own host entry. Starts and stops Winsock
// itself; nothing when Winsock does not start or the PC's name does not resolve.
std::optional<std::string> LocalAddressText(platform::IWinsock& winsock);

}  // namespace network
