#pragma once
// Fakes for the monitoring tests: a host that records what the cycle did to the window,
// scripted session and open-file answers, the tray icon and the beeper.
#include <deque>
#include <functional>
#include <map>

#include "app/client_lookup.h"
#include "app/monitor_host.h"
#include "platform/beeper.h"
#include "platform/netapi.h"
#include "platform/shell.h"

namespace fakes {

class FakeMonitorHost : public app::IMonitorHost {
public:
    base::TableModel& MainMonitor() override { return mainMonitor; }
    base::TableModel& SessionList() override { return sessionList; }
    base::TableModel& DisconnectList() override { return disconnectList; }
    const std::string& ComputerNameText() override { return computerName; }
    const std::string& SelectedInterfaceText() override { return selectedInterface; }
    void SetSelectedInterfaceText(const std::string& text) override {
        selectedInterface = text;
        ++interfaceLabelWrites;
    }
    const std::string& TrafficLabel(int index) override { return labels[index]; }
    void SetTrafficLabel(int index, const std::string& text) override { labels[index] = text; }
    void FeedGraph(int index, float value) override { graphs[index].push_back(value); }
    void SetStatusPanel(int panel, const std::string& text) override { panels[panel] = text; }
    void SetMonitoringTimers(bool enabled, unsigned interval) override {
        timersOn = enabled;
        timer1Interval = interval;
    }
    void SetDisconnectTimer(bool enabled) override { disconnectTimerOn = enabled; }
    void SetRunButtons(bool running) override { runButtonsShowRunning = running; }
    void RaiseAlert(const std::string& text) override { alerts.push_back(text); }
    void SaveMainMonitor() override {
        if (onSave) onSave();
        savedRowCounts.push_back(mainMonitor.RowCount());
    }
    void DoEvents() override { ++pumps; }

    std::string Row(std::size_t i) const { return mainMonitor.Cell(i, 0); }
    std::string LastRow() const { return Row(mainMonitor.RowCount() - 1); }

    base::TableModel mainMonitor, sessionList, disconnectList;
    std::string computerName = "MYPC";
    std::string selectedInterface;
    int interfaceLabelWrites = 0;
    std::string labels[2];
    std::vector<float> graphs[2];
    std::map<int, std::string> panels;
    bool timersOn = false;
    unsigned timer1Interval = 0;
    bool disconnectTimerOn = false;
    bool runButtonsShowRunning = false;
    std::vector<std::string> alerts;
    std::vector<std::size_t> savedRowCounts;
    std::function<void()> onSave;  // runs as a save would pump messages
    int pumps = 0;
};

class FakeNetApi : public platform::INetApi {
public:
    platform::SessionBatch EnumSessions(const std::string& server, std::uint32_t&) override {
        servers.push_back(server);
        if (sessionAnswers.empty()) return steadySessions;
        auto answer = sessionAnswers.front();
        sessionAnswers.pop_front();
        return answer;
    }
    std::uint32_t DeleteSession(const std::string& client, const std::string& user) override {
        deleted.push_back(client + "/" + user);
        return 0;
    }
    platform::FileBatch EnumOpenFiles(std::uintptr_t& resume) override {
        ++resume;
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
    std::vector<std::string> servers, deleted;
};

class FakeLookup : public app::IClientLookup {
public:
    std::optional<app::ClientAddress> Lookup(const std::string& client) override {
        if (!winsockStarts) return std::nullopt;
        const auto it = known.find(client);
        return it == known.end() ? app::ClientAddress{} : it->second;
    }
    bool winsockStarts = true;
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

}  // namespace fakes
