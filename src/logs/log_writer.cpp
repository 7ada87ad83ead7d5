#include "logs/log_writer.h"

#include <functional>

#include "base/local_time.h"
#include "base/runtime_error.h"
#include "logs/ansi_encoder.h"
#include "logs/log_names.h"

namespace logs {
namespace {

// Lines are gathered in blocks of about this size: one write per block instead of one per line.
constexpr std::size_t kBlockBytes = 64 * 1024;

// Builds one line in code page 932 from the row's UTF-8 texts.
using LineBuilder = std::function<void(const base::TableModel::Row& row, AnsiEncoder& encoder, std::string& line)>;

// Writes every row of a list as one line, pumping messages after each. The row is encoded
// into the block before the pump, and the row count is read again after it, so a list that is
// cleared or rebuilt meanwhile ends or extends the save instead of breaking it.
void WriteRows(platform::IOutputFile* file, const base::TableModel& rows, platform::IMessagePump& pump,
               AnsiEncoder& encoder, const LineBuilder& build) {
    std::string block;
    block.reserve(kBlockBytes + 4096);
    const auto flush = [&] {
        if (file && !block.empty()) file->Write(block);
        block.clear();
    };
    for (std::size_t i = 0; i < rows.RowCount(); ++i) {
        build(rows.RowAt(i), encoder, block);
        block += "\r\n";
        if (block.size() >= kBlockBytes) flush();
        pump.DoEvents();
    }
    flush();
}

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
    const auto file = m_services.files.Open(path, mode);
    WriteRows(file.get(), list.rows, m_services.pump, m_encoder,
              [&](const base::TableModel::Row& row, AnsiEncoder& encoder, std::string& line) {
                  encoder.Append(stamp, line);
                  for (std::size_t column = 0; column < list.columns; ++column) {
                      line += '\t';
                      if (column < row.cells.size()) encoder.Append(row.cells[column], line);
                  }
              });
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
    const auto file = m_services.files.Open(path, platform::OpenMode::Output);
    WriteRows(file.get(), rows, m_services.pump, m_encoder,
              [](const base::TableModel::Row& row, AnsiEncoder& encoder, std::string& line) {
                  if (!row.cells.empty()) encoder.Append(row.cells.front(), line);
              });
}

void LogWriter::SaveMainMonitor(const base::TableModel& rows) {
    const std::string folder = EnsureLogsFolder();
    WriteMainMonitor(NextMainMonitorPath(m_services.files, folder, m_services.clock.Now()), rows);
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
