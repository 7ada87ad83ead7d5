#pragma once
// Every log file the program writes: the append-save, temporary and automatic logs of a list,
// and the main-monitor files. Each save opens, writes and closes its file; after every line it
// pumps window messages, so the list it writes may change under it (a timer refresh or a
// click): it writes as many rows as the list held at its start, read one at a time, and ends
// early at the end of a list that has become shorter.
//
// Failures are passed over in silence, one step at a time: a logs folder that cannot be made,
// a file that cannot be opened or a line that cannot be written does not stop the rest.
#include <cstddef>
#include <string>

#include "base/table_model.h"
#include "logs/ansi_encoder.h"
#include "logs/log_kind.h"
#include "logs/row_writer.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/message_pump.h"

namespace logs {

struct LogServices {
    platform::IFileSystem& files;
    platform::IClock& clock;
    platform::IMessagePump& pump;
};

// The rows of one list and its number of columns: every line gets that many fields after the
// stamp, empty cells included.
struct ListRows {
    const base::TableModel& rows;
    std::size_t columns;
};

// The save-as dialog's filter, as the program has always offered it (the pattern lacks the dot).
inline constexpr const char* kMainMonitorFilter = "(*.txt)|*txt|";

class LogWriter {
public:
    // programFolder (ending in "\") is read at every save, so it may be set after construction.
    LogWriter(const std::string& programFolder, LogServices services);

    // <kind>_log_YYYYMMDD.txt, appended to, with rollover.
    void AppendSave(LogKind kind, ListRows list);
    // <kind>_tmplog_YYYYMMDD.txt, replaced.
    void TemporarySave(LogKind kind, ListRows list);
    // <kind>YYYYMMDD.txt, appended to, with rollover; when the automatic-log switch is off it
    // returns at once without touching the disk.
    void AutomaticLog(LogKind kind, ListRows list, bool switchedOn);

    // The main monitor (one text per row) to the next free YYYYMMDD-N.txt. Asked for while a
    // main-monitor save pumps messages, it writes nothing and answers false.
    bool SaveMainMonitor(const base::TableModel& rows);
    // The save when the Windows session ends, after which the process may be ended at any
    // moment: a main-monitor save under way is finished at once, with every row the list holds
    // now, into its own file; otherwise a save as above.
    void SaveMainMonitorBeforeSessionEnd(const base::TableModel& rows);
    // Asks for the name first, proposing the next free YYYYMMDD-N.txt; a name whose last four
    // characters are not exactly ".txt" gets ".txt" appended. Cancel writes nothing.
    void SaveMainMonitorAs(const base::TableModel& rows, platform::IDialogs& dialogs);

private:
    // Makes sure the logs folder exists; returns it with a trailing "\".
    std::string EnsureLogsFolder();
    void WriteList(const std::string& path, platform::OpenMode mode, ListRows list, const base::LocalTime& now);
    void WriteRolledOver(const std::string& base, ListRows list, const base::LocalTime& now);
    void WriteMainMonitor(const std::string& path, const base::TableModel& rows);

    const std::string& m_programFolder;
    LogServices m_services;
    AnsiEncoder m_encoder;  // kept between saves: each character is converted once
    RowWriter* m_runningMainMonitorSave = nullptr;
};

}  // namespace logs
