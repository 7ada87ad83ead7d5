#include "processes/port_entries.h"

#include "base/conversions.h"
#include "base/format.h"
#include "platform/error_trap.h"

namespace processes {

std::string GetProcessPath(platform::INativeHandles& native, std::int32_t processId, platform::IDialogs& dialogs) {
    std::string path;
    platform::TrapErrors(dialogs, "アプリケーション タブで Error Level m6 が発生しました。",
                         [&] { path = native.ProcessPath(processId); });
    return path.empty() ? "SYSTEM" : path;
}

std::unique_ptr<PortEntries> BuildPortEntries(const PortOwnerTable& table, platform::INativeHandles& native,
                                              platform::IDialogs& dialogs) {
    auto entries = std::make_unique<PortEntries>();
    int index = 0;
    for (int port = 0; port < PortOwnerTable::kPorts; ++port) {
        for (const Protocol protocol : {Protocol::Tcp, Protocol::Udp}) {
            const std::int32_t owner = table.Owner(port, protocol);
            if (owner == 0) continue;
            PortEntry& entry = (*entries)[++index];
            entry.path = GetProcessPath(native, owner, dialogs);
            entry.name = entry.path.substr(entry.path.rfind('\\') + 1);
            entry.processId = base::ToInt16(base::FormatAtSigns(std::to_string(owner)));
            entry.port = base::ToInt32(base::FormatAtSigns(std::to_string(port)));
            entry.protocol = protocol == Protocol::Tcp ? "TCP" : "UDP";
        }
    }
    return entries;
}

}  // namespace processes
