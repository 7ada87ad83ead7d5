#pragma once
// The tool menu's "ユーティリティ(&U)" (the tray menu runs the same item) and
// "スタートアップに登録(&S)", wired to the main window.
#include <windows.h>

#include <string>

#include "mainwindow/main_window_model.h"
#include "platform/dialogs.h"
#include "platform/instance.h"
#include "platform/profile.h"
#include "platform/win32/messenger.h"
#include "platform/win32/startup_folder.h"

namespace app {

struct ToolServices {
    platform::IDialogs& dialogs;
    platform::IInstance& instance;
    platform::IProfile& profile;
    const std::string& programFolder;  // ends in "\"
};

class ToolCommands {
public:
    ToolCommands(mainwindow::MainWindowModel& model, HWND mainWindow, ToolServices services);
    ToolCommands(const ToolCommands&) = delete;
    ToolCommands& operator=(const ToolCommands&) = delete;

private:
    void OpenMachinePanel();

    mainwindow::MainWindowModel& m_model;
    HWND m_mainWindow;
    ToolServices m_services;
    platform::win32::Messenger m_messenger;
    platform::win32::StartupFolder m_startupFolder;
};

}  // namespace app
