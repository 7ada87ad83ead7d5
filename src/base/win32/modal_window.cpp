#include "base/win32/modal_window.h"

#include <algorithm>

namespace base {
namespace {

// The frame of the program's modal windows: a caption with a close box, no resizing.
constexpr DWORD kModalStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU;
constexpr DWORD kModalExStyle = WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT;

// The top left corner of a window of this outer size centred over the owner (over the work
// area when the owner is hidden), kept whole on the work area.
POINT CentredPosition(HWND owner, int width, int height) {
    RECT workArea{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &workArea, 0);
    RECT ownerRect = workArea;
    if (owner && IsWindowVisible(owner)) GetWindowRect(owner, &ownerRect);
    const int x = std::clamp<int>(ownerRect.left + ((ownerRect.right - ownerRect.left) - width) / 2, workArea.left,
                                  std::max<int>(workArea.left, workArea.right - width));
    const int y = std::clamp<int>(ownerRect.top + ((ownerRect.bottom - ownerRect.top) - height) / 2, workArea.top,
                                  std::max<int>(workArea.top, workArea.bottom - height));
    return {x, y};
}

// The outer rectangle of a modal window with this client size, centred over the owner.
RECT ModalWindowRect(HWND owner, int clientWidth, int clientHeight) {
    RECT frame{0, 0, clientWidth, clientHeight};
    AdjustWindowRectEx(&frame, kModalStyle, FALSE, kModalExStyle);
    const int width = frame.right - frame.left;
    const int height = frame.bottom - frame.top;
    const POINT at = CentredPosition(owner, width, height);
    return {at.x, at.y, at.x + width, at.y + height};
}

}  // namespace

void ModalWindow::CreateModal(const wchar_t* className, const std::wstring& caption, int clientWidth,
                              int clientHeight, HWND owner) {
    RegisterWindowClass(className);
    const RECT frame = ModalWindowRect(owner, clientWidth, clientHeight);
    CreateWindowFor(kModalExStyle, className, caption.c_str(), kModalStyle, frame.left, frame.top,
                    frame.right - frame.left, frame.bottom - frame.top, owner);
}

void ModalWindow::RunModal(HWND owner) {
    const HWND window = Handle();
    m_closed = false;
    if (owner) EnableWindow(owner, FALSE);
    ShowWindow(window, SW_SHOW);
    MSG message;
    while (!m_closed) {
        const BOOL got = GetMessageW(&message, nullptr, 0, 0);
        if (got == 0 || got == -1) {
            PostQuitMessage(got == 0 ? static_cast<int>(message.wParam) : 0);
            break;
        }
        if (!IsDialogMessageW(window, &message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    if (owner) EnableWindow(owner, TRUE);
    if (IsWindow(window)) DestroyWindow(window);
    if (owner) SetForegroundWindow(owner);
}

}  // namespace base
