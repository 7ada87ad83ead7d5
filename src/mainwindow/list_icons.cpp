#include "mainwindow/list_icons.h"

#include "platform/error_trap.h"

namespace mainwindow {

void AddFileOrStandByIcon(platform::IIconList& icons, const std::string& path) {
    if (path == "SYSTEM" || !icons.AddFileIcon(path)) icons.AddStandByIcon();
}

namespace {

// The rule for one file inside the tab's own error trap.
void AddRowIcon(platform::IIconList& icons, const std::string& path, platform::IDialogs& dialogs,
                const IconErrorTexts& texts) {
    platform::TrapErrors(dialogs, texts.oneIcon, [&] { AddFileOrStandByIcon(icons, path); });
}

}  // namespace

void LoadRowIcons(platform::IIconList& icons, const base::TableModel& list, std::size_t pathColumn,
                  platform::IDialogs& dialogs, const IconErrorTexts& texts) {
    platform::TrapErrors(dialogs, texts.allIcons, [&] {
        icons.Clear();
        for (std::size_t row = 0; row < list.RowCount(); ++row) {
            AddRowIcon(icons, list.Cell(row, pathColumn), dialogs, texts);
        }
    });
}

}  // namespace mainwindow
