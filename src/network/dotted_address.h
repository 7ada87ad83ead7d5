#pragma once
// IPv4 addresses as the lists show them.
#include <cstdint>
#include <span>
#include <string>

namespace network {

// The bytes in memory order as unsigned decimal numbers joined by "." (no padding):
// 192 168 0 1 gives "192.168.0.1".
std::string DottedAddress(std::span<const std::uint8_t> bytes);

}  // namespace network
