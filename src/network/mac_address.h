#pragma once
// MAC addresses by ARP, as the neighbourhood list shows them.
#include <cstdint>
#include <span>
#include <string>

#include "platform/iphelper.h"
#include "platform/winsock.h"

namespace network {

inline constexpr const char* kSendArpFailed = "(SendARP call failed)";

// The bytes joined by ":": a zero byte is "00", any other byte its upper-case hexadecimal
// value without a leading zero, so 00 0A 95 9D 68 16 gives "00:A:95:9D:68:16".
std::string MacText(std::span<const std::uint8_t> bytes);

// The MAC text of a dotted address: empty for empty text, kSendArpFailed when inet_addr gives
// 0 or the ARP lookup fails (non-zero result, first four bytes all zero, or no bytes).
std::string AddressToMac(platform::IWinsock& winsock, platform::IIpHelper& ipHelper, const std::string& address);

}  // namespace network
