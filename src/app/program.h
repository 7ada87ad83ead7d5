#pragma once
// The one program-wide state record, created by the entry routine and passed by reference.
#include <string>

#include "app/pc_list.h"
#include "app/settings.h"
#include "base/product.h"

namespace app {

// Octet counters of the monitored interface, kept as decimal text; an empty delta means
// there is no sample yet.
struct TrafficState {
    std::string receivedNow, receivedDelta, receivedBefore;
    std::string sentNow, sentDelta, sentBefore;
};

// The tray's two icon files, and its tips while monitoring runs with no session and after it stops.
inline constexpr const char* kIconOff = "veskarnetoff.ico";
inline constexpr const char* kIconOn = "veskarneton.ico";

inline const std::string& MonitoringTip() {
    static const std::string tip = std::string(base::kProductName) + "  －監視中－";
    return tip;
}

inline const std::string& StoppedTip() {
    static const std::string tip = std::string(base::kProductName) + "  －停止中－";
    return tip;
}

struct TrayState {
    std::string currentIcon = kIconOff;
    std::string shownIcon = kIconOff;
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
