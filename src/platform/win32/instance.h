#pragma once
#include "base/win32/unique_resource.h"
#include "platform/instance.h"

namespace platform::win32 {

class Instance : public IInstance {
public:
    std::string ExecutableFolder() override;
    std::string ExecutableName() override;
    std::string VersionComments() override;
    void LockStart() override;
    void UnlockStart() override;
    bool IsAnotherCopyRunning() override;
    bool ActivateWindowTitled(const std::string& title) override;
    bool Start(const std::string& path) override;

private:
    std::wstring ExecutablePath();
    // One name per executable path and user session, like the runtime's own test.
    std::wstring MutexName(const wchar_t* prefix);
    // Held for the life of the process: its existence tells later copies that this one runs.
    base::UniqueHandle m_mutex;
    base::UniqueHandle m_startLock;
    bool m_startLockOwned = false;
};

}  // namespace platform::win32
