#include "app/tray_menu.h"

namespace app {
namespace {

using enum TrayMenuItem;

constexpr TrayMenuEntry kEntries[] = {
    {mnuOpen, "Veskar_Lookoutを開く(&O)", false},
    {mnuUti, "ユーティリティ(&U)", true},
    {mnuTodayFileKill, "最近使ったファイルの削除(&R)", false},
    {mnuEnd, "Veskar_Lookoutを終了する(&X)", true},
    {mnuVer, "バージョン情報(&A)", true},
    {mnuweb, "Veskar Development WEBサイト(&W)", false},
};

}  // namespace

std::span<const TrayMenuEntry> TrayMenuEntries() { return kEntries; }

std::optional<TrayMenuItem> TrayMenuItemOfCommand(int command) {
    const int index = command - kFirstTrayMenuCommand;
    if (index < 0 || index >= static_cast<int>(std::size(kEntries))) return std::nullopt;
    return static_cast<TrayMenuItem>(index);
}

bool TrayMenu::Mouse(int message, bool mainWindowVisible) {
    if (message == kTrayDoubleClick) m_mainWindow.ShowNormal();
    return message == kTrayRightUp && !mainWindowVisible;
}

void TrayMenu::Click(TrayMenuItem item) {
    using mainwindow::MenuItem;
    switch (item) {
        case mnuOpen: return m_mainWindow.ShowNormal();
        case mnuUti: return m_mainWindow.MenuClick(MenuItem::mnuVESKARTOOLZ);
        case mnuTodayFileKill: return m_recentDocuments.Clear();
        case mnuEnd: return m_mainWindow.MenuClick(MenuItem::mnuEND);
        case mnuVer: return m_mainWindow.MenuClick(MenuItem::mnuVER);
        case mnuweb: return m_mainWindow.MenuClick(MenuItem::mnuVESKARWEBSITE);
    }
}

}  // namespace app
