#pragma once
// What every modal window of the program shares: where it stands and its own message loop.
#include <windows.h>

namespace base {

// The frame of the program's modal windows: a caption with a close box, no resizing.
inline constexpr DWORD kModalStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU;
inline constexpr DWORD kModalExStyle = WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT;

// The outer rectangle of a modal window with this client size, centred over the owner.
RECT ModalWindowRect(HWND owner, int clientWidth, int clientHeight);

// Shows the window with its owner disabled and dispatches messages until `closed` is set or
// the program's message loop is asked to end (the request is passed on). Then enables the
// owner, destroys the window and gives the owner the foreground back.
void RunModal(HWND window, HWND owner, const bool& closed);

}  // namespace base
