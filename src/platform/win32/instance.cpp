#include "platform/win32/instance.h"

#include <windows.h>

#include <cwchar>
#include <vector>

#include "base/win32/wide.h"

namespace platform::win32 {

std::wstring Instance::ExecutablePath() {
    std::vector<wchar_t> buffer(MAX_PATH);
    for (;;) {
        const DWORD length = GetModuleFileNameW(nullptr, buffer.data(), static_cast<DWORD>(buffer.size()));
        if (length == 0) return {};
        if (length < buffer.size()) return std::wstring(buffer.data(), length);
        buffer.resize(buffer.size() * 2);
    }
}

std::string Instance::ExecutableFolder() {
    const std::wstring path = ExecutablePath();
    const auto slash = path.find_last_of(L'\\');
    if (slash == std::wstring::npos) return {};
    // A drive root keeps its separator ("C:\"), any other folder loses it.
    const bool root = slash == 2 && path[1] == L':';
    return base::Narrow(path.substr(0, root ? slash + 1 : slash));
}

std::string Instance::ExecutableName() {
    std::wstring name = ExecutablePath();
    name = name.substr(name.find_last_of(L'\\') + 1);
    const auto dot = name.find_last_of(L'.');
    return base::Narrow(dot == std::wstring::npos ? name : name.substr(0, dot));
}

std::string Instance::VersionComments() {
    const std::wstring path = ExecutablePath();
    DWORD ignored = 0;
    const DWORD size = GetFileVersionInfoSizeW(path.c_str(), &ignored);
    if (size == 0) return {};
    std::vector<char> data(size);
    if (!GetFileVersionInfoW(path.c_str(), 0, size, data.data())) return {};
    struct Translation {
        WORD language;
        WORD codePage;
    }* translations = nullptr;
    UINT length = 0;
    if (!VerQueryValueW(data.data(), L"\\VarFileInfo\\Translation", reinterpret_cast<void**>(&translations),
                        &length) ||
        length < sizeof(Translation)) {
        return {};
    }
    wchar_t key[64];
    swprintf(key, 64, L"\\StringFileInfo\\%04x%04x\\Comments", translations[0].language, translations[0].codePage);
    wchar_t* comments = nullptr;
    if (!VerQueryValueW(data.data(), key, reinterpret_cast<void**>(&comments), &length) || length == 0) return {};
    return base::Narrow(comments);
}

std::wstring Instance::MutexName(const wchar_t* prefix) {
    std::wstring name = prefix + ExecutablePath();
    for (std::size_t i = std::wcslen(prefix); i < name.size(); ++i) {
        if (name[i] == L'\\') name[i] = L'/';
    }
    return name;
}

void Instance::LockStart() {
    // Long enough for a copy to make its window on a busy machine; a copy stuck before that
    // (a message box about its settings) does not hold the others for ever.
    constexpr DWORD kLongestTurnMs = 30000;
    m_startLock.Reset(CreateMutexW(nullptr, FALSE, MutexName(L"Local\\Veskar_Lookout start:").c_str()));
    if (!m_startLock) return;
    const DWORD waited = WaitForSingleObject(m_startLock.Get(), kLongestTurnMs);
    m_startLockOwned = waited == WAIT_OBJECT_0 || waited == WAIT_ABANDONED;
}

void Instance::UnlockStart() {
    if (m_startLockOwned) ReleaseMutex(m_startLock.Get());
    m_startLockOwned = false;
    m_startLock.Reset();
}

bool Instance::IsAnotherCopyRunning() {
    m_mutex.Reset(CreateMutexW(nullptr, FALSE, MutexName(L"Local\\Veskar_Lookout:").c_str()));
    return m_mutex && GetLastError() == ERROR_ALREADY_EXISTS;
}

bool Instance::ActivateWindowTitled(const std::string& title) {
    const HWND window = FindWindowW(nullptr, base::Widen(title).c_str());
    if (!window) return false;
    ShowWindow(window, SW_SHOWDEFAULT);
    SetForegroundWindow(window);
    return true;
}

bool Instance::Start(const std::string& path) {
    std::wstring commandLine = L"\"" + base::Widen(path) + L"\"";
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = SW_SHOWNORMAL;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(base::Widen(path).c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &process)) {
        return false;
    }
    base::UniqueHandle thread(process.hThread);
    base::UniqueHandle child(process.hProcess);
    return true;
}

}  // namespace platform::win32
