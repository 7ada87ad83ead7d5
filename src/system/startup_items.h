#pragma once
// The "スタートアップ" tab: the values of the Run and RunServices keys of the user and of the
// machine, one row each (name, command line, where it was found) with its program's icon.
#include <functional>
#include <string>

#include "base/table_model.h"
#include "mainwindow/tab_page.h"
#include "platform/file_icons.h"
#include "system/registry_reader.h"

namespace system_items {

// The program a command line starts, for its icon. The double quotes go first, so they can no
// longer tell where the path ends; the path then runs to the first ".exe" (any case) that ends
// at a blank or at the end, or else to the first blank, or else is the whole text:
//   "C:\Program Files\A\a.exe" -x  ->  C:\Program Files\A\a.exe
//   rundll32 shell32.dll,Control   ->  rundll32
std::string ProgramPathOf(const std::string& commandLine);

// Rebuilds lstvStartup and its icons, then writes the startup automatic log. Errors are not
// trapped here: a value that is no string, or a 52nd value under one key, raises the runtime's
// error. The default value (empty name) is listed like any other, with an empty name. The rows
// carry no tag: nothing reads one.
class StartupItemsPage final : public mainwindow::ITabPage {
public:
    StartupItemsPage(platform::IRegistry& registry, platform::IIconList& icons, base::TableModel& lstvStartup,
                     std::function<void()> automaticLog)
        : m_reg(registry), m_icons(icons), m_list(lstvStartup), m_automaticLog(std::move(automaticLog)) {}
    bool Refresh() override;

private:
    cReg m_reg;
    platform::IIconList& m_icons;
    base::TableModel& m_list;
    std::function<void()> m_automaticLog;
};

}  // namespace system_items
