#pragma once
// UTF-8 inside, UTF-16 at the Win32 boundary.
#include <string>
#include <string_view>

namespace base {

std::wstring Widen(std::string_view utf8);
std::string Narrow(std::wstring_view wide);

}  // namespace base
