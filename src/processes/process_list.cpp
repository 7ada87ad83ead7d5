#include "processes/process_list.h"

#include "base/conversions.h"
#include "base/format.h"
#include "base/runtime_error.h"
#include "mainwindow/list_icons.h"
#include "platform/error_trap.h"

namespace processes {
namespace {

constexpr char kRefreshError[] = "プロセス タブで Error Level t1 が発生しました。";
constexpr char kUpdateError[] = "プロセス タブで ListViewUpDate2 が発生しました。";
constexpr char kDeleteError[] = "プロセス タブで ListViewDel2 が発生しました。";
constexpr char kEditError[] = "プロセス タブで ListViewEdit2 が発生しました。";
constexpr char kAddError[] = "プロセス タブで ListViewAdd2 が発生しました。";
const mainwindow::IconErrorTexts kIconErrors{"プロセス タブで GetAllIcons2 が発生しました。",
                                             "プロセス タブで GetIcon2 が発生しました。"};
constexpr std::size_t kPathColumn = 3;
constexpr int kProcessTab = 2;

base::TableModel::Row RowOf(const ProcessEntry& entry) {
    return {{entry.imageName, std::to_string(entry.processId), entry.memory, entry.path}};
}

std::string ImageNameOf(const std::string& path) {
    const std::size_t slash = path.rfind('\\');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

}  // namespace

std::vector<std::uint32_t> EnumerateProcessIds(platform::IProcesses& processes) {
    std::uint32_t bufferSize = 4;
    std::uint32_t needed = 96;
    std::vector<std::uint32_t> ids;
    while (bufferSize <= needed) {
        // The size is a 32-bit signed number: it cannot double past its range.
        if (bufferSize > 0x3FFFFFFF) throw base::RuntimeError(base::RuntimeErrorNumber::Overflow);
        bufferSize *= 2;
        ids.assign(bufferSize / 4, 0);
        processes.EnumProcessIds(ids, needed);
    }
    ids.resize(needed / 4);
    return ids;
}

std::string MemoryText(std::uint64_t workingSetBytes) {
    const double kilobytes = static_cast<double>(workingSetBytes) / 1024;
    return kilobytes <= 0 ? "0" : base::FormatThousands(kilobytes) + " K";
}

ProcessListPage::ProcessListPage(mainwindow::MainWindowModel& window, platform::IProcesses& processes,
                                 platform::IIconList& icons, platform::IDialogs& dialogs)
    : m_window(window),
      m_list(window.List(mainwindow::ListId::lstvTask)),
      m_processes(processes),
      m_icons(icons),
      m_dialogs(dialogs) {}

bool ProcessListPage::Refresh() {
    platform::TrapErrors(m_dialogs, kRefreshError, [&] {
        const std::vector<std::uint32_t> ids = EnumerateProcessIds(m_processes);
        // Only a new number of processes rebuilds: one ending while another starts goes unseen.
        if (ids.size() == m_previousCount) return;
        m_previousCount = ids.size();
        const auto entries = std::make_unique<ProcessEntries>();
        FillEntries(ids, *entries);
        UpdateList(*entries, static_cast<int>(ids.size()));
        mainwindow::LoadRowIcons(m_icons, m_list, kPathColumn, m_dialogs, kIconErrors);
        m_list.ShowIconPerRow();  // every row shows the image with its own index
        m_window.ShowCountOf(kProcessTab);
        m_window.AutomaticLog(logs::LogKind::Process);
    });
    return true;
}

void ProcessListPage::FillEntries(const std::vector<std::uint32_t>& ids, ProcessEntries& entries) {
    int row = 0;
    for (const std::uint32_t id : ids) {
        const std::optional<std::string> path = m_processes.FirstModulePath(id);
        if (!path) continue;  // not openable, or its modules cannot be listed: no row, no gap
        ProcessEntry& entry = entries[++row];
        entry.path = *path;
        entry.imageName = ImageNameOf(entry.path);
        entry.processId = base::ToInt16(std::to_string(id));
        entry.memory = MemoryText(m_processes.WorkingSetBytes(id));
    }
}

void ProcessListPage::UpdateList(const ProcessEntries& entries, int count) {
    Rows rows;
    const bool empty = m_list.RowCount() == 0;
    platform::TrapErrors(m_dialogs, kUpdateError, [&] {
        if (empty) {
            for (int i = 1; i <= count && !entries[i].imageName.empty(); ++i) rows.push_back(RowOf(entries[i]));
            return;
        }
        platform::TrapErrors(m_dialogs, kDeleteError, [&] { m_list.Clear(); });
        platform::TrapErrors(m_dialogs, kEditError, [&] {
            for (int i = 1; i <= count; ++i) AddRow(entries, i, rows);
        });
    });
    // The rows gathered before an error stay, as rows added one by one would.
    m_list.Replace(std::move(rows));
}

void ProcessListPage::AddRow(const ProcessEntries& entries, int index, Rows& rows) {
    platform::TrapErrors(m_dialogs, kAddError, [&] {
        if (!entries[index].imageName.empty()) rows.push_back(RowOf(entries[index]));
    });
}

}  // namespace processes
