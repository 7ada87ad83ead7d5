#include "app/winsock_client_lookup.h"

#include "network/name_resolution.h"

namespace app {

std::optional<ClientAddress> WinsockClientLookup::Lookup(const std::string& clientName) {
    if (!network::WinsockStartForNames(m_winsock, m_dialogs)) return std::nullopt;
    ClientAddress found;
    found.address = network::HostToAddress(m_winsock, clientName);
    found.hostName = network::AddressToName(m_winsock, found.address.empty() ? clientName : found.address);
    network::WinsockStop(m_winsock, m_dialogs);
    return found;
}

}  // namespace app
