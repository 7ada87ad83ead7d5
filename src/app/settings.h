#pragma once
// The user settings, kept in setting.ini, section "main".
#include <array>
#include <cstdint>
#include <string>

#include "base/colour.h"

namespace app {

struct Settings {
    std::string time;         // monitoring interval in seconds, as text
    std::string open;         // "1": show the main window at start-up
    std::uint8_t start = 0;   // 1: start monitoring at start-up
    std::uint8_t packet = 0;  // 1: write the traffic row each tick
    std::uint8_t beep = 0;    // 1: beep for each session of another PC
    std::uint8_t logflag = 0; // 1: save the main monitor when the program ends
    std::array<std::int32_t, 2> colours{};  // [0] list background, [1] list text
    std::uint8_t window = 0;  // 1: announce sessions in the alert pop-up
    std::string nc;           // the monitored interface's text
    std::uint8_t front = 0;   // 1: main window always on top
    std::uint8_t app = 0;     // 1: watch applications that use the network

    std::int32_t& Backcolor() { return colours[0]; }
    std::int32_t& Fontcolor() { return colours[1]; }
    std::int32_t Backcolor() const { return colours[0]; }
    std::int32_t Fontcolor() const { return colours[1]; }
};

// The values a missing file is created with.
Settings DefaultSettings();

// "ログ間隔 : " + time + "秒", the interval shown in the status bar.
std::string IntervalPanelText(const Settings& settings);

}  // namespace app
