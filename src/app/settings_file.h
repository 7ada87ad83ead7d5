#pragma once
// setting.ini: read whole at start-up, when the main window loads and when the options
// dialog opens; written whole when the options dialog is confirmed.
#include <string>

#include "app/settings.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/profile.h"

namespace app {

class SettingsFile {
public:
    SettingsFile(std::string programFolder, platform::IFileSystem& files, platform::IProfile& profile,
                 platform::IDialogs& dialogs);

    // Creates the file with the defaults when it is missing, then reads section "main".
    // Keys the file lacks keep the values they had. A flag outside 0 to 255 raises the
    // runtime's overflow error, a flag or colour that is no number its type-mismatch error.
    void Read(Settings& settings);
    // Replaces section "main" with the twelve entries.
    void Write(const Settings& settings);

    const std::string& Path() const { return m_path; }

private:
    std::string m_path;
    platform::IFileSystem& m_files;
    platform::IProfile& m_profile;
    platform::IDialogs& m_dialogs;
};

}  // namespace app
