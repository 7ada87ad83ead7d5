#pragma once
// An array with fixed bounds, as the program declares them: an index outside the bounds
// raises the runtime's subscript error instead of touching memory.
#include <array>
#include <cstddef>

#include "base/runtime_error.h"

namespace base {

template <typename T, int Lower, int Upper>
class FixedArray {
    static_assert(Lower <= Upper);

public:
    static constexpr int LowerBound = Lower;
    static constexpr int UpperBound = Upper;

    T& operator[](int index) { return m_items[Offset(index)]; }
    const T& operator[](int index) const { return m_items[Offset(index)]; }

    void Fill(const T& value) { m_items.fill(value); }

private:
    static std::size_t Offset(int index) {
        if (index < Lower || index > Upper) throw RuntimeError(RuntimeErrorNumber::SubscriptOutOfRange);
        return static_cast<std::size_t>(index - Lower);
    }

    std::array<T, static_cast<std::size_t>(Upper - Lower + 1)> m_items{};
};

}  // namespace base
