#pragma once
// Finding windows: top-level windows by title, class and owning process; controls inside them.
#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "driver.h"

namespace driver {

std::string WindowText(HWND window);
std::string ClassName(HWND window);
DWORD ProcessId(HWND window);
std::string ProcessName(DWORD processId);  // image name, empty when the process is gone

// Top-level windows in Z order (topmost first) that match the title, class and process options.
std::vector<HWND> MatchingTopLevelWindows(const Options& options);

// Waits up to the timeout for a matching top-level window (visible too when options ask for it).
HWND WaitForTopLevelWindow(const Options& options);

// Waits until predicate(found) holds, polling; false on timeout.
bool WaitUntil(std::chrono::milliseconds timeout, const std::function<bool()>& predicate);

// All descendants of a window, in creation order.
std::vector<HWND> Descendants(HWND parent);

// The control of the given window class that the control options (--id, --nth, --visible,
// --caption) pick; the first one of that class without any of them.
HWND FindControl(HWND topLevel, const wchar_t* controlClass, const Options& options);

// The caption as written ("開く(&O)\tCtrl+O") or as read ("開く", "&Open", "Open") names a button or
// menu item.
bool CaptionMatches(const std::string& actual, const std::string& wanted);

}  // namespace driver
