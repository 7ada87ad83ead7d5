#include "base/win32/wide.h"

#include <windows.h>

namespace base {

std::wstring ToWide(std::string_view text, unsigned codePage) {
    if (text.empty()) return {};
    const int size = MultiByteToWideChar(codePage, 0, text.data(), static_cast<int>(text.size()), nullptr, 0);
    if (size <= 0) return {};
    std::wstring wide(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(codePage, 0, text.data(), static_cast<int>(text.size()), wide.data(), size);
    return wide;
}

std::string FromWide(std::wstring_view wide, unsigned codePage) {
    if (wide.empty()) return {};
    const int size =
        WideCharToMultiByte(codePage, 0, wide.data(), static_cast<int>(wide.size()), nullptr, 0, nullptr, nullptr);
    if (size <= 0) return {};
    std::string text(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(codePage, 0, wide.data(), static_cast<int>(wide.size()), text.data(), size, nullptr, nullptr);
    return text;
}

std::wstring Widen(std::string_view utf8) { return ToWide(utf8, CP_UTF8); }
std::string Narrow(std::wstring_view wide) { return FromWide(wide, CP_UTF8); }

}  // namespace base
