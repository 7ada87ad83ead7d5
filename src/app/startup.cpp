#include "app/startup.h"

#include "app/manifest.h"
#include "app/pc_list_file.h"
#include "app/settings_file.h"
#include "base/product.h"

namespace app {
namespace {

// Writes the manifest when it is missing and starts the program again so that it is used.
// An existing manifest is never rewritten or checked.
bool WriteManifestAndRestart(StartupServices& s) {
    const std::string folder = s.instance.ExecutableFolder() + "\\";
    const std::string name = s.instance.ExecutableName();
    const std::string path = folder + name + ".exe.MANIFEST";
    if (s.files.FileExists(path)) return false;
    if (auto file = s.files.Open(path, platform::OpenMode::Output)) {
        file->Write(ManifestText(name + ".exe", s.instance.VersionComments()));
    }
    s.instance.Start(folder + name + ".exe");
    return true;
}

// This copy's turn at starting; it ends once the main window carries the banner, or with start-up.
class StartTurn {
public:
    explicit StartTurn(platform::IInstance& instance) : m_instance(&instance) { instance.LockStart(); }
    ~StartTurn() { End(); }
    StartTurn(const StartTurn&) = delete;
    StartTurn& operator=(const StartTurn&) = delete;
    void End() {
        if (m_instance) m_instance->UnlockStart();
        m_instance = nullptr;
    }

private:
    platform::IInstance* m_instance;
};

}  // namespace

StartupOutcome RunStartup(Program& program, StartupServices& s, IStartupHost& host) {
    StartTurn turn(s.instance);
    if (s.instance.IsAnotherCopyRunning()) {
        // When the other copy shows no banner window, this copy starts normally beside it.
        if (s.instance.ActivateWindowTitled(base::kBanner)) return StartupOutcome::HandedToRunningCopy;
    } else if (WriteManifestAndRestart(s)) {
        return StartupOutcome::Restarted;
    }

    // The separator is always appended, so a drive root gives a doubled one.
    program.folder = s.instance.ExecutableFolder() + "\\";
    SettingsFile(program.folder, s.files, s.profile, s.dialogs).Read(program.settings);
    LoadPcList(s.files, program.folder + kAllowListFile, program.allowList);
    LoadPcList(s.files, program.folder + kDenyListFile, program.denyList);

    host.LoadMainWindow(base::kBanner);
    turn.End();  // later copies now find this one
    host.AddMainMonitorRow(base::kBanner);
    if (const auto name = s.system.ComputerName()) host.SetComputerNameText(*name);

    program.tray.currentIcon = kIconOff;
    program.tray.shownIcon = kIconOff;

    if (program.settings.open == "1") host.ShowMainWindow();
    if (program.settings.start == 1) host.StartMonitoring();
    host.SetStatusPanel(3, "ユーザ : " + s.system.UserName());
    return StartupOutcome::Running;
}

}  // namespace app
