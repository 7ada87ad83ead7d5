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

// This executable, the system and the main window as start-up sees them. Records what start-up
// did to them, in order.
class FakeStartup : public platform::IInstance, public platform::ISystemInfo, public IStartupHost {
public:
    std::string ExecutableFolder() override { return folder; }
    std::string ExecutableName() override { return "veskar_lookout"; }
    std::string VersionComments() override { return ""; }
    void LockStart() override { calls.push_back("lock"); }
    void UnlockStart() override { calls.push_back("unlock"); }
    bool IsAnotherCopyRunning() override { return anotherCopy; }
    bool ActivateWindowTitled(const std::string& title) override {
        calls.push_back("activate " + title);
        return windowFound;
    }
    bool Start(const std::string& path) override {
        calls.push_back("run " + path);
        return true;
    }
    std::optional<std::string> ComputerName() override { return computer; }
    std::string UserName() override { return "taro"; }

    void LoadMainWindow(const std::string& caption) override { calls.push_back("load " + caption); }
    void AddMainMonitorRow(const std::string& text) override { calls.push_back("row " + text); }
    void SetComputerNameText(const std::string& name) override { calls.push_back("computer " + name); }
    void ShowMainWindow() override { calls.push_back("show"); }
    void StartMonitoring() override { calls.push_back("start"); }
    void SetStatusPanel(int panel, const std::string& text) override {
        calls.push_back("panel" + std::to_string(panel) + " " + text);
    }

    std::string folder = "C:\\Tools";
    bool anotherCopy = false, windowFound = false;
    std::optional<std::string> computer = "MYPC";
    std::vector<std::string> calls;
};

class StartupTest : public ::testing::Test {
protected:
    StartupOutcome Run() { return RunStartup(program, services, fake); }

    FakeStartup fake;
    fakes::FakeFileSystem files;
    fakes::FakeProfile profile{files};
    fakes::FakeDialogs dialogs;
    StartupServices services{fake, files, profile, dialogs, fake};
    Program program;
};

TEST_F(StartupTest, FirstStartWritesOnlyTheManifestAndRestarts) {
    EXPECT_EQ(Run(), StartupOutcome::Restarted);
    EXPECT_EQ(files.files.size(), 1u);
    EXPECT_EQ(files.Get("C:\\Tools\\veskar_lookout.exe.MANIFEST"), ManifestText("veskar_lookout.exe", ""));
    EXPECT_EQ(fake.calls, (std::vector<std::string>{"lock", "run C:\\Tools\\veskar_lookout.exe", "unlock"}));
}

TEST_F(StartupTest, RestartedCopyCreatesTheDataFilesAndFillsTheWindowInOrder) {
    files.Put("C:\\Tools\\veskar_lookout.exe.MANIFEST", "mine");
    EXPECT_EQ(Run(), StartupOutcome::Running);
    EXPECT_EQ(files.Get("C:\\Tools\\veskar_lookout.exe.MANIFEST"), "mine");  // never rewritten
    EXPECT_TRUE(files.Has("C:\\Tools\\setting.ini"));
    EXPECT_EQ(files.Get("C:\\Tools\\pcset.ini"), "\"NG\"\r\n");
    EXPECT_EQ(files.Get("C:\\Tools\\pcset2.ini"), "\"NG\"\r\n");
    // Defaults: window hidden (open 0), monitoring on (start 1). Later copies wait until the
    // window with the banner exists.
    EXPECT_EQ(fake.calls, (std::vector<std::string>{"lock", "load " + std::string(base::kBanner), "unlock",
                                                    "row " + std::string(base::kBanner), "computer MYPC", "start",
                                                    "panel3 ユーザ : taro"}));
    EXPECT_EQ(program.tray.shownIcon, "veskarnetoff.ico");
}

TEST_F(StartupTest, SettingsDecideShowingAndMonitoring) {
    files.Put("C:\\Tools\\veskar_lookout.exe.MANIFEST", "");
    files.Put("C:\\Tools\\setting.ini", "[main]\r\nopen=1\r\nstart=0\r\n");
    fake.computer.reset();  // the computer-name box stays empty
    Run();
    EXPECT_EQ(fake.calls, (std::vector<std::string>{"lock", "load " + std::string(base::kBanner), "unlock",
                                                    "row " + std::string(base::kBanner), "show",
                                                    "panel3 ユーザ : taro"}));
}

TEST_F(StartupTest, ARunningCopyTakesOverIfItsBannerWindowExistsElseThisOneStartsWithoutTheManifestStep) {
    fake.anotherCopy = true;
    fake.windowFound = true;
    EXPECT_EQ(Run(), StartupOutcome::HandedToRunningCopy);
    EXPECT_EQ(fake.calls, (std::vector<std::string>{"lock", "activate " + std::string(base::kBanner), "unlock"}));
    EXPECT_TRUE(files.files.empty());

    fake.windowFound = false;
    fake.folder = "D:\\";
    EXPECT_EQ(Run(), StartupOutcome::Running);
    EXPECT_FALSE(files.Has("D:\\veskar_lookout.exe.MANIFEST"));
    EXPECT_EQ(program.folder, "D:\\\\");  // a drive root gives a doubled separator
}

}  // namespace
}  // namespace app
