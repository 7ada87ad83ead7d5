#pragma once
// The input box: a prompt, an edit line, OK and キャンセル, modal over its owner.
#include <windows.h>

#include "base/win32/window.h"
#include "platform/input_box.h"

namespace platform::win32 {

class InputBox final : public IInputBox {
public:
    explicit InputBox(HWND owner) : m_owner(owner) {}
    std::string Ask(const std::string& prompt, const std::string& title) override;

private:
    HWND m_owner;
};

}  // namespace platform::win32
