#pragma once
// AlertSlotMask: bit k-1 marks stacking slot k as taken. Slots 1 to 7 each go to one alert;
// every alert beyond the seventh shares slot 8. Releasing toggles the slot's bit, so when two
// alerts share slot 8 the first release clears bit 128 and the second sets it again.
#include <cstdint>

namespace controls {

class AlertSlots {
public:
    int Take();
    void Release(int slot);
    std::int32_t Mask() const { return m_mask; }

private:
    std::int32_t m_mask = 0;
};

}  // namespace controls
