#pragma once
// The "アプリケーション" tab: which process holds which local port (lstvProcess), with the
// program's icon, the application log after every refresh, and the check of every listed
// program against the allowed applications. Its timer tmrPID restarts the alert count first;
// tmrADDPORT shows the last entry count.
#include <cstdint>
#include <string>

#include "app/program.h"
#include "mainwindow/main_window_model.h"
#include "mainwindow/tab_page.h"
#include "platform/dialogs.h"
#include "platform/file_icons.h"
#include "platform/message_pump.h"
#include "platform/native_handles.h"
#include "processes/app_dictionary.h"
#include "processes/port_entries.h"
#include "processes/port_owners.h"

namespace processes {

class ApplicationsTab final : public mainwindow::ITabPage {
public:
    struct Services {
        platform::INativeHandles& native;
        platform::IDialogs& dialogs;
        platform::IMessagePump& pump;
        platform::IIconList& icons;  // lstvProcess's small icons
    };

    ApplicationsTab(mainwindow::MainWindowModel& window, const app::Program& program, AppDictionary& allowed,
                    Services services, const NativeLayout& layout = BuildLayout(), WalkLimits limits = {});

    // RefreshApplications: always true, its failures show their own texts.
    bool Refresh() override;
    // tmrPID on this tab: the alert count starts again at 0, then the refresh.
    bool TimerRefresh() override;
    // tmrADDPORT: panel 5 shows the entry count of the last refresh.
    void ShowEntryCount();

private:
    bool EnablePrivilege(const std::string& name);
    void ListViewUpDate(const PortEntries& entries);
    void RenewIcons();
    void CheckAllowedApplications();

    mainwindow::MainWindowModel& m_window;
    const app::Program& m_program;
    AppDictionary& m_allowed;
    Services m_services;
    PortOwnerFinder m_finder;
    bool m_privilege = false;
    int m_entryCount = 0;
    bool m_refreshing = false;
};

}  // namespace processes
