#pragma once
// Probes the handle table's entries in order on a worker thread while the window's thread keeps
// answering messages. An object-name query can block for ever (a synchronous pipe with a read
// pending does that), so a probe that makes no progress within the time limit is given up: its
// worker is left to finish alone, its result is dropped, a fresh worker goes on with the next
// entry, and that handle is skipped by later walks.
#include <chrono>
#include <functional>
#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "platform/dialogs.h"
#include "platform/message_pump.h"
#include "processes/handle_table.h"
#include "processes/port_owner_table.h"

namespace processes {

struct WalkLimits {
    std::chrono::milliseconds probeTimeout{1000};
    std::chrono::milliseconds pumpInterval{25};
};

// Runs on the worker; shows its messages through the dialogs it is given.
using Probe = std::function<std::optional<PortOwnerCell>(const HandleEntry&, platform::IDialogs&)>;

class HandleWalk {
public:
    HandleWalk(platform::IMessagePump& pump, platform::IDialogs& dialogs, WalkLimits limits)
        : m_pump(pump), m_dialogs(dialogs), m_limits(limits) {}

    // The owners found, in table order. The probe and what it uses must outlive a given-up worker.
    std::vector<PortOwnerCell> Walk(const std::vector<HandleEntry>& entries, Probe probe);

private:
    struct Job;
    // Waits for the job while pumping; the index of the entry it is stuck on, or nothing when done.
    std::optional<std::size_t> Await(Job& job);

    platform::IMessagePump& m_pump;
    platform::IDialogs& m_dialogs;
    WalkLimits m_limits;
    std::set<std::pair<std::int16_t, std::uint16_t>> m_stuck;
};

}  // namespace processes
