#include "logs/log_writer.h"

#include <utility>

#include "base/local_time.h"
#include "base/runtime_error.h"
#include "logs/ansi_encoder.h"
#include "logs/log_names.h"

namespace logs {
namespace {

// Marks a main-monitor save as the one under way for as long as it runs; one started inside it
// is marked in its place until it ends.
class RunningSave {
public:
    RunningSave(RowWriter*& slot, RowWriter& writer) : m_slot(slot), m_outer(std::exchange(slot, &writer)) {}
    ~RunningSave() { m_slot = m_outer; }
    RunningSave(const RunningSave&) = delete;
    RunningSave& operator=(const RunningSave&) = delete;

private:
    RowWriter*& m_slot;
    RowWriter* m_outer;
};

}  // namespace

LogWriter::LogWriter(const std::string& programFolder, LogServices services)
    : m_programFolder(programFolder), m_services(services) {}

std::string LogWriter::EnsureLogsFolder() {
    const std::string folder = LogsFolder(m_programFolder);
    if (!m_services.files.FolderExists(folder)) m_services.files.CreateFolder(folder);
    return folder + "\\";
}

void LogWriter::WriteList(const std::string& path, platform::OpenMode mode, ListRows list,
                          const base::LocalTime& now) {
    const std::string stamp = base::LogStamp(now);
    RowWriter writer(m_services.files.Open(path, mode), list.rows, m_encoder,
                     [&](const base::TableModel::Row& row, AnsiEncoder& encoder, std::string& line) {
                         encoder.Append(stamp, line);
                         for (std::size_t column = 0; column < list.columns; ++column) {
                             line += '\t';
                             if (column < row.cells.size()) encoder.Append(row.cells[column], line);
                         }
                     });
    writer.Run(m_services.pump);
}

void LogWriter::WriteRolledOver(const std::string& base, ListRows list, const base::LocalTime& now) {
    const std::string folder = EnsureLogsFolder();
    std::string path;
    try {
        path = RolloverPath(m_services.files, folder, base);
    } catch (const base::RuntimeError&) {
        return;  // the series counter overflowed: there is no file left to write to
    }
    WriteList(path, platform::OpenMode::Append, list, now);
}

void LogWriter::AppendSave(LogKind kind, ListRows list) {
    const base::LocalTime now = m_services.clock.Now();
    WriteRolledOver(AppendSaveBase(kind, now), list, now);
}

void LogWriter::TemporarySave(LogKind kind, ListRows list) {
    const base::LocalTime now = m_services.clock.Now();
    const std::string folder = EnsureLogsFolder();
    WriteList(folder + TemporaryFileName(kind, now), platform::OpenMode::Output, list, now);
}

void LogWriter::AutomaticLog(LogKind kind, ListRows list, bool switchedOn) {
    if (!switchedOn) return;
    const base::LocalTime now = m_services.clock.Now();
    WriteRolledOver(AutomaticBase(kind, now), list, now);
}

void LogWriter::WriteMainMonitor(const std::string& path, const base::TableModel& rows) {
    RowWriter writer(m_services.files.Open(path, platform::OpenMode::Output), rows, m_encoder,
                     [](const base::TableModel::Row& row, AnsiEncoder& encoder, std::string& line) {
                         if (!row.cells.empty()) encoder.Append(row.cells.front(), line);
                     });
    const RunningSave running(m_runningMainMonitorSave, writer);
    writer.Run(m_services.pump);
}

bool LogWriter::SaveMainMonitor(const base::TableModel& rows) {
    if (m_runningMainMonitorSave) return false;
    const std::string folder = EnsureLogsFolder();
    WriteMainMonitor(NextMainMonitorPath(m_services.files, folder, m_services.clock.Now()), rows);
    return true;
}

void LogWriter::SaveMainMonitorBeforeSessionEnd(const base::TableModel& rows) {
    if (m_runningMainMonitorSave) return m_runningMainMonitorSave->Finish();
    SaveMainMonitor(rows);
}

void LogWriter::SaveMainMonitorAs(const base::TableModel& rows, platform::IDialogs& dialogs) {
    const std::string folder = EnsureLogsFolder();
    platform::SaveFileRequest request;
    request.filter = kMainMonitorFilter;
    request.initialFolder = LogsFolder(m_programFolder);
    request.fileName = NextMainMonitorPath(m_services.files, folder, m_services.clock.Now());
    std::optional<std::string> chosen = dialogs.SaveFile(request);
    if (!chosen || chosen->empty()) return;
    // Compared exactly: "mylog.TXT" becomes "mylog.TXT.txt".
    if (!chosen->ends_with(".txt")) *chosen += ".txt";
    WriteMainMonitor(*chosen, rows);
}

}  // namespace logs
