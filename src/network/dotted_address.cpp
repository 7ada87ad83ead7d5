#include "network/dotted_address.h"

namespace network {

std::string DottedAddress(std::span<const std::uint8_t> bytes) {
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i > 0) text += '.';
        text += std::to_string(bytes[i]);
    }
    return text;
}

}  // namespace network
