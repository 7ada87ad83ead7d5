#pragma once
// UTF-8 inside, UTF-16 at the Win32 boundary.
#include <string>
#include <string_view>

namespace base {

std::wstring Widen(std::string_view utf8);
std::string Narrow(std::wstring_view wide);

// The same conversions for any code page.
std::wstring ToWide(std::string_view text, unsigned codePage);
std::string FromWide(std::wstring_view wide, unsigned codePage);

}  // namespace base
