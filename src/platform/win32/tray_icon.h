#pragma once
#include <windows.h>
#include <shellapi.h>

#include <string>

#include "base/win32/unique_resource.h"
#include "platform/shell.h"

namespace platform::win32 {

// The main window's notification-area icon: identifier 1, and tray mouse messages arrive
// as mouse-move messages of the owner window.
class TrayIcon : public ITrayIcon {
public:
    explicit TrayIcon(HWND owner) : m_owner(owner) {}
    ~TrayIcon() override = default;

    void Show(const std::string& iconPath, const std::string& tip) override;
    void Remove() override;
    // Adds the icon again with its last picture and tip, if it is shown: after the shell
    // restarted, the new taskbar knows no icons.
    void ShowAgain();

private:
    NOTIFYICONDATAW Data() const;

    HWND m_owner;
    base::UniqueIcon m_icon;
    bool m_shown = false;
    std::string m_iconPath;
    std::string m_tip;
};

}  // namespace platform::win32
