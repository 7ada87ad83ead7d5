#pragma once
// IP Helper: the interface table and one interface's fresh counters.
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace platform {

struct InterfaceRow {
    std::uint32_t index = 0;    // dwIndex
    std::string description;    // bDescr, cut to its stated length, as UTF-8
    std::uint32_t inOctets = 0;
    std::uint32_t outOctets = 0;
};

class IIpHelper {
public:
    virtual ~IIpHelper() = default;
    // GetIfTable, sorted by index; empty when the call fails.
    virtual std::vector<InterfaceRow> InterfaceTable() = 0;
    // GetIfEntry for one index; nothing when the call fails (the interface vanished).
    virtual std::optional<InterfaceRow> InterfaceEntry(std::uint32_t index) = 0;
};

}  // namespace platform
