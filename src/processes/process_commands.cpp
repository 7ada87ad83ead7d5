#include "processes/process_commands.h"

#include "base/conversions.h"

namespace processes {
namespace {

constexpr char kKillQuestion[] = "プロセスを終了してもよろしいですか";
constexpr char kKillTitle[] = "プロセスを切断しています";
constexpr std::size_t kIdColumn = 1;

}  // namespace

ProcessCommands::ProcessCommands(mainwindow::MainWindowModel& window, platform::IProcesses& processes,
                                 DependencyServices services)
    : m_window(window), m_processes(processes), m_services(services) {
    using mainwindow::MenuItem;
    window.SetMenuHandler(MenuItem::mnuKill, [this] { Kill(); });
    window.SetMenuHandler(MenuItem::mnuCOPY, [this] { CopyPath(); });
    window.SetMenuHandler(MenuItem::mnuDepend, [this] { ShowDependencies(); });
}

std::optional<ProcessCommands::Selection> ProcessCommands::Selected() const {
    const int tab = m_window.SelectedTab();
    if (tab != 2 && tab != 3) return std::nullopt;
    const base::TableModel& list = m_window.List(mainwindow::Tab(tab).list);
    const std::optional<std::size_t> row = list.SelectedRow();
    if (!row) return std::nullopt;
    return Selection{list, *row, tab == 2 ? std::size_t{3} : std::size_t{4}};
}

void ProcessCommands::Kill() {
    const auto selected = Selected();
    if (!selected) return;
    using namespace platform::msgbox;
    const std::string text = "\r\n" + std::string(kKillQuestion) + "\r\n" + selected->list.Cell(selected->row, 0) + " ";
    // Read before asking: a timer may rebuild the list while the question is open.
    const std::int32_t id = base::ToInt32(selected->list.Cell(selected->row, kIdColumn));
    if (m_services.dialogs.ShowMessage(text, kKillTitle, kYesNo | kExclamation | kDefaultButton2) != kYes) return;
    m_processes.Terminate(id);
}

void ProcessCommands::CopyPath() {
    if (const auto selected = Selected()) {
        m_services.dialogs.SetClipboardText(selected->list.Cell(selected->row, selected->pathColumn));
    }
}

void ProcessCommands::ShowDependencies() {
    if (const auto selected = Selected()) {
        ShowFileDependencies(selected->list.Cell(selected->row, selected->pathColumn), m_services);
    }
}

}  // namespace processes
