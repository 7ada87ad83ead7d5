#include "base/win32/controls.h"

#include <vector>

#include "base/win32/fatal_error.h"
#include "base/win32/unique_resource.h"
#include "base/win32/wide.h"
#include "base/win32/window.h"

namespace base {
namespace {

int ScreenDpi() {
    WindowDc screen(nullptr);
    const int dpi = screen.Get() ? GetDeviceCaps(screen.Get(), LOGPIXELSY) : 96;
    return dpi > 0 ? dpi : 96;
}

}  // namespace

HFONT UiFont() {
    static const UniqueFont font([] {
        LOGFONTW lf{};
        lf.lfHeight = -MulDiv(9, ScreenDpi(), 72);
        lf.lfWeight = FW_NORMAL;
        lf.lfCharSet = SHIFTJIS_CHARSET;
        lf.lfQuality = DEFAULT_QUALITY;
        wcscpy_s(lf.lfFaceName, L"MS UI Gothic");
        return CreateFontIndirectW(&lf);
    }());
    return font ? font.Get() : static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
}

int ScaleForDpi(int pixels) { return MulDiv(pixels, ScreenDpi(), 96); }

HWND CreateControl(const wchar_t* className, const std::string& text, DWORD style, int x, int y, int width,
                   int height, HWND parent, int id, DWORD exStyle) {
    const HWND control = CreateWindowExW(exStyle, className, Widen(text).c_str(), style | WS_CHILD, x, y, width,
                                         height, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                                         ModuleInstance(), nullptr);
    if (!control) FatalSystemError(className);
    SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(UiFont()), FALSE);
    return control;
}

std::string WindowText(HWND window) {
    const int length = GetWindowTextLengthW(window);
    std::vector<wchar_t> buffer(static_cast<std::size_t>(length) + 1);
    const int copied = GetWindowTextW(window, buffer.data(), length + 1);
    return Narrow(std::wstring_view(buffer.data(), static_cast<std::size_t>(copied)));
}

void SetWindowTextUtf8(HWND window, const std::string& text) { SetWindowTextW(window, Widen(text).c_str()); }

}  // namespace base
