#pragma once
// BuildPortOwnerTable: the owners of the local ports, from the handles of every process. Where
// sockets are no transport-device handles (newer systems, Wine) the walk finds nobody; then the
// owner-PID tables of TCP and UDP fill the table, each owner stored as the handle table would
// carry it, and owner 0 (unknown) left out.
#include "platform/dialogs.h"
#include "platform/message_pump.h"
#include "platform/native_handles.h"
#include "processes/handle_walk.h"
#include "processes/native_layout.h"
#include "processes/port_owner_table.h"

namespace processes {

class PortOwnerFinder {
public:
    PortOwnerFinder(platform::INativeHandles& native, platform::IDialogs& dialogs, platform::IMessagePump& pump,
                    const NativeLayout& layout, WalkLimits limits);

    // Fills the table; false when an error ended it ("Error Level m2-2" shown).
    bool BuildPortOwnerTable(PortOwnerTable& table);

private:
    void FillFromOwnerTables(PortOwnerTable& table);

    platform::INativeHandles& m_native;
    platform::IDialogs& m_dialogs;
    NativeLayout m_layout;
    HandleWalk m_walk;
};

}  // namespace processes
