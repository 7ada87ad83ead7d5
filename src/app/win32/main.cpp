// The program's entry: the composition root runs start-up and the message loop. An error that
// nothing trapped shows the runtime's error box and ends the program.
#include <windows.h>
#include <commctrl.h>

#include "app/win32/application.h"
#include "base/win32/fatal_error.h"

namespace {

// Sizes are worked out for the real DPI; the system must not scale the window as a bitmap.
// Windows 2000 and XP have no such call and never scale: there it is left out.
void DeclareDpiAware() {
    const HMODULE user32 = GetModuleHandleW(L"user32.dll");
    if (!user32) return;
    const FARPROC call = GetProcAddress(user32, "SetProcessDPIAware");
    if (!call) return;
    using SetProcessDpiAware = BOOL(WINAPI*)();
    reinterpret_cast<SetProcessDpiAware>(reinterpret_cast<void (*)()>(call))();
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    DeclareDpiAware();
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES | ICC_BAR_CLASSES | ICC_TAB_CLASSES |
                                                       ICC_LISTVIEW_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&controls);
    try {
        app::Application application;
        return application.Run();
    } catch (...) {
        base::ReportUntrappedError();
    }
}
