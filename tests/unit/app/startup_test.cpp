#include "app/startup.h"
#include "app/manifest.h"

#include <gtest/gtest.h>

#include "base/product.h"
#include "base/runtime_error.h"
#include "fakes/fake_dialogs.h"
#include "fakes/fake_file_system.h"
#include "fakes/fake_profile.h"

namespace app {
namespace {

class FakeInstance : public platform::IInstance {
public:
    std::string ExecutableFolder() override { return folder; }
    std::string ExecutableName() override { return "veskar_lookout"; }
    std::string VersionComments() override { return ""; }
    void LockStart() override { log->push_back("lock"); }
    void UnlockStart() override { log->push_back("unlock"); }
    bool IsAnotherCopyRunning() override { return anotherCopy; }
    bool ActivateWindowTitled(const std::string& title) override {
        activated.push_back(title);
        return windowFound;
    }
    bool Start(const std::string& path) override {
        started.push_back(path);
        return true;
    }

    std::string folder = "C:\\Tools";
    bool anotherCopy = false;
    bool windowFound = false;
    std::vector<std::string> activated, started;
    std::vector<std::string>* log = nullptr;
};

class FakeSystem : public platform::ISystemInfo {
public:
    std::optional<std::string> ComputerName() override { return computer; }
    std::string UserName() override { return "taro"; }
    std::optional<std::string> computer = "MYPC";
};

// Records what start-up did to the main window, in order.
class RecordingHost : public IStartupHost {
public:
    void LoadMainWindow(const std::string& caption) override { calls.push_back("load " + caption); }
    void AddMainMonitorRow(const std::string& text) override { calls.push_back("row " + text); }
    void SetComputerNameText(const std::string& name) override { calls.push_back("computer " + name); }
    void ShowMainWindow() override { calls.push_back("show"); }
    void StartMonitoring() override { calls.push_back("start"); }
    void SetStatusPanel(int panel, const std::string& text) override {
        calls.push_back("panel" + std::to_string(panel) + " " + text);
    }
    std::vector<std::string> calls;
};

class StartupTest : public ::testing::Test {
protected:
    StartupTest() { instance.log = &host.calls; }
    StartupOutcome Run() { return RunStartup(program, services, host); }

    FakeInstance instance;
    fakes::FakeFileSystem files;
    fakes::FakeProfile profile{files};
    fakes::FakeDialogs dialogs;
    FakeSystem system;
    StartupServices services{instance, files, profile, dialogs, system};
    RecordingHost host;
    Program program;
};

TEST_F(StartupTest, FirstStartWritesOnlyTheManifestAndRestarts) {
    EXPECT_EQ(Run(), StartupOutcome::Restarted);
    EXPECT_EQ(files.files.size(), 1u);
    EXPECT_EQ(files.Get("C:\\Tools\\veskar_lookout.exe.MANIFEST"), ManifestText("veskar_lookout.exe", ""));
    EXPECT_EQ(instance.started, std::vector<std::string>{"C:\\Tools\\veskar_lookout.exe"});
    EXPECT_EQ(host.calls, (std::vector<std::string>{"lock", "unlock"}));
}

TEST_F(StartupTest, RestartedCopyCreatesTheDataFilesAndFillsTheWindowInOrder) {
    files.Put("C:\\Tools\\veskar_lookout.exe.MANIFEST", "mine");
    EXPECT_EQ(Run(), StartupOutcome::Running);
    EXPECT_EQ(files.Get("C:\\Tools\\veskar_lookout.exe.MANIFEST"), "mine");  // never rewritten
    EXPECT_EQ(program.folder, "C:\\Tools\\");
    EXPECT_TRUE(files.Has("C:\\Tools\\setting.ini"));
    EXPECT_EQ(files.Get("C:\\Tools\\pcset.ini"), "\"NG\"\r\n");
    EXPECT_EQ(files.Get("C:\\Tools\\pcset2.ini"), "\"NG\"\r\n");
    // Defaults: window hidden (open 0), monitoring on (start 1). Later copies wait until the
    // window with the banner exists.
    EXPECT_EQ(host.calls, (std::vector<std::string>{"lock", "load " + std::string(base::kBanner), "unlock",
                                                    "row " + std::string(base::kBanner), "computer MYPC", "start",
                                                    "panel3 ユーザ : taro"}));
    EXPECT_EQ(program.tray.shownIcon, "veskarnetoff.ico");
}

TEST_F(StartupTest, SettingsDecideShowingAndMonitoring) {
    files.Put("C:\\Tools\\veskar_lookout.exe.MANIFEST", "");
    files.Put("C:\\Tools\\setting.ini", "[main]\r\nopen=1\r\nstart=0\r\n");
    system.computer.reset();  // the computer-name box stays empty
    Run();
    EXPECT_EQ(host.calls, (std::vector<std::string>{"lock", "load " + std::string(base::kBanner), "unlock",
                                                    "row " + std::string(base::kBanner), "show",
                                                    "panel3 ユーザ : taro"}));
}

TEST_F(StartupTest, ARunningCopyTakesOverIfItsBannerWindowExistsElseThisOneStartsWithoutTheManifestStep) {
    instance.anotherCopy = true;
    instance.windowFound = true;
    EXPECT_EQ(Run(), StartupOutcome::HandedToRunningCopy);
    EXPECT_EQ(instance.activated, std::vector<std::string>{base::kBanner});
    EXPECT_TRUE(files.files.empty());

    instance.windowFound = false;
    instance.folder = "D:\\";
    EXPECT_EQ(Run(), StartupOutcome::Running);
    EXPECT_FALSE(files.Has("D:\\veskar_lookout.exe.MANIFEST"));
    EXPECT_EQ(program.folder, "D:\\\\");  // a drive root gives a doubled separator
}

}  // namespace
}  // namespace app
