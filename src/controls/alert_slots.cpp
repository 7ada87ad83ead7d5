#include "controls/alert_slots.h"

namespace controls {

int AlertSlots::Take() {
    for (int slot = 1; slot <= 6; ++slot) {
        const std::int32_t bit = 1 << (slot - 1);
        if ((m_mask & bit) == 0) {
            m_mask |= bit;
            return slot;
        }
    }
    // Bit 128 is set without looking at it first.
    if ((m_mask & 64) == 0) {
        m_mask |= 64;
        return 7;
    }
    m_mask |= 128;
    return 8;
}

void AlertSlots::Release(int slot) { m_mask ^= 1 << (slot - 1); }

}  // namespace controls
