#pragma once
// Text is UTF-8 inside the program; the files it writes and reads are in code page 932,
// the ANSI code page of the Japanese systems it is made for.
#include <string>
#include <string_view>

namespace base {

// Characters that code page 932 lacks become "?", as the system's own conversion does.
std::string Utf8ToAnsi(std::string_view utf8);
std::string AnsiToUtf8(std::string_view ansi);

}  // namespace base
