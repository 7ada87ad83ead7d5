#pragma once
// LOOKOUT_HOT marks a function that every monitoring tick runs. Between ticks the program sleeps
// and its code leaves the caches and the TLB, so a tick pays for each code page it touches, often
// more than for the work it does there. GCC and Clang put the marked functions together in
// .text.hot, so a tick runs in a few pages instead of one or two per source file it passes through.
//
// LOOKOUT_COLD marks what those functions call only when a tick has something to record (a row, an
// alert, a changed tray icon): it is never inlined into them, so the few bytes a quiet tick runs
// stay together. It is noinline rather than GCC's cold: the linker places each file's
// .text.unlikely right beside its .text.hot, which would spread the hot code again.
#if defined(__GNUC__)
#define LOOKOUT_HOT __attribute__((hot))
#define LOOKOUT_COLD __attribute__((noinline))
#else
#define LOOKOUT_HOT
#define LOOKOUT_COLD
#endif
