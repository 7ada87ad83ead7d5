#pragma once
#include "platform/clock.h"

namespace fakes {

class FakeClock : public platform::IClock {
public:
    base::LocalTime Now() override { return now; }
    std::uint32_t TickCount() override { return ticks; }

    base::LocalTime now{2005, 6, 22, 9, 5, 3};
    std::uint32_t ticks = 0;
};

}  // namespace fakes
