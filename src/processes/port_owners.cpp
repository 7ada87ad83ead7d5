#include "processes/port_owners.h"

#include "platform/error_trap.h"
#include "processes/probe_handle.h"

namespace processes {

PortOwnerFinder::PortOwnerFinder(platform::INativeHandles& native, platform::IDialogs& dialogs,
                                 platform::IMessagePump& pump, const NativeLayout& layout, WalkLimits limits)
    : m_native(native), m_dialogs(dialogs), m_layout(layout), m_walk(pump, dialogs, limits) {}

bool PortOwnerFinder::BuildPortOwnerTable(PortOwnerTable& table) {
    return platform::TrapErrors(m_dialogs, "アプリケーション で Error Level m2-2 が発生しました。", [&] {
        const std::vector<HandleEntry> entries = ReadHandleTable(m_native, m_dialogs, m_layout);
        platform::INativeHandles& native = m_native;
        const NativeLayout layout = m_layout;
        const auto found = m_walk.Walk(entries, [&native, layout](const HandleEntry& entry, platform::IDialogs& d) {
            return ProbeHandle(native, entry, layout, d);
        });
        for (const PortOwnerCell& cell : found) table.Store(cell);
        if (table.EntryCount() == 0) FillFromOwnerTables(table);
    });
}

void PortOwnerFinder::FillFromOwnerTables(PortOwnerTable& table) {
    const auto store = [&](const std::vector<platform::PortOwner>& owners, Protocol protocol) {
        for (const platform::PortOwner& owner : owners) {
            if (owner.processId != 0) table.Store({owner.port, protocol, AsHandleTableOwner(owner.processId)});
        }
    };
    store(m_native.TcpPortOwners(), Protocol::Tcp);
    store(m_native.UdpPortOwners(), Protocol::Udp);
}

}  // namespace processes
