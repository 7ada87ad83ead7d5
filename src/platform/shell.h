#pragma once
// The notification-area icon of the main window (icon identifier 1).
#include <string>

namespace platform {

class ITrayIcon {
public:
    virtual ~ITrayIcon() = default;
    // Adds the icon (harmless when it is there already), then sets its picture from the
    // icon file and its tip. Failures are ignored.
    virtual void Show(const std::string& iconPath, const std::string& tip) = 0;
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
