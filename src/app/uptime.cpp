#include "app/uptime.h"

namespace app {
namespace {

std::string LastTwoDigits(std::uint32_t value) {
    const std::string text = "0" + std::to_string(value);
    return text.substr(text.size() - 2);
}

}  // namespace

std::string UptimeText(std::uint32_t ms) {
    const std::uint32_t hours = ms / 3600000;
    const std::uint32_t minutes = ms / 60000 - 60 * hours;
    const std::uint32_t seconds = ms / 1000 - (3600 * hours + 60 * minutes);
    return "Windows起動の経過時間 " + LastTwoDigits(hours) + ":" + LastTwoDigits(minutes) + ":" +
           LastTwoDigits(seconds);
}

}  // namespace app
