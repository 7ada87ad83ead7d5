#include "logs/log_names.h"

#include "base/conversions.h"

namespace logs {

std::string LogsFolder(const std::string& programFolder) { return programFolder + "logs"; }

std::string AppendSaveBase(LogKind kind, const base::LocalTime& now) {
    return std::string(KindWord(kind)) + "_log_" + base::DateStem(now);
}

std::string AutomaticBase(LogKind kind, const base::LocalTime& now) {
    return std::string(KindWord(kind)) + base::DateStem(now);
}

std::string TemporaryFileName(LogKind kind, const base::LocalTime& now) {
    return std::string(KindWord(kind)) + "_tmplog_" + base::DateStem(now) + ".txt";
}

std::string MainMonitorFileName(const base::LocalTime& now, int number) {
    return base::DateStem(now) + "-" + std::to_string(number) + ".txt";
}

std::string RolloverPath(platform::IFileSystem& files, const std::string& folder, const std::string& base) {
    std::string path = folder + base + ".txt";
    std::uint64_t size = files.FileExists(path) ? files.FileSize(path).value_or(0) : 0;
    std::int16_t series = 0;
    while (size > kRolloverLimit) {
        series = base::ToInt16(series + 1.0);
        path = folder + base + "_" + std::to_string(series) + ".txt";
        if (!files.FileExists(path)) break;
        size = files.FileSize(path).value_or(0);
    }
    return path;
}

std::string NextMainMonitorPath(platform::IFileSystem& files, const std::string& folder,
                                const base::LocalTime& now) {
    int number = 1;
    while (files.FileExists(folder + MainMonitorFileName(now, number))) ++number;
    return folder + MainMonitorFileName(now, number);
}

}  // namespace logs
