#pragma once
// The share-session guard: at every monitoring tick it lists the sessions other PCs hold on
// this PC's shares, records them in the main monitor, beeps, and marks the PCs that break
// the enforced deny or allow list for disconnection.
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "app/client_lookup.h"
#include "app/monitor_window.h"
#include "app/program.h"
#include "base/fixed_array.h"
#include "platform/beeper.h"
#include "platform/clock.h"
#include "platform/message_pump.h"
#include "platform/netapi.h"

namespace app {

class SessionGuard {
public:
    // The parts of the main window the guard writes to.
    struct Window {
        IMainMonitor& mainMonitor;
        ISessionWindow& sessions;
        ITrafficDisplay& traffic;  // the traffic labels give a session row its figures
    };
    struct Services {
        platform::INetApi& net;
        IClientLookup& lookup;
        platform::IBeeper& beeper;
        platform::IMessagePump& pump;
        platform::IClock& clock;
    };
    SessionGuard(Program& program, Window window, Services services);

    // Runs the guard for the server and returns the number of sessions counted.
    std::int16_t Run(const std::string& server);
    // Timer2: disconnects every client of the disconnection list.
    void DisconnectMarked();
    // After each tick: one main-monitor row per file other users hold open, then the
    // automatic save of a main monitor that has grown past 10000 rows.
    void LogOpenFiles();

private:
    // Counts, beeps for and records the sessions of one answer; count is the tick's count so far.
    void CountSessions(const std::vector<platform::SessionInfo>& sessions, std::int16_t& count);
    // Panel 2 names the server; it is written again only when the name changes.
    void ShowServer(const std::string& server);
    void RecordSession(const platform::SessionInfo& session);
    void AddOpenFileRows(const std::vector<platform::OpenFileInfo>& files);
    // Past 10000 rows: the main monitor is saved and starts again with the banner.
    void AutosaveMainMonitor();
    void CheckLists(const std::string& client, const std::string& user);
    void MarkForDisconnection(const char* reason, const std::string& client, const std::string& user);
    std::string Stamp();

    Program& m_program;
    Window m_window;
    Services m_services;
    std::optional<std::string> m_panelServer;  // the server panel 2 names
    // The clients of one tick are kept in 100 slots: a 101st session raises the subscript error.
    base::FixedArray<std::string, 0, 99> m_clients;
};

}  // namespace app
