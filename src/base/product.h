#pragma once
// The program's name and banner. The banner is the main window's caption, the first row of
// the main monitor and the title the single-instance check looks for: one constant for all three.

namespace base {

inline constexpr const char* kProductName = "Veskar_Lookout";
inline constexpr const char* kBanner = "Veskar_Lookout v1.01 - Veskar Development";

}  // namespace base
