// Top-level windows and processes: waiting, listing, describing, showing, hiding, closing.
#include <windows.h>
#include <tlhelp32.h>

#include "base/win32/unique_resource.h"
#include "base/win32/wide.h"
#include "driver.h"
#include "window_finder.h"

namespace driver {
namespace {

std::string Flag(bool value) { return value ? "1" : "0"; }

void Wait(const Options& options) {
    PrintLine({Hex(reinterpret_cast<std::uintptr_t>(WaitForTopLevelWindow(options)))});
}

void WaitGone(const Options& options) {
    const bool gone = WaitUntil(options.timeout, [&] {
        for (HWND window : MatchingTopLevelWindows(options))
            if (!options.mustBeVisible || IsWindowVisible(window)) return false;
        return true;
    });
    if (!gone) throw Failure("the window is still there after " + std::to_string(options.timeout.count()) + " ms");
}

void ListWindows(const Options& options) {
    for (HWND window : MatchingTopLevelWindows(options)) {
        if (options.mustBeVisible && !IsWindowVisible(window)) continue;
        const DWORD processId = ProcessId(window);
        PrintLine({Hex(reinterpret_cast<std::uintptr_t>(window)), Flag(IsWindowVisible(window)),
                   ProcessName(processId), std::to_string(processId), ClassName(window), WindowText(window)});
    }
}

void Describe(const Options& options) {
    HWND window = WaitForTopLevelWindow(options);
    RECT rect{};
    GetWindowRect(window, &rect);
    const auto exStyle = static_cast<DWORD>(GetWindowLongPtrW(window, GWL_EXSTYLE));
    const DWORD processId = ProcessId(window);
    PrintLine({"handle", Hex(reinterpret_cast<std::uintptr_t>(window))});
    PrintLine({"title", WindowText(window)});
    PrintLine({"class", ClassName(window)});
    PrintLine({"process", ProcessName(processId), std::to_string(processId)});
    PrintLine({"visible", Flag(IsWindowVisible(window))});
    PrintLine({"minimized", Flag(IsIconic(window))});
    PrintLine({"foreground", Flag(GetForegroundWindow() == window)});
    PrintLine({"rect", std::to_string(rect.left), std::to_string(rect.top), std::to_string(rect.right),
               std::to_string(rect.bottom)});
    PrintLine({"exstyle", Hex(exStyle)});
    PrintLine({"topmost", Flag(exStyle & WS_EX_TOPMOST)});
}

void Children(const Options& options) {
    for (HWND child : Descendants(WaitForTopLevelWindow(options))) {
        PrintLine({Hex(reinterpret_cast<std::uintptr_t>(child)), std::to_string(GetDlgCtrlID(child)),
                   ClassName(child), Flag(IsWindowVisible(child)), WindowText(child)});
    }
}

void SetVisibility(const Options& options, bool visible) {
    HWND window = WaitForTopLevelWindow(options);
    // Async: the target's own thread shows or hides it, and the driver never blocks on a busy target.
    ShowWindowAsync(window, visible ? SW_SHOW : SW_HIDE);
    if (!WaitUntil(options.timeout, [&] { return (IsWindowVisible(window) != FALSE) == visible; }))
        throw Failure(std::string("the window did not become ") + (visible ? "visible" : "hidden"));
}

// Resizes the window to WIDTH x HEIGHT outer pixels, or minimises or restores it, and waits for
// the result; the system may keep a window larger than asked (its smallest tracking size).
void Size(const Options& options) {
    HWND window = WaitForTopLevelWindow(options);
    const auto& a = options.arguments;
    if (a.size() == 1 && (a[0] == "minimize" || a[0] == "restore")) {
        const bool minimise = a[0] == "minimize";
        ShowWindowAsync(window, minimise ? SW_MINIMIZE : SW_RESTORE);
        if (!WaitUntil(options.timeout, [&] { return (IsIconic(window) != FALSE) == minimise; }))
            throw Failure(std::string("the window was not ") + (minimise ? "minimized" : "restored"));
        return;
    }
    if (a.size() != 2) throw std::invalid_argument("size needs WIDTH HEIGHT, minimize or restore");
    const int width = ParseNumber(a[0], "WIDTH");
    const int height = ParseNumber(a[1], "HEIGHT");
    RECT before{};
    GetWindowRect(window, &before);
    // Carried out by the window's own thread: the driver never blocks on a busy target.
    SetWindowPos(window, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_ASYNCWINDOWPOS);
    const auto sized = [&] {
        RECT now{};
        GetWindowRect(window, &now);
        return (now.right - now.left == width && now.bottom - now.top == height) || !EqualRect(&now, &before);
    };
    if (!WaitUntil(options.timeout, sized)) throw Failure("the window kept its size");
}

void Close(const Options& options) {
    if (!PostMessageW(WaitForTopLevelWindow(options), WM_CLOSE, 0, 0)) throw Failure("cannot post WM_CLOSE");
}

// What the system or the shell would post: a tray icon's callback, a menu command.
void Post(const Options& options) {
    const auto& a = options.arguments;
    if (a.size() != 3) throw std::invalid_argument("post needs MESSAGE WPARAM LPARAM");
    const auto message = static_cast<UINT>(ParseNumber(a[0], "MESSAGE"));
    const auto wParam = static_cast<WPARAM>(ParseNumber(a[1], "WPARAM"));
    const auto lParam = static_cast<LPARAM>(ParseNumber(a[2], "LPARAM"));
    if (!PostMessageW(WaitForTopLevelWindow(options), message, wParam, lParam)) throw Failure("cannot post the message");
}

std::vector<std::pair<DWORD, std::string>> Processes(const Options& options) {
    base::UniqueFileHandle snapshot(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
    if (!snapshot) throw Failure("cannot list processes");
    std::vector<std::pair<DWORD, std::string>> found;
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof entry;
    for (BOOL more = Process32FirstW(snapshot.Get(), &entry); more; more = Process32NextW(snapshot.Get(), &entry)) {
        const std::string name = base::Narrow(entry.szExeFile);
        if (options.process && CompareStringOrdinal(entry.szExeFile, -1, base::Widen(*options.process).c_str(), -1,
                                                    TRUE) != CSTR_EQUAL)
            continue;
        found.emplace_back(entry.th32ProcessID, name);
    }
    return found;
}

void ListProcesses(const Options& options) {
    for (const auto& [id, name] : Processes(options)) PrintLine({std::to_string(id), name});
}

void WaitExit(const Options& options) {
    if (!options.process) throw std::invalid_argument("wait-exit needs --process");
    if (!WaitUntil(options.timeout, [&] { return Processes(options).empty(); }))
        throw Failure(*options.process + " is still running after " + std::to_string(options.timeout.count()) +
                      " ms");
}

void Retitle(const Options& options) {
    if (options.arguments.size() != 1) throw std::invalid_argument("retitle needs the text");
    if (!SetWindowTextW(WaitForTopLevelWindow(options), base::Widen(options.arguments[0]).c_str()))
        throw Failure("the window kept its title");
}

}  // namespace

const std::vector<Command>& WindowCommands() {
    static const std::vector<Command> commands = {
        {"wait", "wait                    wait for the window; prints its handle", Wait},
        {"wait-gone", "wait-gone               wait until no such window (with --visible: none visible) exists",
         WaitGone},
        {"windows", "windows                 top-level windows: handle, visible, process, pid, class, title",
         ListWindows},
        {"window", "window                  title, class, process, visibility, rect, exstyle, topmost", Describe},
        {"children", "children                child windows: handle, id, class, visible, text", Children},
        {"show", "show                    show the window and wait until it is visible",
         [](const Options& o) { SetVisibility(o, true); }},
        {"hide", "hide                    hide the window and wait until it is hidden",
         [](const Options& o) { SetVisibility(o, false); }},
        {"size", "size W H|minimize|restore  resize the window (outer pixels), or minimise or restore it", Size},
        {"close", "close                   post WM_CLOSE to the window", Close},
        {"post", "post MSG WPARAM LPARAM  post a message (numbers, 0x for hexadecimal) to the window", Post},
        {"processes", "processes               running processes (of --process): pid, image name", ListProcesses},
        {"wait-exit", "wait-exit               wait until no process named --process runs", WaitExit},
        {"retitle", "retitle TEXT            set the window's title", Retitle},
    };
    return commands;
}

}  // namespace driver
