#pragma once
// The "マイ ネットワーク" tab: the PCs of the Windows network with their address, MAC and
// domain, read through the network-resource enumeration.
#include <cstddef>

#include "base/table_model.h"
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

}  // namespace network
