#pragma once
// The base of every modal window of the program: where it stands and its own message loop.
#include <windows.h>

#include <string>

#include "base/win32/window.h"

namespace base {

class ModalWindow : public Window {
protected:
    // Registers the class and creates the window, not yet shown, with a caption, a close box and
    // no resizing; its client area has this size (pixels) and it stands centred over the owner.
    void CreateModal(const wchar_t* className, const std::wstring& caption, int clientWidth, int clientHeight,
                     HWND owner);

    // Shows the window with its owner disabled and dispatches messages until Close() or until the
    // program's message loop is asked to end (the request is passed on). Then enables the owner,
    // destroys the window and gives the owner the foreground back.
    void RunModal(HWND owner);

    void Close() noexcept { m_closed = true; }

private:
    bool m_closed = false;
};

}  // namespace base
