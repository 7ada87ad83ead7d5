#include "processes/applications_tab.h"

#include "base/conversions.h"
#include "base/product.h"
#include "base/reentry_guard.h"
#include "mainwindow/list_icons.h"
#include "platform/error_trap.h"

namespace processes {
namespace {

using mainwindow::ListId;
constexpr std::size_t kPathColumn = 4;
constexpr int kApplicationsTab = 3;

const char* PrivilegeStepText(platform::PrivilegeStep step) {
    switch (step) {
        case platform::PrivilegeStep::CurrentProcess: return "GetCurrentProcess, Error: ";
        case platform::PrivilegeStep::OpenToken: return "OpenProcessToken, Error: ";
        case platform::PrivilegeStep::LookupValue: return "LookupPrivilegeValue, Error: ";
        default: return "AdjustTokenPrivileges, Error: ";
    }
}

}  // namespace

ApplicationsTab::ApplicationsTab(mainwindow::MainWindowModel& window, const app::Program& program,
                                 AppDictionary& allowed, Services services, const NativeLayout& layout,
                                 WalkLimits limits)
    : m_window(window),
      m_program(program),
      m_allowed(allowed),
      m_services(services),
      m_finder(services.native, services.dialogs, services.pump, layout, limits) {}

bool ApplicationsTab::TimerRefresh() {
    m_allowed.ResetAlertCounter();
    return Refresh();
}

void ApplicationsTab::ShowEntryCount() {
    m_window.SetPanelText(5, mainwindow::Tab(kApplicationsTab).countLabel + std::to_string(m_entryCount));
}

bool ApplicationsTab::Refresh() {
    // The walk pumps messages; a timer that fires meanwhile waits for the next round.
    const base::ReentryGuard guard(m_refreshing);
    if (!guard.First()) return true;
    platform::TrapErrors(m_services.dialogs, "アプリケーション で Error Level m1 が発生しました。", [&] {
        PortOwnerTable table;
        if (!m_privilege) {
            if (!EnablePrivilege("SeDebugPrivilege")) {
                m_services.dialogs.ShowMessage("アプリケーション で Error Level m1-1 が発生しました。",
                                               base::kProductName, platform::msgbox::kOkOnly);
                return;
            }
            m_privilege = true;
        }
        if (m_finder.BuildPortOwnerTable(table)) {
            // The same number of pairs keeps the rows, even when owners or ports changed.
            if (table.EntryCount() != m_entryCount) {
                m_entryCount = table.EntryCount();
                const auto entries = BuildPortEntries(table, m_services.native, m_services.dialogs);
                ListViewUpDate(*entries);
                RenewIcons();
            }
        }
        m_window.ShowCountOf(kApplicationsTab);
        m_window.AutomaticLog(logs::LogKind::Application);
        if (m_program.settings.app == 1) CheckAllowedApplications();
    });
    return true;
}

bool ApplicationsTab::EnablePrivilege(const std::string& name) {
    bool enabled = false;
    platform::TrapErrors(m_services.dialogs, "アプリケーション タブで Error Level m5 が発生しました。", [&] {
        const platform::PrivilegeResult result = m_services.native.EnablePrivilege(name);
        enabled = result.failedStep == platform::PrivilegeStep::None;
        if (!enabled) {
            m_services.dialogs.ShowMessage(PrivilegeStepText(result.failedStep) + std::to_string(result.lastError),
                                           base::kProductName, platform::msgbox::kOkOnly);
        }
    });
    return enabled;
}

void ApplicationsTab::ListViewUpDate(const PortEntries& entries) {
    platform::TrapErrors(m_services.dialogs, "アプリケーション タブで ListViewUpDate が発生しました。", [&] {
        std::vector<base::TableModel::Row> rows;
        for (int i = 1; i <= m_entryCount; ++i) {
            platform::TrapErrors(m_services.dialogs, "アプリケーション タブで ListViewAdd が発生しました。", [&] {
                const PortEntry& e = entries[i];
                rows.push_back({{e.name, std::to_string(e.processId), std::to_string(e.port), e.protocol, e.path}});
            });
        }
        m_window.List(ListId::lstvProcess).Replace(std::move(rows));
    });
}

void ApplicationsTab::RenewIcons() {
    base::TableModel& list = m_window.List(ListId::lstvProcess);
    // This tab's icon routines have no messages of their own.
    mainwindow::LoadRowIcons(m_services.icons, list, kPathColumn, m_services.dialogs, {nullptr, nullptr});
    list.ShowIconPerRow();  // every row shows the image with its own index
}

void ApplicationsTab::CheckAllowedApplications() {
    const base::TableModel& list = m_window.List(ListId::lstvProcess);
    for (std::size_t row = 0; row < list.RowCount(); ++row) {
        // At most eight alerts a refresh.
        if (base::Val(m_allowed.CheckDictionary2(list.Cell(row, 0))) > 7) break;
    }
}

}  // namespace processes
