#pragma once
// The names shown for a client PC of a share session.
#include <optional>
#include <string>

namespace app {

struct ClientAddress {
    std::string address;   // the client's name resolved to a dotted address; empty if it does not resolve
    std::string hostName;  // the host name of that address; empty if it does not resolve
};

class IClientLookup {
public:
    virtual ~IClientLookup() = default;
    // Starts Winsock, resolves, stops it; nothing when Winsock does not start.
    virtual std::optional<ClientAddress> Lookup(const std::string& clientName) = 0;
};

}  // namespace app
