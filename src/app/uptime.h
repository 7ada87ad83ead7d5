#pragma once
#include <cstdint>
#include <string>

namespace app {

// "Windows起動の経過時間 HH:MM:SS" from the milliseconds since the system started. Each field
// keeps its last two digits only, so 100 hours or more show the hours modulo 100.
std::string UptimeText(std::uint32_t milliseconds);

}  // namespace app
