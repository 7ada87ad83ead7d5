#include "platform/win32/message_pump.h"

#include <windows.h>


namespace platform::win32 {

void MessagePump::DoEvents() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            // Leave the quit for the main loop, which ends the program.
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

}  // namespace platform::win32
