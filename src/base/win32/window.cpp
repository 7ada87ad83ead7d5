#include "base/win32/window.h"

#include "base/win32/fatal_error.h"

namespace base {

HINSTANCE ModuleInstance() noexcept { return GetModuleHandleW(nullptr); }

Window::~Window() {
    if (m_hwnd) {
        SetWindowLongPtrW(m_hwnd, GWLP_USERDATA, 0);
        DestroyWindow(m_hwnd);
    }
}

void Window::RegisterWindowClass(const wchar_t* className, UINT style, HBRUSH background, HICON icon) {
    WNDCLASSEXW existing{};
    existing.cbSize = sizeof existing;
    if (GetClassInfoExW(ModuleInstance(), className, &existing)) return;
    WNDCLASSEXW wc{};
    wc.cbSize = sizeof wc;
    wc.style = style;
    wc.lpfnWndProc = &Window::WindowProcedure;
    wc.hInstance = ModuleInstance();
    wc.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    wc.hbrBackground = background;
    wc.hIcon = icon;
    wc.lpszClassName = className;
    if (!RegisterClassExW(&wc)) FatalSystemError(L"RegisterClassEx");
}

HWND Window::CreateWindowFor(DWORD exStyle, const wchar_t* className, const wchar_t* title, DWORD style, int x,
                             int y, int width, int height, HWND parent, HMENU menu) {
    const HWND hwnd = CreateWindowExW(exStyle, className, title, style, x, y, width, height, parent, menu,
                                      ModuleInstance(), this);
    if (!hwnd) FatalSystemError(L"CreateWindowEx");
    return hwnd;
}

LRESULT Window::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcW(m_hwnd, message, wParam, lParam);
}

LRESULT CALLBACK Window::WindowProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    auto* self = reinterpret_cast<Window*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
    if (message == WM_NCCREATE) {
        self = static_cast<Window*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        self->m_hwnd = hwnd;
        SetWindowLongPtrW(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    }
    if (!self) return DefWindowProcW(hwnd, message, wParam, lParam);
    LRESULT result = 0;
    try {
        result = self->HandleMessage(message, wParam, lParam);
    } catch (...) {
        ReportUntrappedError();
    }
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrW(hwnd, GWLP_USERDATA, 0);
        self->m_hwnd = nullptr;
    }
    return result;
}

}  // namespace base
