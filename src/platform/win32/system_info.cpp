#include "platform/win32/system_info.h"

#include <windows.h>

#include "base/win32/wide.h"

namespace platform::win32 {

std::optional<std::string> SystemInfo::ComputerName() {
    wchar_t name[16]{};
    DWORD size = 16;
    if (!GetComputerNameW(name, &size)) return std::nullopt;
    return base::Narrow(std::wstring_view(name, size));
}

std::string SystemInfo::UserName() {
    wchar_t name[255]{};
    DWORD size = 255;
    if (!GetUserNameW(name, &size)) return {};
    return base::Narrow(name);  // up to the first null character
}

}  // namespace platform::win32
