#pragma once
#include <cstdint>

#include "base/local_time.h"

namespace platform {

class IClock {
public:
    virtual ~IClock() = default;
    virtual base::LocalTime Now() = 0;
    // Milliseconds since the system started (wraps after 49.7 days).
    virtual std::uint32_t TickCount() = 0;
};

}  // namespace platform
