#pragma once
// A main-window model over fakes, with a view that records what it is told.
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <map>
#include <utility>
#include <vector>

#include "app/settings.h"
#include "fakes/fake_clock.h"
#include "fakes/fake_dialogs.h"
#include "fakes/fake_file_system.h"
#include "fakes/fake_message_pump.h"
#include "mainwindow/main_window_model.h"

namespace mainwindow {

class RecordingView : public IMainWindowView {
public:
    void OnChanged(Change what, int) override { ++counts[what]; }
    int Count(Change what) { return counts[what]; }
    std::map<Change, int> counts;
};

// A tab page whose refresh the test gives.
struct LambdaPage : ITabPage {
    std::function<bool()> refresh;
    bool Refresh() override { return refresh(); }
};

class MainWindowTest : public ::testing::Test {
protected:
    static app::Program MakeProgram() {
        app::Program program;
        program.folder = "C:\\Lookout\\";
        program.settings = app::DefaultSettings();
        return program;
    }

    MainWindowTest() { model.SetView(&view); }

    // Fills a list with n rows of one cell each.
    void Fill(ListId list, int n) {
        for (int i = 0; i < n; ++i) model.List(list).AddRow({"row" + std::to_string(i)});
    }

    void SetRefresh(int tab, std::function<bool()> refresh) {
        LambdaPage& page = pages[static_cast<std::size_t>(tab - 1)];
        page.refresh = std::move(refresh);
        model.SetTabPage(tab, page);
    }

    std::array<LambdaPage, kTabCount> pages;
    app::Program program = MakeProgram();
    fakes::FakeFileSystem files;
    fakes::FakeClock clock;
    fakes::FakeMessagePump pump;
    fakes::FakeDialogs dialogs;
    MainWindowModel model{program, {files, clock, pump, dialogs}};
    RecordingView view;
};

}  // namespace mainwindow
