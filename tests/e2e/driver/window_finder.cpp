#include "window_finder.h"

#include <windows.h>
#include <tlhelp32.h>

#include <thread>

#include "base/win32/unique_resource.h"
#include "base/win32/wide.h"

namespace driver {

std::string WindowText(HWND window) {
    // WM_GETTEXT is copied across processes by the system, unlike the common-control messages.
    // GetWindowText would not send it to another process's window: an edit's text would read empty.
    DWORD_PTR length = 0;
    if (!SendMessageTimeoutW(window, WM_GETTEXTLENGTH, 0, 0, SMTO_ABORTIFHUNG, 2000, &length)) return {};
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    DWORD_PTR copied = 0;
    if (!SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()), SMTO_ABORTIFHUNG,
                             2000, &copied)) {
        return {};
    }
    text.resize(static_cast<std::size_t>(copied));
    return base::Narrow(text);
}

std::string ClassName(HWND window) {
    wchar_t name[256] = {};
    GetClassNameW(window, name, 256);
    return base::Narrow(name);
}

DWORD ProcessId(HWND window) {
    DWORD processId = 0;
    GetWindowThreadProcessId(window, &processId);
    return processId;
}

std::string ProcessName(DWORD processId) {
    base::UniqueFileHandle snapshot(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
    if (!snapshot) return {};
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof entry;
    for (BOOL more = Process32FirstW(snapshot.Get(), &entry); more; more = Process32NextW(snapshot.Get(), &entry)) {
        if (entry.th32ProcessID == processId) return base::Narrow(entry.szExeFile);
    }
    return {};
}

namespace {

bool SameTextIgnoringCase(const std::string& a, const std::string& b) {
    return CompareStringOrdinal(base::Widen(a).c_str(), -1, base::Widen(b).c_str(), -1, TRUE) == CSTR_EQUAL;
}

BOOL CALLBACK CollectWindow(HWND window, LPARAM list) {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

// What the user reads on a control or menu item: without the accelerator text after a tab, without
// a Japanese-style "(&X)" access key and without the "&" that underlines a letter ("&&" is one "&").
std::string PlainCaption(const std::string& text) {
    const std::string shown = text.substr(0, text.find('\t'));
    std::string result;
    for (std::size_t i = 0; i < shown.size(); ++i) {
        if (shown.compare(i, 2, "(&") == 0 && i + 3 < shown.size() && shown[i + 3] == ')') {
            i += 3;
            continue;
        }
        if (shown[i] == '&' && i + 1 < shown.size()) ++i;
        result += shown[i];
    }
    return result;
}

}  // namespace

bool CaptionMatches(const std::string& actual, const std::string& wanted) {
    return actual == wanted || PlainCaption(actual) == wanted || PlainCaption(actual) == PlainCaption(wanted);
}

std::vector<HWND> MatchingTopLevelWindows(const Options& options) {
    std::vector<HWND> all;
    EnumWindows(CollectWindow, reinterpret_cast<LPARAM>(&all));
    std::vector<HWND> matching;
    for (HWND window : all) {
        if (options.title && WindowText(window) != *options.title) continue;
        if (options.windowClass && ClassName(window) != *options.windowClass) continue;
        if (options.process && !SameTextIgnoringCase(ProcessName(ProcessId(window)), *options.process)) continue;
        matching.push_back(window);
    }
    return matching;
}

bool WaitUntil(std::chrono::milliseconds timeout, const std::function<bool()>& predicate) {
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    for (;;) {
        if (predicate()) return true;
        if (std::chrono::steady_clock::now() >= deadline) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
}

namespace {

std::string DescribeTarget(const Options& options) {
    std::string text;
    if (options.title) text += " title \"" + *options.title + "\"";
    if (options.windowClass) text += " class \"" + *options.windowClass + "\"";
    if (options.process) text += " of process " + *options.process;
    return text.empty() ? " (any)" : text;
}

}  // namespace

HWND WaitForTopLevelWindow(const Options& options) {
    if (!options.title && !options.windowClass && !options.process)
        throw Failure("name the window: --title, --class and/or --process");
    HWND found = nullptr;
    const bool ok = WaitUntil(options.timeout, [&] {
        for (HWND window : MatchingTopLevelWindows(options)) {
            if (options.mustBeVisible && !IsWindowVisible(window)) continue;
            found = window;
            return true;
        }
        return false;
    });
    if (!ok) {
        throw Failure(std::string("no ") + (options.mustBeVisible ? "visible " : "") + "top-level window with" +
                      DescribeTarget(options) + " within " + std::to_string(options.timeout.count()) + " ms");
    }
    return found;
}

std::vector<HWND> Descendants(HWND parent) {
    std::vector<HWND> all;
    EnumChildWindows(parent, CollectWindow, reinterpret_cast<LPARAM>(&all));
    return all;
}

HWND FindControl(HWND topLevel, const wchar_t* controlClass, const Options& options) {
    const std::string wantedClass = base::Narrow(controlClass);
    int index = 0;
    for (HWND child : Descendants(topLevel)) {
        if (!SameTextIgnoringCase(ClassName(child), wantedClass)) continue;
        if (options.id && GetDlgCtrlID(child) != *options.id) continue;
        if (options.visibleControl && !IsWindowVisible(child)) continue;
        if (options.caption && !CaptionMatches(WindowText(child), *options.caption)) continue;
        if (options.nth && index++ != *options.nth) continue;
        return child;
    }
    std::string how;
    if (options.id) how += " with id " + std::to_string(*options.id);
    if (options.caption) how += " with caption \"" + *options.caption + "\"";
    if (options.visibleControl) how += " that is visible";
    if (options.nth) how += " number " + std::to_string(*options.nth) + " (from 0)";
    throw Failure("no " + wantedClass + how + " in window \"" + WindowText(topLevel) + "\"");
}

}  // namespace driver
