#pragma once
// The commands of the lists' pop-up menu that act on the selected row of the process tab or the
// applications tab: end its process, copy its path, show its program's libraries. On other tabs,
// or with no row selected, they do nothing.
#include <cstddef>
#include <optional>

#include "mainwindow/main_window_model.h"
#include "platform/processes.h"
#include "processes/file_dependencies.h"

namespace processes {

class ProcessCommands {
public:
    // Becomes the handler of mnuKill, mnuCOPY and mnuDepend.
    ProcessCommands(mainwindow::MainWindowModel& window, platform::IProcesses& processes,
                    DependencyServices services);
    ProcessCommands(const ProcessCommands&) = delete;
    ProcessCommands& operator=(const ProcessCommands&) = delete;

    void Kill();              // mnuKill: asks, then ends the row's process
    void CopyPath();          // mnuCOPY
    void ShowDependencies();  // mnuDepend

private:
    struct Selection {
        const base::TableModel& list;
        std::size_t row;
        std::size_t pathColumn;
    };
    std::optional<Selection> Selected() const;

    mainwindow::MainWindowModel& m_window;
    platform::IProcesses& m_processes;
    DependencyServices m_services;
};

}  // namespace processes
