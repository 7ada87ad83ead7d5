#pragma once
// The shapes the running system gives the walk's answers, which follow the build's pointer size.
#include <cstddef>

namespace processes {

struct NativeLayout {
    std::size_t handleHeader;  // bytes before the first handle entry
    std::size_t handleEntry;   // bytes of one handle entry
    std::size_t nameHeader;    // bytes of the counted-string header before an object's name
    // The object-name buffer holds the header, eleven characters and their NUL, so the kernel
    // refuses every longer name at once.
    std::size_t NameBuffer() const { return nameHeader + 24; }
};

inline constexpr NativeLayout kLayout32{4, 16, 8};
inline constexpr NativeLayout kLayout64{8, 24, 16};

inline constexpr NativeLayout BuildLayout() { return sizeof(void*) == 8 ? kLayout64 : kLayout32; }

}  // namespace processes
