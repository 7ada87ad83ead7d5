#pragma once
// The notification-area icon of the main window (icon identifier 1).
#include <optional>
#include <string>

namespace platform {

class ITrayIcon {
public:
    virtual ~ITrayIcon() = default;
    // Adds the icon (harmless when it is there already), then sets its picture from the
    // icon file and its tip. Failures are ignored.
    virtual void Show(const std::string& iconPath, const std::string& tip) = 0;
    // Removes the icon for good as the program ends: a monitoring tick that is still finishing
    // must not bring it back, so Show does nothing afterwards.
    virtual void Remove() = 0;
};

}  // namespace platform

namespace platform {

// The shell's list of recently used documents.
class IRecentDocuments {
public:
    virtual ~IRecentDocuments() = default;
    virtual void Clear() = 0;
};

}  // namespace platform

namespace platform {

// The current user's Startup folder and the shell's shortcut object.
class IStartupFolder {
public:
    virtual ~IStartupFolder() = default;
    // SHGetSpecialFolderLocation(CSIDL_STARTUP) and SHGetPathFromIDListA; nothing on failure.
    virtual std::optional<std::string> Path() = 0;
    // Saves a shortcut file to target with the shell's link object (IShellLinkW, IPersistFile),
    // replacing a file of that name; false when any step fails.
    virtual bool SaveShortcut(const std::string& file, const std::string& target) = 0;
};

}  // namespace platform
