#pragma once
// The two display formats the program uses.
#include <string>
#include <string_view>

namespace base {

// "###,###,##0": whole number (halves away from zero), thousands separated by ",".
std::string FormatThousands(double value);

// "@@@@@@": the text right-aligned in six characters; a longer text stands whole.
std::string FormatAtSigns(std::string_view text);

}  // namespace base
