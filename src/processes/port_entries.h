#pragma once
// PortEntry, the rows of the applications tab, built from the port owners: ports ascending, TCP
// before UDP, in an array with the fixed bounds 0 to 1000 filled from 1.
#include <cstdint>
#include <memory>
#include <string>

#include "base/fixed_array.h"
#include "platform/dialogs.h"
#include "platform/native_handles.h"
#include "processes/port_owner_table.h"

namespace processes {

struct PortEntry {
    std::string name;  // the path behind its last "\"
    std::int16_t processId = 0;
    std::int32_t port = 0;
    std::string protocol;  // "TCP" or "UDP"
    std::string path;      // or "SYSTEM"
};

using PortEntries = base::FixedArray<PortEntry, 0, 1000>;

// The full path of the process's first module, "SYSTEM" when it cannot be read.
std::string GetProcessPath(platform::INativeHandles& native, std::int32_t processId, platform::IDialogs& dialogs);

// Rows 1 to the table's entry count; a 1001st pair raises the subscript error.
std::unique_ptr<PortEntries> BuildPortEntries(const PortOwnerTable& table, platform::INativeHandles& native,
                                              platform::IDialogs& dialogs);

}  // namespace processes
