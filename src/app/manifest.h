#pragma once
// The visual-styles manifest written once beside the executable; it gives the list views,
// tabs and toolbar the version 6 common controls.
#include <string>

namespace app {

// "x86" for the 32-bit build; an x64 process fails side-by-side activation with it, so the
// 64-bit build names its own architecture.
#if defined(_M_X64) || defined(__x86_64__)
inline constexpr const char* kManifestArchitecture = "amd64";
#else
inline constexpr const char* kManifestArchitecture = "x86";
#endif

// The manifest text: 21 lines joined by CR LF, no line break after the last.
std::string ManifestText(const std::string& executableFileName, const std::string& comments,
                         const std::string& architecture = kManifestArchitecture);

}  // namespace app
