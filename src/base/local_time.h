#pragma once
// A broken-down local time and the stamps the program writes with it.
#include <string>

namespace base {

struct LocalTime {
    int year = 2000;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

// "[YYYY/MM/DD HH:MM:SS]": the start of every monitoring row of the main monitor.
std::string MonitorStamp(const LocalTime& time);

// "YYYY/MM/DD HH:NN:SS": the first field of every list-log line.
std::string LogStamp(const LocalTime& time);

// "YYYYMMDD": the date in every log file name.
std::string DateStem(const LocalTime& time);

}  // namespace base
