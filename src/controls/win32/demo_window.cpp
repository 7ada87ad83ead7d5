#include "controls/win32/demo_window.h"

#include "base/win32/controls.h"

namespace controls {
namespace {

constexpr wchar_t kClassName[] = L"frmDemo";

enum ControlId : int {
    kText1 = 101,
    kChkFade = 102,
    kChkSquare = 103,
    kOptColor0 = 110,  // to 113
    kCommand1 = 121,
    kCommand2 = 122,
    kCommand3 = 123,
};

constexpr const char* kColourNames[] = {"Yellow", "Blue", "Red", "Green"};

int Px(int logical) { return base::ScaleForDpi(logical); }

}  // namespace

DemoWindow::DemoWindow() : m_form(m_alerts) {
    RegisterWindowClass(kClassName);
    RECT frame{0, 0, Px(360), Px(185)};
    const DWORD style = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN;
    AdjustWindowRectEx(&frame, style, FALSE, 0);
    CreateWindowFor(0, kClassName, L"Alert Demo", style, CW_USEDEFAULT, CW_USEDEFAULT, frame.right - frame.left,
                    frame.bottom - frame.top, nullptr);
    CreateControls();
    m_form.Changed = [this] { ShowForm(); };
}

DemoWindow::~DemoWindow() { m_form.Changed = nullptr; }

void DemoWindow::CreateControls() {
    const HWND self = Handle();
    m_text1 = base::CreateControl(L"EDIT", "", WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN,
                                  Px(10), Px(10), Px(340), Px(70), self, kText1, WS_EX_CLIENTEDGE);
    base::CreateControl(L"BUTTON", "Fade", WS_VISIBLE | WS_TABSTOP | BS_AUTOCHECKBOX, Px(10), Px(88), Px(100),
                        Px(20), self, kChkFade);
    base::CreateControl(L"BUTTON", "Square", WS_VISIBLE | WS_TABSTOP | BS_AUTOCHECKBOX, Px(120), Px(88), Px(100),
                        Px(20), self, kChkSquare);
    for (int i = 0; i < 4; ++i) {
        base::CreateControl(L"BUTTON", kColourNames[i],
                            WS_VISIBLE | BS_AUTORADIOBUTTON | (i == 0 ? WS_GROUP | WS_TABSTOP : 0), Px(10 + 85 * i),
                            Px(114), Px(80), Px(20), self, kOptColor0 + i);
    }
    base::CreateControl(L"BUTTON", "Timed Alert", WS_VISIBLE | WS_TABSTOP | WS_GROUP | BS_PUSHBUTTON, Px(10),
                        Px(146), Px(110), Px(28), self, kCommand1);
    base::CreateControl(L"BUTTON", "Click Alert", WS_VISIBLE | WS_TABSTOP | BS_PUSHBUTTON, Px(125), Px(146),
                        Px(110), Px(28), self, kCommand2);
    m_command3 = base::CreateControl(L"BUTTON", m_form.Command3Caption(), WS_VISIBLE | WS_TABSTOP | BS_PUSHBUTTON,
                                     Px(240), Px(146), Px(110), Px(28), self, kCommand3);
}

void DemoWindow::ShowForm() {
    m_showing = true;
    if (base::WindowText(m_text1) != m_form.Text1()) base::SetWindowTextUtf8(m_text1, m_form.Text1());
    base::SetWindowTextUtf8(m_command3, m_form.Command3Caption());
    m_showing = false;
}

void DemoWindow::OnCommand(int id, int code, HWND control) {
    if (id == kText1) {
        if (code == EN_CHANGE && !m_showing) m_form.SetText1(base::WindowText(m_text1));
        return;
    }
    if (code != BN_CLICKED) return;
    // A multi-line edit reports no change when another program sets its text: the handlers
    // read the box as it stands, as they would read the control itself.
    m_form.SetText1(base::WindowText(m_text1));
    const bool checked = SendMessageW(control, BM_GETCHECK, 0, 0) == BST_CHECKED;
    switch (id) {
    case kChkFade: m_form.SetFade(checked); break;
    case kChkSquare: m_form.SetSquare(checked); break;
    case kCommand1: m_form.Command1Click(); break;
    case kCommand2: m_form.Command2Click(); break;
    case kCommand3: m_form.Command3Click(); break;
    default:
        if (id >= kOptColor0 && id < kOptColor0 + 4) m_form.OptColorClick(id - kOptColor0);
        break;
    }
}

LRESULT DemoWindow::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND:
        OnCommand(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam));
        return 0;
    case WM_CLOSE:
        // The program keeps its alert form: closing only hides it.
        ShowWindow(Handle(), SW_HIDE);
        return 0;
    default: return base::Window::HandleMessage(message, wParam, lParam);
    }
}

}  // namespace controls
