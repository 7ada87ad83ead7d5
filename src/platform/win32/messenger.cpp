#include "platform/win32/messenger.h"

#include <windows.h>
#include <lm.h>

#include "base/win32/wide.h"

namespace platform::win32 {

std::uint32_t Messenger::Send(const std::string& to, const std::string& from, const std::string& message) {
    const std::wstring target = base::Widen(to);
    const std::wstring sender = base::Widen(from);
    std::wstring text = base::Widen(message);
    return NetMessageBufferSend(nullptr, target.c_str(), sender.c_str(), reinterpret_cast<BYTE*>(text.data()),
                                static_cast<DWORD>(text.size() * sizeof(wchar_t)));
}

}  // namespace platform::win32
