#pragma once
#include "platform/clock.h"

namespace platform::win32 {

class Clock : public IClock {
public:
    base::LocalTime Now() override;
    std::uint32_t TickCount() override;
};

}  // namespace platform::win32
