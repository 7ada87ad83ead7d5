#include "network/name_resolution.h"

#include <algorithm>
#include <span>

#include "base/product.h"
#include "network/dotted_address.h"

namespace network {

bool WinsockStart(platform::IWinsock& winsock) { return winsock.Startup(kWinsockVersion) == 0; }

bool WinsockStartForNames(platform::IWinsock& winsock, platform::IDialogs& dialogs) {
    if (WinsockStart(winsock)) return true;
    dialogs.ShowMessage("エラーNo.4", base::kProductName, platform::msgbox::kOkOnly);
    return false;
}

void WinsockStop(platform::IWinsock& winsock, platform::IDialogs& dialogs) {
    if (winsock.Cleanup() != 0) {
        dialogs.ShowMessage("エラー", base::kProductName, platform::msgbox::kExclamation);
    }
}

std::string HostToAddress(platform::IWinsock& winsock, const std::string& hostName) {
    const auto entry = winsock.HostByName(hostName);
    if (!entry || entry->addresses.empty()) return {};
    // An IPv4 entry's address is 4 bytes long.
    const std::span<const std::uint8_t> first = entry->addresses.front();
    return DottedAddress(first.first(std::min<std::size_t>(first.size(), 4)));
}

std::string AddressToName(platform::IWinsock& winsock, const std::string& address) {
    const auto entry = winsock.HostByAddress(winsock.InetAddr(address));
    return entry ? entry->name : std::string();
}

std::optional<std::string> LocalAddressText(platform::IWinsock& winsock) {
    if (!WinsockStart(winsock)) return std::nullopt;
    std::optional<std::string> text;
    if (const auto name = winsock.HostName()) {
        const auto entry = winsock.HostByName(*name);
        if (entry && !entry->addresses.empty()) {
            text = "ローカルIP : " + DottedAddress(entry->addresses.front());
        }
    }
    winsock.Cleanup();  // the line is shown whether or not the cleanup succeeds
    return text;
}

}  // namespace network
