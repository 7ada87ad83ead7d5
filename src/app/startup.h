#pragma once
// The entry routine's steps: one copy only, the manifest (written once, then one restart),
// the settings and both PC lists, the main window's first contents, and monitoring when
// the settings ask for it.
#include "app/program.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/instance.h"
#include "platform/profile.h"
#include "platform/system_info.h"

namespace app {

struct StartupServices {
    platform::IInstance& instance;
    platform::IFileSystem& files;
    platform::IProfile& profile;
    platform::IDialogs& dialogs;
    platform::ISystemInfo& system;
};

// What start-up does to the main window and to monitoring; the composition root supplies it.
class IStartupHost {
public:
    virtual ~IStartupHost() = default;
    // Loads the main window (hidden) and sets its caption; the first main-monitor row follows.
    virtual void LoadMainWindow(const std::string& caption) = 0;
    virtual void AddMainMonitorRow(const std::string& text) = 0;
    virtual void SetComputerNameText(const std::string& name) = 0;
    virtual void ShowMainWindow() = 0;
    virtual void StartMonitoring() = 0;
    virtual void SetStatusPanel(int panel, const std::string& text) = 0;
};

enum class StartupOutcome {
    Running,                // the program goes on in its message loop
    HandedToRunningCopy,    // another copy was brought to the front; this one ends
    Restarted,              // the manifest was written and a new copy started; this one ends
};

StartupOutcome RunStartup(Program& program, StartupServices& services, IStartupHost& host);

}  // namespace app
