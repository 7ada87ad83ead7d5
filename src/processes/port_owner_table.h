#pragma once
// Which process holds each local port: 65,536 rows (the port) by two columns (TCP, UDP) of
// signed process IDs, 0 when no owner is known. A later store into the same cell overwrites.
#include <cstdint>
#include <vector>

namespace processes {

enum class Protocol { Tcp = 0, Udp = 1 };

// One owner found for one port.
struct PortOwnerCell {
    std::int32_t port;
    Protocol protocol;
    std::int32_t processId;
};

class PortOwnerTable {
public:
    static constexpr int kPorts = 65536;

    PortOwnerTable() : m_cells(2 * kPorts, 0) {}
    std::int32_t Owner(int port, Protocol protocol) const { return m_cells.at(Index(port, protocol)); }
    void Store(const PortOwnerCell& cell) { m_cells.at(Index(cell.port, cell.protocol)) = cell.processId; }
    // The number of non-zero cells: the (port, protocol) pairs with an owner.
    int EntryCount() const;

private:
    static std::size_t Index(int port, Protocol protocol) {
        return static_cast<std::size_t>(port) * 2 + static_cast<std::size_t>(protocol);
    }
    std::vector<std::int32_t> m_cells;
};

// An owner ID as the handle table carries it: its low 16 bits as a signed value.
inline std::int32_t AsHandleTableOwner(std::uint32_t processId) {
    return static_cast<std::int16_t>(static_cast<std::uint16_t>(processId & 0xFFFF));
}

}  // namespace processes
