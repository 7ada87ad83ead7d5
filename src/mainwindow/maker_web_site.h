#pragma once
// The maker's web site, opened from the help menu, the tray menu and the about box's link.
#include "platform/browser.h"
#include "platform/dialogs.h"

// The address is chosen when the program is built (CMake cache variable LOOKOUT_MAKER_WEB_SITE).
#ifndef LOOKOUT_MAKER_WEB_SITE
#error "the build defines LOOKOUT_MAKER_WEB_SITE"
#endif

namespace mainwindow {

inline constexpr const char* kMakerWebSite = LOOKOUT_MAKER_WEB_SITE;

// When the browser cannot be driven, says so in a message box; nothing else changes.
void OpenMakerWebSite(platform::IBrowser& browser, platform::IDialogs& dialogs);

}  // namespace mainwindow
