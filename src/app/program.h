#pragma once
// The one program-wide state record, created by the entry routine and passed by reference.
#include <string>

#include "app/pc_list.h"
#include "app/settings.h"

namespace app {

// Octet counters of the monitored interface, kept as decimal text; an empty delta means
// there is no sample yet.
struct TrafficState {
    std::string receivedNow, receivedDelta, receivedBefore;
    std::string sentNow, sentDelta, sentBefore;
};

struct TrayState {
    std::string currentIcon = "veskarnetoff.ico";
    std::string shownIcon = "veskarnetoff.ico";
    std::string tip;
};

struct Program {
    std::string folder;  // always ends in "\"
    Settings settings;
    PcList allowList;    // pcset.ini
    PcList denyList;     // pcset2.ini
    TrafficState traffic;
    TrayState tray;
};

}  // namespace app
