#include "app/session_guard.h"

#include <iterator>
#include <vector>

#include "app/traffic_text.h"
#include "base/conversions.h"
#include "base/local_time.h"
#include "base/product.h"

namespace app {
namespace {

constexpr std::size_t kAutosaveRows = 10000;

bool Answered(std::uint32_t status) {
    return status == platform::kNerrSuccess || status == platform::kErrorMoreData;
}

// Only slots 2 to 20 are compared: the first text box of a list is kept but never enforced.
bool Listed(const PcList& list, const std::string& client) {
    for (int slot = 2; slot <= 20; ++slot) {
        if (list[slot] == client) return true;
    }
    return false;
}

}  // namespace

SessionGuard::SessionGuard(Program& program, Window window, Services services)
    : m_program(program), m_window(window), m_services(services) {}

std::string SessionGuard::Stamp() { return base::MonitorStamp(m_services.clock.Now()); }

std::int16_t SessionGuard::Run(const std::string& server) {
    std::int16_t count = 0;
    m_window.sessions.SessionList().Clear();
    m_program.tray.tip.clear();

    std::uint32_t resume = 0;
    platform::SessionBatch batch;
    do {
        batch = m_services.net.EnumSessions(server, resume);
        if (Answered(batch.status) && !batch.records.empty()) CountSessions(batch.records, count);
        m_services.pump.DoEvents();
    } while (batch.entriesRead != batch.totalEntries);

    if (count == 0) {
        m_program.tray.currentIcon = kIconOff;
        m_program.tray.tip = MonitoringTip();
    } else {
        m_program.tray.currentIcon = kIconOn;
    }
    if (m_panelServer != server) ShowServer(server);
    return count;
}

void SessionGuard::CountSessions(const std::vector<platform::SessionInfo>& sessions,
                                              std::int16_t& count) {
    for (const auto& session : sessions) {
        if (session.userName.empty()) continue;  // a null session
        count = base::ToInt16(count + 1.0);
        if (m_program.settings.beep == 1) m_services.beeper.Beep();
        m_clients[count - 1] = session.clientName;  // the n-th session of the tick takes slot n - 1
        RecordSession(session);
    }
}

void SessionGuard::ShowServer(const std::string& server) {
    m_window.sessions.SetServerPanel("サーバ : " + server);
    m_panelServer = server;
}

void SessionGuard::RecordSession(const platform::SessionInfo& session) {
    const std::string& client = session.clientName;
    std::string address = client;
    std::string hostName = client;
    if (const auto found = m_services.lookup.Lookup(client)) {
        if (!found->address.empty()) address = found->address;
        if (!found->hostName.empty()) hostName = found->hostName;
    }
    m_window.mainMonitor.Rows().AddRow({Stamp() + "  PC : " + client + "(" + address + "/" + hostName + ")" +
                                 " USER : " + session.userName + " OS : " + session.clientType + " 送信 : " +
                                 KilobyteFigure(m_window.traffic.Label(0)) + " KB" + " 受信 : " +
                                 KilobyteFigure(m_window.traffic.Label(1)) + " KB"});
    m_window.sessions.SessionList().AddRow({client, session.userName});
    m_program.tray.tip += "[" + client + "]";
    CheckLists(client, session.userName);
}

void SessionGuard::CheckLists(const std::string& client, const std::string& user) {
    // The deny check comes first: a client on both lists is reported and disconnected by it.
    if (IsEnforced(m_program.denyList) && Listed(m_program.denyList, client)) {
        MarkForDisconnection("  アクセス拒否違反の為､", client, user);
    }
    if (IsEnforced(m_program.allowList) && !Listed(m_program.allowList, client)) {
        MarkForDisconnection("  アクセス許可違反の為､", client, user);
    }
}

void SessionGuard::MarkForDisconnection(const char* reason, const std::string& client, const std::string& user) {
    m_window.mainMonitor.Rows().AddRow({Stamp() + reason + client + "に対して切断処理を実行しました｡"});
    // A violator is marked again at every tick while it stays connected: one row per session
    // (client and user, as Timer2 closes it) keeps Timer2's work flat however long that lasts.
    base::TableModel& list = m_window.sessions.DisconnectList();
    for (std::size_t row = 0; row < list.RowCount(); ++row) {
        if (list.Cell(row, 1) == client && list.Cell(row, 0) == user) return;
    }
    list.AddRow({user, client});
}

void SessionGuard::DisconnectMarked() {
    base::TableModel& list = m_window.sessions.DisconnectList();
    for (std::size_t row = 0; row < list.RowCount(); ++row) {
        const std::string client = list.Cell(row, 1);
        if (client.empty()) continue;
        m_services.net.DeleteSession(client, list.Cell(row, 0));  // a failure is tried again at the next tick
    }
}

void SessionGuard::LogOpenFiles() {
    std::vector<platform::OpenFileInfo> files;
    std::uintptr_t resume = 0;
    platform::FileBatch batch;
    do {
        batch = m_services.net.EnumOpenFiles(resume);
        if (!Answered(batch.status)) return;
        files.insert(files.end(), std::make_move_iterator(batch.records.begin()),
                     std::make_move_iterator(batch.records.end()));
    } while (batch.status == platform::kErrorMoreData);

    if (!files.empty()) AddOpenFileRows(files);
    if (m_window.mainMonitor.Rows().RowCount() > kAutosaveRows) AutosaveMainMonitor();
}

void SessionGuard::AddOpenFileRows(const std::vector<platform::OpenFileInfo>& files) {
    base::TableModel& monitor = m_window.mainMonitor.Rows();
    for (const auto& file : files) {
        monitor.AddRow({Stamp() + "  使用中のファイル : " + file.pathName + " USER : " + file.userName});
    }
}

void SessionGuard::AutosaveMainMonitor() {
    base::TableModel& monitor = m_window.mainMonitor.Rows();
    const std::size_t saved = monitor.RowCount();
    // During another save nothing was written: the rows stay for a later tick.
    if (!m_window.mainMonitor.Save()) return;
    // The list starts afresh with the banner. Rows that a tick added while the save pumped messages
    // are not in the file: they stay, so that no event is lost.
    std::vector<base::TableModel::Row> rows{{{base::kBanner}}};
    for (std::size_t row = saved; row < monitor.RowCount(); ++row) rows.push_back(monitor.RowAt(row));
    rows.push_back({{Stamp() + "  ログを自動保存しました。"}});
    monitor.Replace(std::move(rows));
}

}  // namespace app
