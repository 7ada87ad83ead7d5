#pragma once
// Client names through Winsock: the client's name to an address, that address to a host name.
#include "app/client_lookup.h"
#include "platform/dialogs.h"
#include "platform/winsock.h"

namespace app {

class WinsockClientLookup : public IClientLookup {
public:
    WinsockClientLookup(platform::IWinsock& winsock, platform::IDialogs& dialogs)
        : m_winsock(winsock), m_dialogs(dialogs) {}

    std::optional<ClientAddress> Lookup(const std::string& clientName) override;

private:
    platform::IWinsock& m_winsock;
    platform::IDialogs& m_dialogs;
};

}  // namespace app
