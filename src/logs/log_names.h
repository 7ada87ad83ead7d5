#pragma once
// Where every log file goes and what it is called. All names carry the local date; the
// append-save and automatic families roll over to "_1", "_2" ... once a file passes the limit.
#include <cstdint>
#include <string>

#include "base/local_time.h"
#include "logs/log_kind.h"
#include "platform/files.h"

namespace logs {

// A file of exactly this many bytes is still appended to; one byte more and the series moves on.
inline constexpr std::uint64_t kRolloverLimit = 512000;

// "<program folder>logs"; the program folder always ends in "\".
std::string LogsFolder(const std::string& programFolder);

// "<kind>_log_YYYYMMDD": the append-save family, before ".txt" or a rollover suffix.
std::string AppendSaveBase(LogKind kind, const base::LocalTime& now);
// "<kind>YYYYMMDD": the automatic family (no separator between kind and date).
std::string AutomaticBase(LogKind kind, const base::LocalTime& now);
// "<kind>_tmplog_YYYYMMDD.txt": the temporary save, replaced by every save of the day.
std::string TemporaryFileName(LogKind kind, const base::LocalTime& now);
// "YYYYMMDD-N.txt": one main-monitor file.
std::string MainMonitorFileName(const base::LocalTime& now, int number);

// The first file of the series folder\base.txt, folder\base_1.txt, folder\base_2.txt ... that
// is absent or not above the limit. The series number is a 16-bit counter: passing 32767 raises
// the runtime's overflow error. folder ends in "\".
std::string RolloverPath(platform::IFileSystem& files, const std::string& folder, const std::string& base);

// folder\YYYYMMDD-N.txt with the lowest N from 1 on that names no existing file. folder ends in "\".
std::string NextMainMonitorPath(platform::IFileSystem& files, const std::string& folder,
                                const base::LocalTime& now);

}  // namespace logs
