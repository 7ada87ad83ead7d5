#include "network/mac_address.h"

#include <algorithm>

namespace network {

std::string MacText(std::span<const std::uint8_t> bytes) {
    static constexpr char kDigits[] = "0123456789ABCDEF";
    std::string text;
    for (const std::uint8_t byte : bytes) {
        if (!text.empty()) text += ':';
        if (byte == 0) {
            text += "00";
        } else {
            if (byte >= 0x10) text += kDigits[byte >> 4];
            text += kDigits[byte & 0x0F];
        }
    }
    return text;
}

std::string AddressToMac(platform::IWinsock& winsock, platform::IIpHelper& ipHelper, const std::string& address) {
    if (address.empty()) return {};
    // INADDR_NONE, the mark of text that is no address, goes on to the lookup and fails there.
    const platform::InetAddress destination = winsock.InetAddr(address);
    if (destination == 0) return kSendArpFailed;

    const platform::ArpReply reply = ipHelper.SendArp(destination);
    const auto& bytes = reply.address;
    const bool noAddress = std::all_of(bytes.begin(), bytes.begin() + 4, [](std::uint8_t b) { return b == 0; });
    if (reply.result != 0 || noAddress || reply.length == 0) return kSendArpFailed;
    const std::size_t length = std::min<std::size_t>(reply.length, bytes.size());
    return MacText(std::span(bytes).first(length));
}

}  // namespace network
