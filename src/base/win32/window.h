#pragma once
// The base of every window class: attaches the object to its window on WM_NCCREATE and
// forwards messages to it. The window procedure never lets an exception out: a runtime
// error nothing trapped ends the program through the runtime's error box.
#include <windows.h>

namespace base {

class Window {
public:
    Window() = default;
    virtual ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    HWND Handle() const noexcept { return m_hwnd; }

protected:
    // Registers a window class whose procedure forwards to HandleMessage (once per class name).
    static void RegisterWindowClass(const wchar_t* className, UINT style = CS_HREDRAW | CS_VREDRAW,
                                    HBRUSH background = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1),
                                    HICON icon = nullptr);
    // Creates the window; the object must outlive it or destroy it first.
    HWND CreateWindowFor(DWORD exStyle, const wchar_t* className, const wchar_t* title, DWORD style, int x, int y,
                         int width, int height, HWND parent, HMENU menu = nullptr);

    virtual LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam);

private:
    static LRESULT CALLBACK WindowProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) noexcept;

    HWND m_hwnd = nullptr;
};

HINSTANCE ModuleInstance() noexcept;

}  // namespace base
