#pragma once
// Processes in the system's order: ID, first module's path (none: cannot be opened), working set;
// the ID buffer sizes asked with and the processes ended.
#include <algorithm>
#include <vector>

#include "platform/processes.h"

namespace fakes {

struct FakeProcess {
    std::uint32_t id;
    std::optional<std::string> path{};
    std::uint64_t workingSet = 0;
};

struct FakeProcesses : platform::IProcesses {
    void EnumProcessIds(std::span<std::uint32_t> ids, std::uint32_t& bytesFilled) override {
        const std::size_t n = std::min(ids.size(), table.size());
        for (std::size_t i = 0; i < n; ++i) ids[i] = table[i].id;
        bytesFilled = static_cast<std::uint32_t>(n * 4);
    }
    std::optional<std::string> FirstModulePath(std::uint32_t id) override { return Find(id).path; }
    std::uint64_t WorkingSetBytes(std::uint32_t id) override { return Find(id).workingSet; }
    void Terminate(std::int32_t id) override { terminated.push_back(id); }
    FakeProcess Find(std::uint32_t id) const {
        for (const FakeProcess& p : table) if (p.id == id) return p;
        return {id};
    }
    std::vector<FakeProcess> table;
    std::vector<std::int32_t> terminated;
};

}  // namespace fakes
