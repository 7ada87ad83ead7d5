#pragma once
// Fakes for the monitoring tests: the parts of the main window the cycle works on,
// scripted session and open-file answers, the tray icon and the beeper.
#include <deque>
#include <functional>
#include <map>

#include "app/client_lookup.h"
#include "app/monitor_window.h"
#include "app/monitoring_cycle.h"
#include "app/session_guard.h"
#include "fakes/fake_clock.h"
#include "fakes/fake_ip_helper.h"
#include "fakes/fake_message_pump.h"
#include "platform/beeper.h"
#include "platform/netapi.h"
#include "platform/shell.h"

namespace fakes {

// The main window as the monitoring sees it: the main monitor, the hidden session tables, the
// traffic display, the timers and buttons, and the alerts it raises.
class FakeMainWindow : public app::IMainMonitor, public app::ISessionWindow, public app::ITrafficDisplay,
                       public app::IMonitoringSwitches, public app::IAlerts {
public:
    base::TableModel& Rows() override { return rows; }
    bool Save() override {
        if (saveWrites) savedRowCounts.push_back(rows.RowCount());
        if (duringSave) duringSave();  // the save pumps messages: a tick may add rows
        return saveWrites;
    }
    void SaveBeforeSessionEnd() override { sessionEndSaveRowCounts.push_back(rows.RowCount()); }
    std::vector<std::string> RowTexts() const {
        std::vector<std::string> texts;
        for (std::size_t i = 0; i < rows.RowCount(); ++i) texts.push_back(rows.Cell(i, 0));
        return texts;
    }
    std::string LastRow() const { return rows.Cell(rows.RowCount() - 1, 0); }

    base::TableModel& SessionList() override { return sessionList; }
    base::TableModel& DisconnectList() override { return disconnectList; }
    const std::string& ComputerNameText() override { return computerName; }
    void SetServerPanel(const std::string& text) override { serverPanel = text; }

    const std::string& InterfaceText() override { return interfaceText; }
    void SetInterfaceText(const std::string& text) override { interfaceText = text; }
    const std::string& Label(int index) override { return labels[index]; }
    void SetLabel(int index, const std::string& text) override { labels[index] = text; }
    void FeedGraph(int index, float value) override { graphs[index].push_back(value); }

    void SetMonitoringTimers(bool enabled, unsigned interval) override {
        timersOn = enabled;
        timer1Interval = interval;
    }
    void SetDisconnectTimer(bool enabled) override { disconnectTimerOn = enabled; }
    void SetRunButtons(bool) override {}

    void Raise(const std::string& text) override { alerts.push_back(text); }

    base::TableModel rows, sessionList, disconnectList;
    std::vector<std::size_t> savedRowCounts, sessionEndSaveRowCounts;
    bool saveWrites = true;  // false: another save is under way
    std::function<void()> duringSave;
    std::string computerName = "MYPC", serverPanel;
    std::string interfaceText, labels[2];
    std::vector<float> graphs[2];
    bool timersOn = false, disconnectTimerOn = false;
    unsigned timer1Interval = 0;
    std::vector<std::string> alerts;
};

class FakeNetApi : public platform::INetApi {
public:
    platform::SessionBatch EnumSessions(const std::string&, std::uint32_t&) override {
        if (sessionAnswers.empty()) return steadySessions;
        auto answer = sessionAnswers.front();
        sessionAnswers.pop_front();
        return answer;
    }
    std::uint32_t DeleteSession(const std::string& client, const std::string& user) override {
        deleted.push_back(client + "/" + user);
        return 0;
    }
    platform::FileBatch EnumOpenFiles(std::uintptr_t&) override {
        if (fileAnswers.empty()) return platform::FileBatch{};
        auto answer = fileAnswers.front();
        fileAnswers.pop_front();
        return answer;
    }

    // A single complete answer holding these sessions.
    static platform::SessionBatch Sessions(std::vector<platform::SessionInfo> records) {
        const auto n = static_cast<std::uint32_t>(records.size());
        return {platform::kNerrSuccess, std::move(records), n, n};
    }

    platform::SessionBatch steadySessions;  // answer once the scripted ones are used up
    std::deque<platform::SessionBatch> sessionAnswers;
    std::deque<platform::FileBatch> fileAnswers;
    std::vector<std::string> deleted;
};

class FakeLookup : public app::IClientLookup {
public:
    std::optional<app::ClientAddress> Lookup(const std::string& client) override {
        const auto it = known.find(client);
        return it == known.end() ? app::ClientAddress{} : it->second;
    }
    std::map<std::string, app::ClientAddress> known;
};

class FakeBeeper : public platform::IBeeper {
public:
    void Beep() override { ++beeps; }
    int beeps = 0;
};

class FakeTrayIcon : public platform::ITrayIcon {
public:
    void Show(const std::string& iconPath, const std::string& tip) override { shown.push_back(iconPath + "|" + tip); }
    void Remove() override { ++removals; }
    std::vector<std::string> shown;
    int removals = 0;
};

// The monitoring cycle and its session guard over fakes of everything they use.
struct MonitoringRig {
    app::Program program;
    FakeMainWindow window;
    FakeNetApi net;
    FakeLookup lookup;
    FakeBeeper beeper;
    FakeMessagePump pump;
    FakeIpHelper ipHelper;
    FakeTrayIcon tray;
    FakeClock clock;
    app::SessionGuard guard{program, {window, window, window}, {net, lookup, beeper, pump, clock}};
    app::MonitoringCycle cycle{program, {window, window, window, window, window}, clock, ipHelper, tray, guard};
};

}  // namespace fakes
