#include "controls/win32/graph_move.h"

#include <commctrl.h>
#include <windowsx.h>

#include "base/win32/colour.h"
#include "base/win32/fatal_error.h"
#include "base/win32/wide.h"
#include "controls/win32/drawing.h"
#include "controls/win32/screen.h"

namespace controls {
namespace {

constexpr wchar_t kControlClass[] = L"graphMove";
constexpr wchar_t kPictureClass[] = L"picTrend";

// The standard mouse pointers by their numbers; 0 keeps the class cursor, 99 shows MouseIcon.
LPCWSTR StandardCursor(std::int16_t pointer) {
    switch (pointer) {
    case 2: return IDC_CROSS;
    case 3: return IDC_IBEAM;
    case 4: return IDC_ICON;
    case 5: return IDC_SIZEALL;
    case 6: return IDC_SIZENESW;
    case 7: return IDC_SIZENS;
    case 8: return IDC_SIZENWSE;
    case 9: return IDC_SIZEWE;
    case 10: return IDC_UPARROW;
    case 11: return IDC_WAIT;
    case 12: return IDC_NO;
    case 13: return IDC_APPSTARTING;
    case 14: return IDC_HELP;
    case 15: return IDC_SIZEALL;
    default: return IDC_ARROW;
    }
}

std::int16_t ShiftState(WPARAM keys) {
    std::int16_t shift = 0;
    if (keys & MK_SHIFT) shift |= 1;
    if (keys & MK_CONTROL) shift |= 2;
    if (GetKeyState(VK_MENU) < 0) shift |= 4;
    return shift;
}

std::int16_t HeldButtons(WPARAM keys) {
    std::int16_t buttons = 0;
    if (keys & MK_LBUTTON) buttons |= 1;
    if (keys & MK_RBUTTON) buttons |= 2;
    if (keys & MK_MBUTTON) buttons |= 4;
    return buttons;
}

SIZE ClientSize(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return {client.right - client.left, client.bottom - client.top};
}

}  // namespace

// picTrend: the picture box everything is drawn on. Its messages go to the control.
class GraphMove::TrendPicture : public base::Window {
public:
    TrendPicture(GraphMove& owner, DWORD exStyle) : m_owner(owner) {
        RegisterWindowClass(kPictureClass, CS_DBLCLKS, nullptr);
        CreateWindowFor(exStyle, kPictureClass, L"", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, 0, 0, 0, 0,
                        owner.Handle());
    }

protected:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        return m_owner.PictureMessage(Handle(), message, wParam, lParam);
    }

private:
    GraphMove& m_owner;
};

GraphMove::GraphMove(HWND parent, const RECT& bounds, int id, const PropertyBag* stored)
    : m_model(ScreenTwipsPerPixel()), m_hostShown(IsWindowVisible(parent) != FALSE) {
    // Its own device context: hDC stays valid for the control's life.
    RegisterWindowClass(kControlClass, CS_OWNDC, reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    CreateWindowFor(WS_EX_CONTROLPARENT, kControlClass, L"", WS_CHILD | WS_CLIPCHILDREN, bounds.left, bounds.top,
                    bounds.right - bounds.left, bounds.bottom - bounds.top, parent,
                    reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)));
    if (stored) {
        m_model.ReadProperties(*stored);
    } else {
        m_model.InitProperties();
    }
    m_picTrend = std::make_unique<TrendPicture>(*this, Properties().BorderStyle == 1 ? WS_EX_CLIENTEDGE : 0);
    GraphProperties bare = Properties();
    bare.ToolTipText.clear();
    bare.MouseIcon.clear();
    ApplyToPicture(bare);
    FitPicture();
    ShowWindow(Handle(), SW_SHOWNA);
}

GraphMove::~GraphMove() = default;

bool GraphMove::setValue(float Value) {
    const bool accepted = m_model.setValue(Value);
    if (accepted && m_hostShown) InvalidateRect(m_picTrend->Handle(), nullptr, FALSE);
    return accepted;
}

void GraphMove::SetProperties(const GraphProperties& properties) {
    const GraphProperties before = m_model.Properties();
    m_model.SetProperties(properties);
    ApplyToPicture(before);
    InvalidateRect(m_picTrend->Handle(), nullptr, FALSE);
}

void GraphMove::Move(const RECT& bounds) {
    MoveWindow(Handle(), bounds.left, bounds.top, bounds.right - bounds.left, bounds.bottom - bounds.top, TRUE);
}

HDC GraphMove::hDC() const noexcept { return GetDC(Handle()); }

void GraphMove::FitPicture() {
    const SIZE inner = ClientSize(Handle());
    MoveWindow(m_picTrend->Handle(), 0, 0, inner.cx, inner.cy, FALSE);
    const SIZE client = ClientSize(m_picTrend->Handle());
    m_model.Resize(client.cx, client.cy);
    InvalidateRect(m_picTrend->Handle(), nullptr, FALSE);
}

