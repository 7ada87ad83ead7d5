#include "remote_menu.h"

#include <psapi.h>

#include <memory>

#include "base/win32/unique_resource.h"
#include "base/win32/wide.h"
#include "driver.h"
#include "remote_buffer.h"
#include "window_finder.h"

namespace driver {
namespace {

std::wstring ProbePath() {
    // The probe is built beside the driver.
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    return path.substr(0, path.find_last_of(L"\\/") + 1) + L"lookout_probe.dll";
}

// Where a module that this process has loaded too sits in the target.
HMODULE RemoteModule(HANDLE process, const std::wstring& fileName) {
    HMODULE modules[1024];
    DWORD bytes = 0;
    if (!EnumProcessModules(process, modules, sizeof modules, &bytes)) throw Failure("cannot list the target's modules");
    for (DWORD i = 0; i < bytes / sizeof(HMODULE); ++i) {
        wchar_t name[MAX_PATH];
        if (GetModuleBaseNameW(process, modules[i], name, MAX_PATH) &&
            CompareStringOrdinal(name, -1, fileName.c_str(), -1, TRUE) == CSTR_EQUAL)
            return modules[i];
    }
    return nullptr;
}

// A function's address in the target: same offset from its module's base as here.
LPTHREAD_START_ROUTINE RemoteFunction(HANDLE process, HMODULE localModule, const std::wstring& fileName,
                                      const char* function) {
    HMODULE remote = RemoteModule(process, fileName);
    const auto local = reinterpret_cast<const char*>(GetProcAddress(localModule, function));
    if (!remote || !local) throw Failure("cannot find " + std::string(function) + " in the target");
    return reinterpret_cast<LPTHREAD_START_ROUTINE>(reinterpret_cast<const char*>(remote) +
                                                    (local - reinterpret_cast<const char*>(localModule)));
}

void RunRemoteThread(HANDLE process, LPTHREAD_START_ROUTINE routine, void* parameter, const char* what) {
    base::UniqueHandle thread(CreateRemoteThread(process, nullptr, 0, routine, parameter, 0, nullptr));
    if (!thread) throw Failure(std::string("cannot start a thread in the target to ") + what);
    if (WaitForSingleObject(thread.Get(), 10000) != WAIT_OBJECT_0)
        throw Failure(std::string("the target's thread did not ") + what + " within 10 s");
}

}  // namespace

std::vector<probe::MenuItem> ReadRemoteMenu(HWND window) {
    const std::wstring probePath = ProbePath();
    base::UniqueModule localProbe(LoadLibraryW(probePath.c_str()));
    if (!localProbe) throw Failure("cannot load " + base::Narrow(probePath));
    HMODULE localKernel = GetModuleHandleW(L"kernel32.dll");

    auto request = std::make_unique<probe::MenuRequest>();
    request->window = window;
    RemoteBuffer remote(window, sizeof(probe::MenuRequest) + (MAX_PATH + 1) * sizeof(wchar_t));
    const std::size_t pathOffset = sizeof(probe::MenuRequest);
    remote.Write(pathOffset, probePath.c_str(), (probePath.size() + 1) * sizeof(wchar_t));
    remote.Write(0, request.get(), sizeof *request);

    HANDLE process = remote.Process();
    RunRemoteThread(process, RemoteFunction(process, localKernel, L"kernel32.dll", "LoadLibraryW"),
                    remote.At(pathOffset), "load the probe");
    const auto readMenu = RemoteFunction(process, localProbe.Get(), L"lookout_probe.dll", probe::kReadMenuExport);
    RunRemoteThread(process, readMenu, remote.At(), "read the menu");
    remote.Read(0, request.get(), sizeof *request);
    RunRemoteThread(process, RemoteFunction(process, localKernel, L"kernel32.dll", "FreeLibrary"),
                    RemoteModule(process, L"lookout_probe.dll"), "unload the probe");

    switch (request->status) {
        case probe::MenuStatus::kOk: break;
        case probe::MenuStatus::kNoMenu: throw Failure("the window \"" + WindowText(window) + "\" has no menu bar");
        case probe::MenuStatus::kTooManyItems: throw Failure("the menu has more items than the probe can return");
        default: throw Failure("the probe could not read the menu");
    }
    return {request->items, request->items + request->count};
}

}  // namespace driver
