#pragma once
// "スタートアップに登録(&S)": a shortcut to this program in the user's Startup folder, so that
// it starts at logon.
#include <string>

#include "platform/dialogs.h"
#include "platform/shell.h"

namespace system_items {

// This executable: its folder (no trailing "\") and its name without ".exe".
struct Executable {
    std::string folder;
    std::string name;
};

// Saves or replaces the shortcut. Nothing traps a failure: a Startup
// folder the shell cannot name or a shortcut that cannot be saved raises the runtime's path/file
// access error, which ends in the runtime's error report as it always has.
void RegisterAtStartup(platform::IStartupFolder& startup, const Executable& executable);

// The menu item: asks first, registers on Yes and says so.
void mnuSUpTouroku_Click(platform::IDialogs& dialogs, platform::IStartupFolder& startup, const Executable& executable);

}  // namespace system_items
