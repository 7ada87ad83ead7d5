#pragma once
#include <windows.h>
#include <shellapi.h>

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

private:
    NOTIFYICONDATAW Data() const;

    HWND m_owner;
    base::UniqueIcon m_icon;
};

}  // namespace platform::win32
