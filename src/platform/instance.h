#pragma once
// This executable: where it lives, whether another copy runs, starting it again.
#include <string>

namespace platform {

class IInstance {
public:
    virtual ~IInstance() = default;
    // The executable's folder without a trailing separator, and its name without ".exe".
    virtual std::string ExecutableFolder() = 0;
    virtual std::string ExecutableName() = 0;
    // The "Comments" entry of the executable's version information; empty if none.
    virtual std::string VersionComments() = 0;
    // Copies started at the same moment take turns from the look-up of the running copy until
    // the main window with the banner caption exists, so that each finds the one before it.
    // A copy that waits too long goes on without its turn.
    virtual void LockStart() = 0;
    virtual void UnlockStart() = 0;
    virtual bool IsAnotherCopyRunning() = 0;
    // Finds a top-level window with exactly this title, shows it in its default state
    // and brings it to the front; false when there is none.
    virtual bool ActivateWindowTitled(const std::string& title) = 0;
    // Starts a program with a normal, focused window.
    virtual bool Start(const std::string& path) = 0;
};

}  // namespace platform
