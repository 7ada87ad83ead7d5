#pragma once
// The "マイ ネットワーク" tab: the PCs of the Windows network with their address, MAC and
// domain, read through the network-resource enumeration.
#include <cstddef>

#include "base/table_model.h"
#include "mainwindow/tab_page.h"
#include "platform/dialogs.h"
#include "platform/iphelper.h"
#include "platform/winsock.h"
#include "platform/wnet.h"

namespace network {

// Asks first, since a run can take minutes. On Yes, lstvPc is cleared and rebuilt with one row
// per PC: machine name, dotted address, MAC text, domain name. Failures show their message and
// keep the rows added so far. Returns the number of rows lstvPc holds afterwards, the tab's count
// (unchanged rows, and their number, when the user declines).
std::size_t ListNetworkPcs(platform::IDialogs& dialogs, platform::IWNet& wnet, platform::IWinsock& winsock,
                           platform::IIpHelper& ipHelper, base::TableModel& lstvPc);

// The tab's page: the enumeration reports its own failures, so the refresh always succeeds.
class NetworkNeighbourhoodPage final : public mainwindow::ITabPage {
public:
    NetworkNeighbourhoodPage(platform::IDialogs& dialogs, platform::IWNet& wnet, platform::IWinsock& winsock,
                             platform::IIpHelper& ipHelper, base::TableModel& lstvPc)
        : m_dialogs(dialogs), m_wnet(wnet), m_winsock(winsock), m_ipHelper(ipHelper), m_list(lstvPc) {}
    bool Refresh() override {
        ListNetworkPcs(m_dialogs, m_wnet, m_winsock, m_ipHelper, m_list);
        return true;
    }

private:
    platform::IDialogs& m_dialogs;
    platform::IWNet& m_wnet;
    platform::IWinsock& m_winsock;
    platform::IIpHelper& m_ipHelper;
    base::TableModel& m_list;
};

}  // namespace network
