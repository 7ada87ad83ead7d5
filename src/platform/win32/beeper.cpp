#include "platform/win32/beeper.h"

#include <windows.h>

namespace platform::win32 {

void Beeper::Beep() { MessageBeep(MB_OK); }

}  // namespace platform::win32
