#include "platform/win32/program_settings.h"

#include <windows.h>

#include <vector>

#include "base/win32/unique_resource.h"
#include "base/win32/wide.h"

namespace platform::win32 {

std::optional<std::string> ProgramSettings::GetSetting(const std::string& application, const std::string& section,
                                                       const std::string& key) {
    const std::wstring path = L"Software\\VB and VBA Program Settings\\" + base::Widen(application) + L"\\" +
                              base::Widen(section);
    HKEY raw = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_QUERY_VALUE, &raw) != ERROR_SUCCESS) return {};
    const base::UniqueRegKey opened(raw);
    const std::wstring name = base::Widen(key);
    DWORD type = 0, size = 0;
    if (RegQueryValueExW(opened.Get(), name.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS ||
        (type != REG_SZ && type != REG_EXPAND_SZ)) {
        return {};
    }
    std::vector<wchar_t> text(size / sizeof(wchar_t) + 1, L'\0');
    size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
    if (RegQueryValueExW(opened.Get(), name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(text.data()),
                         &size) != ERROR_SUCCESS) {
        return {};
    }
    return base::Narrow(std::wstring_view(text.data()));
}

}  // namespace platform::win32
