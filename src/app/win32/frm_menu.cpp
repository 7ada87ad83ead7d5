#include "app/win32/frm_menu.h"

#include "base/win32/fatal_error.h"
#include "base/win32/wide.h"

namespace app {

FrmMenu::FrmMenu(TrayMenu& menu, HWND mainWindow)
    : m_menu(menu), m_mainWindow(mainWindow), m_popup(CreatePopupMenu()) {
    if (!m_popup) base::FatalSystemError(L"CreatePopupMenu");
    for (const TrayMenuEntry& entry : TrayMenuEntries()) {
        if (entry.separatorBefore && !AppendMenuW(m_popup.Get(), MF_SEPARATOR, 0, nullptr)) {
            base::FatalSystemError(L"AppendMenu");
        }
        const std::wstring caption = base::Widen(entry.caption);
        if (!AppendMenuW(m_popup.Get(), MF_STRING, static_cast<UINT_PTR>(TrayMenuCommand(entry.item)),
                         caption.c_str())) {
            base::FatalSystemError(L"AppendMenu");
        }
    }
}

void FrmMenu::OnTrayMouse(int message) {
    if (m_menu.Mouse(message, IsWindowVisible(m_mainWindow) != FALSE)) PopUp();
}

void FrmMenu::OnCommand(int id) {
    if (const auto item = TrayMenuItemOfCommand(id)) m_menu.Click(*item);
}

// The menu closes when the user clicks elsewhere only if its window's thread is in the
// foreground; the empty message afterwards lets the second pop-up work too.
void FrmMenu::PopUp() {
    SetForegroundWindow(m_mainWindow);
    POINT at{};
    if (!GetCursorPos(&at)) return;
    TrackPopupMenu(m_popup.Get(), TPM_RIGHTBUTTON, at.x, at.y, 0, m_mainWindow, nullptr);
    PostMessageW(m_mainWindow, WM_NULL, 0, 0);
}

}  // namespace app
