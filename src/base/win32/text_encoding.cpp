#include "base/text_encoding.h"

#include "base/win32/wide.h"

namespace base {
namespace {
constexpr unsigned kJapaneseCodePage = 932;
}

std::string Utf8ToAnsi(std::string_view utf8) { return FromWide(Widen(utf8), kJapaneseCodePage); }

std::string AnsiToUtf8(std::string_view ansi) { return Narrow(ToWide(ansi, kJapaneseCodePage)); }

}  // namespace base
