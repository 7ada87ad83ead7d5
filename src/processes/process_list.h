#pragma once
// The "プロセス" tab: one row per process the program can open (image name, 16-bit ID, memory
// text, path) with its file's icon. The list is rebuilt whole, and only when the number of
// processes has changed since the last rebuild.
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "base/fixed_array.h"
#include "mainwindow/main_window_model.h"
#include "mainwindow/tab_page.h"
#include "platform/dialogs.h"
#include "platform/file_icons.h"
#include "platform/processes.h"

namespace processes {

struct ProcessEntry {
    std::string imageName;  // empty marks the end of the rows
    std::int16_t processId = 0;
    std::string path;
    std::string memory;
};

// Slots 0 to 1000 whatever the number of processes; rows are packed from 1.
using ProcessEntries = base::FixedArray<ProcessEntry, 0, 1000>;

// The process IDs, asked for with a buffer that doubles from 8 bytes until the system leaves
// part of it unfilled.
std::vector<std::uint32_t> EnumerateProcessIds(platform::IProcesses& processes);

// The memory column: "0", or the working set in kilobytes as "###,###,##0" followed by " K".
std::string MemoryText(std::uint64_t workingSetBytes);

class ProcessListPage final : public mainwindow::ITabPage {
public:
    ProcessListPage(mainwindow::MainWindowModel& window, platform::IProcesses& processes, platform::IIconList& icons,
                    platform::IDialogs& dialogs);

    // RefreshProcesses: reports its own errors, so it always succeeds.
    bool Refresh() override;

private:
    using Rows = std::vector<base::TableModel::Row>;
    void FillEntries(const std::vector<std::uint32_t>& ids, ProcessEntries& entries);
    void UpdateList(const ProcessEntries& entries, int count);              // ListViewUpDate2
    void AddRow(const ProcessEntries& entries, int index, Rows& rows);  // ListViewAdd2

    mainwindow::MainWindowModel& m_window;
    base::TableModel& m_list;
    platform::IProcesses& m_processes;
    platform::IIconList& m_icons;
    platform::IDialogs& m_dialogs;
    std::size_t m_previousCount = 0;  // of the last rebuild; 0 so that the first refresh builds
};

}  // namespace processes
