#include "base/win32/wide.h"

#include <windows.h>

#include <algorithm>
#include <type_traits>


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

// Plain ASCII, most of what the program converts (the traffic figures of every tick among it),
// reads the same in UTF-8 and UTF-16 and is copied as it is: the code-page functions cost many
// times more.
template <typename Char>
bool IsAscii(std::basic_string_view<Char> text) {
    return std::all_of(text.begin(), text.end(),
                       [](Char c) { return static_cast<std::make_unsigned_t<Char>>(c) < 0x80; });
}

std::wstring Widen(std::string_view utf8) {
    if (IsAscii(utf8)) return std::wstring(utf8.begin(), utf8.end());
    return ToWide(utf8, CP_UTF8);
}

std::string Narrow(std::wstring_view wide) {
    if (IsAscii(wide)) return std::string(wide.begin(), wide.end());
    return FromWide(wide, CP_UTF8);
}

}  // namespace base