void GraphMove::ApplyToPicture(const GraphProperties& before) {
    const GraphProperties& now = m_model.Properties();
    const HWND picture = m_picTrend->Handle();
    if ((now.BorderStyle == 1) != (before.BorderStyle == 1)) {
        const LONG_PTR exStyle = GetWindowLongPtrW(picture, GWL_EXSTYLE);
        SetWindowLongPtrW(picture, GWL_EXSTYLE,
                          now.BorderStyle == 1 ? exStyle | WS_EX_CLIENTEDGE : exStyle & ~WS_EX_CLIENTEDGE);
        SetWindowPos(picture, nullptr, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
        const SIZE client = ClientSize(picture);
        m_model.SetClientSize(client.cx, client.cy);
    }
    if (now.ToolTipText != before.ToolTipText) UpdateToolTip();
    if (now.MouseIcon != before.MouseIcon) {
        // A file that cannot be read leaves the pointer as it is: MouseIcon shows nothing.
        m_mouseIcon.Reset(now.MouseIcon.empty() ? nullptr
                                                : static_cast<HCURSOR>(LoadImageW(
                                                      nullptr, base::Widen(now.MouseIcon).c_str(), IMAGE_CURSOR, 0,
                                                      0, LR_LOADFROMFILE | LR_DEFAULTSIZE)));
    }
}

void GraphMove::UpdateToolTip() {
    const std::wstring text = base::Widen(Properties().ToolTipText);
    if (!m_toolTip) {
        if (text.empty()) return;
        INITCOMMONCONTROLSEX icc{sizeof icc, ICC_BAR_CLASSES};
        InitCommonControlsEx(&icc);
        m_toolTip.Reset(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0, 0,
                                        0, Handle(), nullptr, base::ModuleInstance(), nullptr));
        if (!m_toolTip) base::FatalSystemError(L"CreateWindowEx(tooltips)");
    }
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = Handle();
    tool.uId = reinterpret_cast<UINT_PTR>(m_picTrend->Handle());
    std::wstring buffer = text;
    tool.lpszText = buffer.data();
    SendMessageW(m_toolTip.Get(), TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    if (!text.empty()) SendMessageW(m_toolTip.Get(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void GraphMove::Paint(HDC target, const RECT& client) const {
    const int width = client.right - client.left;
    const int height = client.bottom - client.top;
    if (width <= 0 || height <= 0) return;
    // Drawn off screen and copied in one piece, so a redraw every second never flickers.
    const base::UniqueDc memory(CreateCompatibleDC(target));
    const base::UniqueBitmap bitmap(CreateCompatibleBitmap(target, width, height));
    if (!memory || !bitmap) return;
    const base::SelectedObject selectBitmap(memory.Get(), bitmap.Get());
    const base::UniqueBrush back(CreateSolidBrush(base::ToColorRef(Properties().BackColor)));
    FillRect(memory.Get(), &client, back.Get());

    base::UniquePen pen;
    base::Colour penColour = 0;
    std::unique_ptr<base::SelectedObject> selectPen;
    for (const GraphLine& line : m_model.Picture()) {
        if (!pen || line.colour != penColour) {
            selectPen.reset();
            penColour = line.colour;
            pen.Reset(CreatePen(PS_SOLID, 1, base::ToColorRef(penColour)));
            selectPen = std::make_unique<base::SelectedObject>(memory.Get(), pen.Get());
        }
        const PixelPoint from = m_model.ToPixels(line.x1, line.y1);
        const PixelPoint to = m_model.ToPixels(line.x2, line.y2);
        DrawLine(memory.Get(), from.x, from.y, to.x, to.y, base::ToColorRef(penColour));
    }
    selectPen.reset();
    BitBlt(target, 0, 0, width, height, memory.Get(), 0, 0, SRCCOPY);
}

bool GraphMove::SetPointer() const {
    const std::int16_t pointer = Properties().MousePointer;
    if (pointer == 0) return false;
    if (pointer == 99) {
        if (!m_mouseIcon) return false;
        SetCursor(m_mouseIcon.Get());
        return true;
    }
    SetCursor(LoadCursorW(nullptr, StandardCursor(pointer)));
    return true;
}

LRESULT GraphMove::PictureMessage(HWND picture, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto raise = [&](const std::function<void(const GraphMouseEvent&)>& handler, std::int16_t button) {
        if (!handler) return;
        const auto [x, y] = m_model.ToScale(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
        handler(GraphMouseEvent{button, ShiftState(wParam), x, y});
    };
    switch (message) {
    case WM_ERASEBKGND: return 1;
    case WM_PAINT: {
        PAINTSTRUCT ps;
        const HDC dc = BeginPaint(picture, &ps);
        RECT client{};
        GetClientRect(picture, &client);
        Paint(dc, client);
        EndPaint(picture, &ps);
        return 0;
    }
    case WM_SETCURSOR:
        if (LOWORD(lParam) == HTCLIENT && SetPointer()) return TRUE;
        break;
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
        SetCapture(picture);
        raise(MouseDown, message == WM_LBUTTONDOWN ? 1 : message == WM_RBUTTONDOWN ? 2 : 4);
        return 0;
    case WM_LBUTTONDBLCLK:
        // The second press of a double click is the DblClick, and its release no Click.
        SetCapture(picture);
        m_afterDoubleClick = true;
        if (DblClick) DblClick();
        return 0;
    case WM_MOUSEMOVE: raise(MouseMove, HeldButtons(wParam)); return 0;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
    case WM_MBUTTONUP: {
        if (HeldButtons(wParam) == 0 && GetCapture() == picture) ReleaseCapture();
        raise(MouseUp, message == WM_LBUTTONUP ? 1 : message == WM_RBUTTONUP ? 2 : 4);
        const bool click = message == WM_LBUTTONUP && !m_afterDoubleClick;
        if (message == WM_LBUTTONUP) m_afterDoubleClick = false;
        if (click && Click) Click();
        return 0;
    }
    default: break;
    }
    return DefWindowProcW(picture, message, wParam, lParam);
}

LRESULT GraphMove::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SIZE && m_picTrend) {
        FitPicture();
        return 0;
    }
    return base::Window::HandleMessage(message, wParam, lParam);
}

}  // namespace controls
