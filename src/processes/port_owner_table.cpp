#include "processes/port_owner_table.h"

#include <algorithm>

namespace processes {

int PortOwnerTable::EntryCount() const {
    return static_cast<int>(std::count_if(m_cells.begin(), m_cells.end(), [](std::int32_t id) { return id != 0; }));
}

}  // namespace processes
