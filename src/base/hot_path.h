#pragma once
// LOOKOUT_HOT marks a function that every monitoring tick runs. Between ticks the program sleeps
// and its code leaves the caches and the TLB, so a tick pays for each code page it touches, often
// more than for the work it does there. GCC and Clang put the marked functions together in
// .text.hot, so a tick runs in a few pages instead of one or two per source file it passes through.
#if defined(__GNUC__)
#define LOOKOUT_HOT __attribute__((hot))
#else
#define LOOKOUT_HOT
#endif
