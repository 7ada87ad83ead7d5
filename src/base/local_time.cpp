#include "base/local_time.h"

#include <cstdio>

namespace base {

std::string LogStamp(const LocalTime& t) {
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%04d/%02d/%02d %02d:%02d:%02d", t.year, t.month, t.day, t.hour, t.minute,
                  t.second);
    return buffer;
}

std::string MonitorStamp(const LocalTime& time) { return "[" + LogStamp(time) + "]"; }

std::string DateStem(const LocalTime& t) {
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "%04d%02d%02d", t.year, t.month, t.day);
    return buffer;
}

}  // namespace base
