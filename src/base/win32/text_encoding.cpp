#include "base/text_encoding.h"

#include <windows.h>

#include "base/win32/wide.h"

namespace base {
namespace {
constexpr UINT kJapaneseCodePage = 932;
}

std::string Utf8ToAnsi(std::string_view utf8) {
    const std::wstring wide = Widen(utf8);
    if (wide.empty()) return {};
    const int size = WideCharToMultiByte(kJapaneseCodePage, 0, wide.data(), static_cast<int>(wide.size()),
                                         nullptr, 0, nullptr, nullptr);
    if (size <= 0) return {};
    std::string ansi(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(kJapaneseCodePage, 0, wide.data(), static_cast<int>(wide.size()), ansi.data(), size,
                        nullptr, nullptr);
    return ansi;
}

std::string AnsiToUtf8(std::string_view ansi) {
    if (ansi.empty()) return {};
    const int size = MultiByteToWideChar(kJapaneseCodePage, 0, ansi.data(), static_cast<int>(ansi.size()), nullptr, 0);
    if (size <= 0) return {};
    std::wstring wide(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(kJapaneseCodePage, 0, ansi.data(), static_cast<int>(ansi.size()), wide.data(), size);
    return Narrow(wide);
}

}  // namespace base
