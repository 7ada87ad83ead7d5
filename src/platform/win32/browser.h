#pragma once
#include "platform/browser.h"

namespace platform::win32 {

// The automation object "InternetExplorer.application": Navigate, then Visible.
class AutomationBrowser : public IBrowser {
public:
    bool Navigate(const std::string& address) override;
};

}  // namespace platform::win32
