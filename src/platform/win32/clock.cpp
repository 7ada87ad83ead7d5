#include "platform/win32/clock.h"

#include <windows.h>

namespace platform::win32 {

base::LocalTime Clock::Now() {
    SYSTEMTIME t{};
    GetLocalTime(&t);
    return {t.wYear, t.wMonth, t.wDay, t.wHour, t.wMinute, t.wSecond};
}

std::uint32_t Clock::TickCount() { return GetTickCount(); }

}  // namespace platform::win32
