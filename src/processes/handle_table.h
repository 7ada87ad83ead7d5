#pragma once
// The system-wide handle table, read in the shape the running system publishes it.
#include <cstdint>
#include <vector>

#include "platform/dialogs.h"
#include "platform/native_handles.h"
#include "processes/native_layout.h"

namespace processes {

struct HandleEntry {
    std::int16_t processId;  // the owner's low 16 bits, signed: IDs above 32767 arrive negative
    std::uint16_t handleValue;
};

// Asks with 20 bytes for the count, then for the whole table, again while it grew in between.
// The first answer succeeding shows "Error Level m2-1" and gives no entries. A count that gives
// no usable size (Wine leaves it at 0) is replaced by the length the call reported or, without
// one, by a guess that grows every round; after a bounded number of rounds the table is given
// up as empty, so the walk always ends.
std::vector<HandleEntry> ReadHandleTable(platform::INativeHandles& native, platform::IDialogs& dialogs,
                                         const NativeLayout& layout);

}  // namespace processes
