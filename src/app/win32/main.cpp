// The program's entry: the composition root runs start-up and the message loop. An error that
// nothing trapped shows the runtime's error box and ends the program.
#include <windows.h>
#include <commctrl.h>

#include "app/win32/application.h"
#include "base/win32/fatal_error.h"

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    // Sizes are worked out for the real DPI; the system must not scale the window as a bitmap.
    SetProcessDPIAware();
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
