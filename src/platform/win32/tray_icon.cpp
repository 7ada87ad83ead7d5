#include "platform/win32/tray_icon.h"

#include "base/resource_ids.h"
#include "base/win32/wide.h"

namespace platform::win32 {
namespace {

// The icon files beside the program; when one is missing the copy in the resources serves.
HICON LoadTrayIcon(const std::string& iconPath) {
    const int size = GetSystemMetrics(SM_CXSMICON);
    if (auto icon = static_cast<HICON>(
            LoadImageW(nullptr, base::Widen(iconPath).c_str(), IMAGE_ICON, size, size, LR_LOADFROMFILE))) {
        return icon;
    }
    const bool on = iconPath.find("veskarneton.ico") != std::string::npos;
    return static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(on ? IDI_TRAY_ON : IDI_TRAY_OFF),
                                         IMAGE_ICON, size, size, 0));
}

}  // namespace

NOTIFYICONDATAW TrayIcon::Data() const {
    NOTIFYICONDATAW data{};
    data.cbSize = sizeof data;
    data.hWnd = m_owner;
    data.uID = 1;
    return data;
}

TrayIcon::~TrayIcon() {
    if (m_shown) Remove();
}

void TrayIcon::Show(const std::string& iconPath, const std::string& tip) {
    if (m_removed) return;
    base::UniqueIcon icon(LoadTrayIcon(iconPath));
    NOTIFYICONDATAW data = Data();
    data.uFlags = NIF_ICON | NIF_TIP | NIF_MESSAGE;
    data.uCallbackMessage = WM_MOUSEMOVE;
    data.hIcon = icon.Get();
    const std::wstring text = base::Widen(tip);
    text.copy(data.szTip, std::size(data.szTip) - 1);
    Shell_NotifyIconW(NIM_ADD, &data);  // fails harmlessly when the icon is there already
    Shell_NotifyIconW(NIM_MODIFY, &data);
    m_icon = std::move(icon);  // the shell keeps using the icon it was given
    m_shown = true;
    m_iconPath = iconPath;  // may be the member itself (a re-add); assigning it to itself is safe
    m_tip = tip;
}

void TrayIcon::Remove() {
    NOTIFYICONDATAW data = Data();
    Shell_NotifyIconW(NIM_DELETE, &data);
    m_shown = false;
    m_removed = true;
}

void TrayIcon::ShowAgain() {
    if (m_shown) Show(m_iconPath, m_tip);
}

}  // namespace platform::win32
