#include "controls/win32/alert_window.h"

#include "base/win32/colour.h"
#include "base/win32/controls.h"
#include "base/win32/fatal_error.h"
#include "base/win32/wide.h"
#include "controls/win32/drawing.h"
#include "controls/win32/screen.h"

namespace controls {
namespace {

constexpr wchar_t kClassName[] = L"frmAlertWindow";
constexpr UINT_PTR kTimer1 = 1;
// SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_FRAMECHANGED | SWP_SHOWWINDOW | SWP_NOOWNERZORDER
constexpr UINT kTopmostFlags = 0x273;
static_assert(kTopmostFlags ==
              (SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_FRAMECHANGED | SWP_SHOWWINDOW | SWP_NOOWNERZORDER));

TRIVERTEX Vertex(const GradientVertex& v) {
    // The signed 16-bit channels go over with their bit patterns.
    return {v.x,
            v.y,
            static_cast<COLOR16>(static_cast<std::uint16_t>(v.red)),
            static_cast<COLOR16>(static_cast<std::uint16_t>(v.green)),
            static_cast<COLOR16>(static_cast<std::uint16_t>(v.blue)),
            static_cast<COLOR16>(static_cast<std::uint16_t>(v.alpha))};
}

void DrawPicture(HDC dc, const AlertPicture& picture) {
    TRIVERTEX vertices[4];
    for (int i = 0; i < 4; ++i) vertices[i] = Vertex(picture.vertices[static_cast<std::size_t>(i)]);
    GRADIENT_TRIANGLE triangles[2] = {{0, 1, 2}, {0, 2, 3}};
    GradientFill(dc, vertices, 4, triangles, 2, GRADIENT_FILL_TRIANGLE);

    const base::SelectedObject hollow(dc, GetStockObject(NULL_BRUSH));
    const auto withPen = [dc](base::Colour colour, auto&& draw) {
        const COLORREF colorRef = base::ToColorRef(colour);
        const base::UniquePen pen(CreatePen(PS_SOLID, 1, colorRef));
        const base::SelectedObject selected(dc, pen.Get());
        draw(colorRef);
    };
    for (const FrameLine& line : picture.lines) {
        withPen(line.colour, [&](COLORREF colorRef) { DrawLine(dc, line.x1, line.y1, line.x2, line.y2, colorRef); });
    }
    for (const FrameRoundRect& r : picture.roundRects) {
        withPen(r.colour, [&](COLORREF) {
            RoundRect(dc, r.left, r.top, r.right, r.bottom, r.ellipseWidth, r.ellipseHeight);
        });
    }
}

}  // namespace

AlertWindow::AlertWindow(AlertBoard& board, HWND owner)
    : m_model(board), m_twipsPerPixel(ScreenTwipsPerPixel()) {
    RegisterWindowClass(kClassName, CS_HREDRAW | CS_VREDRAW, nullptr);
    // Borderless and hidden until it arrives.
    CreateWindowFor(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, kClassName, L"", WS_POPUP, 0, 0, 0, 0, owner);
    m_model.Load(*this);
}

AlertWindow::~AlertWindow() = default;

AlertScreen AlertWindow::Screen() {
    const RECT area = WorkArea();
    return {area.right, area.bottom, ScreenHeightPixels(), m_twipsPerPixel};
}

void AlertWindow::Move(const FormPlacement& twips) {
    SetWindowPos(Handle(), nullptr, base::TwipsToPixels(twips.left, m_twipsPerPixel.x),
                 base::TwipsToPixels(twips.top, m_twipsPerPixel.y),
                 base::TwipsToPixels(twips.width, m_twipsPerPixel.x),
                 base::TwipsToPixels(twips.height, m_twipsPerPixel.y),
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
}

void AlertWindow::SetLabel(const PixelRect& bounds, const std::string& caption) {
    m_labelBounds = {bounds.left, bounds.top, bounds.left + bounds.width, bounds.top + bounds.height};
    m_labelCaption = base::Widen(caption);
    SetWindowTextW(Handle(), m_labelCaption.c_str());
    InvalidateRect(Handle(), nullptr, FALSE);
}

void AlertWindow::Paint(const AlertPicture& picture) {
    const base::WindowDc screen(Handle());
    base::UniqueBitmap image(CreateCompatibleBitmap(screen.Get(), picture.width, picture.height));
    const base::UniqueDc memory(CreateCompatibleDC(screen.Get()));
    if (!image || !memory) return;  // out of GDI resources: the alert shows without its picture
    {
        const base::SelectedObject selected(memory.Get(), image.Get());
        DrawPicture(memory.Get(), picture);
    }
    m_image = std::move(image);
    InvalidateRect(Handle(), nullptr, FALSE);
}

void AlertWindow::SetRegion(const RoundRegion& region) {
    base::UniqueRgn rounded(CreateRoundRectRgn(0, 0, region.right, region.bottom, region.ellipseWidth,
                                               region.ellipseHeight));
    // The system owns the region once it is set.
    if (rounded && SetWindowRgn(Handle(), rounded.Get(), TRUE)) rounded.Release();
}

void AlertWindow::SetAlpha(std::uint8_t alpha) {
    // Failures are ignored: without layered windows the alert simply shows opaque.
    SetWindowLongW(Handle(), GWL_EXSTYLE, GetWindowLongW(Handle(), GWL_EXSTYLE) | WS_EX_LAYERED);
    SetLayeredWindowAttributes(Handle(), 0, alpha, LWA_ALPHA);
}

void AlertWindow::SetTopmost(bool on) {
    // A window that cannot change its z-order stays where it is; nothing else depends on it.
    SetWindowPos(Handle(), on ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0, kTopmostFlags);
}

void AlertWindow::StartTimer() {
    // 1 ms: the timer ticks at the system's shortest period.
    if (!SetTimer(Handle(), kTimer1, 1, nullptr)) base::FatalSystemError(L"SetTimer");
}

void AlertWindow::Unload() {
    KillTimer(Handle(), kTimer1);
    DestroyWindow(Handle());
}

void AlertWindow::OnPaint() {
    PAINTSTRUCT ps;
    const HDC dc = BeginPaint(Handle(), &ps);
    RECT client{};
    GetClientRect(Handle(), &client);
    if (m_image) {
        const base::UniqueDc memory(CreateCompatibleDC(dc));
        const base::SelectedObject selected(memory.Get(), m_image.Get());
        BitBlt(dc, 0, 0, client.right, client.bottom, memory.Get(), 0, 0, SRCCOPY);
    } else {
        FillRect(dc, &client, GetSysColorBrush(COLOR_BTNFACE));
    }
    if (!m_labelCaption.empty()) {
        const base::SelectedObject font(dc, base::UiFont());
        SetBkMode(dc, TRANSPARENT);
        SetTextColor(dc, RGB(0, 0, 0));
        RECT label = m_labelBounds;
        DrawTextW(dc, m_labelCaption.c_str(), static_cast<int>(m_labelCaption.size()), &label, DT_WORDBREAK);
    }
    EndPaint(Handle(), &ps);
}

LRESULT AlertWindow::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_TIMER:
        if (wParam == kTimer1) m_model.Tick();
        return 0;
    case WM_LBUTTONUP: m_model.Click(); return 0;
    case WM_MOUSEACTIVATE: return MA_NOACTIVATE;
    case WM_ERASEBKGND: return 1;
    case WM_PAINT: OnPaint(); return 0;
    case WM_CLOSE: m_model.Unload(); return 0;
    default: return base::Window::HandleMessage(message, wParam, lParam);
    }
}

AlertWindowFactory::AlertWindowFactory()
    : m_owner(CreateWindowExW(WS_EX_TOOLWINDOW, L"STATIC", L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                              base::ModuleInstance(), nullptr)) {
    if (!m_owner) base::FatalSystemError(L"CreateWindowEx(alert owner)");
}

std::unique_ptr<AlertInstance> AlertWindowFactory::Create(AlertBoard& board) {
    return std::make_unique<AlertWindow>(board, m_owner.Get());
}

}  // namespace controls
