#pragma once
// Little-endian fields of the buffers the native services fill; a read past the end gives 0.
#include <cstddef>
#include <cstdint>
#include <span>

namespace processes {

inline std::uint16_t ReadUint16(std::span<const std::byte> bytes, std::size_t at) {
    if (at + 2 > bytes.size()) return 0;
    return static_cast<std::uint16_t>(std::to_integer<unsigned>(bytes[at]) |
                                      std::to_integer<unsigned>(bytes[at + 1]) << 8);
}

inline std::uint32_t ReadUint32(std::span<const std::byte> bytes, std::size_t at) {
    if (at + 4 > bytes.size()) return 0;
    return std::uint32_t{ReadUint16(bytes, at)} | std::uint32_t{ReadUint16(bytes, at + 2)} << 16;
}

}  // namespace processes
