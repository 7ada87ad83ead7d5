#pragma once
// One handle of one process: is it a transport endpoint, and which local port does it hold?
// Each routine traps its own errors and shows its own text.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/dialogs.h"
#include "platform/native_handles.h"
#include "processes/handle_table.h"
#include "processes/native_layout.h"
#include "processes/port_owner_table.h"

namespace processes {

// A 16-bit word as a signed value: above 32767, 65536 is subtracted.
std::int16_t WordToInteger(std::int32_t value, platform::IDialogs& dialogs);

// The text before the first NUL character; the whole text when there is none.
std::u16string TrimAtNull(std::u16string_view text, platform::IDialogs& dialogs);

// The local port of a transport handle from the address query; 0 when it gave no immediate answer.
std::int32_t QueryLocalPort(platform::INativeHandles& native, platform::OsHandle handle,
                            platform::IDialogs& dialogs);

// Duplicates the handle into this process and, when its object name is eleven characters long
// and the transport query answers with a port, gives the owner to store: TCP when the name
// holds "TCP", UDP otherwise. Process ID 0 is skipped; both handles are closed on every path.
std::optional<PortOwnerCell> ProbeHandle(platform::INativeHandles& native, const HandleEntry& entry,
                                         const NativeLayout& layout, platform::IDialogs& dialogs);

}  // namespace processes
