#include "network/win32/frm_machine.h"

#include "base/win32/controls.h"

namespace network {
namespace {

constexpr wchar_t kClassName[] = L"Veskar_Lookout.frmMACHINE";
enum ControlId { kTextIP = 200, kCmdGET, kText5, kText7, kText6, kCommand1, kCmdEnd };

// Layout in pixels at 96 DPI.
constexpr int kWidth = 380;
constexpr int kHeight = 336;

int S(int pixels) { return base::ScaleForDpi(pixels); }

HWND Label(HWND parent, const char* text, int x, int y, int width) {
    return base::CreateControl(L"STATIC", text, WS_VISIBLE | SS_LEFT, S(x), S(y), S(width), S(18), parent, 0);
}

HWND Edit(HWND parent, int id, int x, int y, int width, int height, DWORD style = ES_AUTOHSCROLL) {
    return base::CreateControl(L"EDIT", "", WS_VISIBLE | WS_TABSTOP | style, S(x), S(y), S(width), S(height), parent,
                               id, WS_EX_CLIENTEDGE);
}

HWND Button(HWND parent, const char* caption, int id, int x, int y, int width = 80) {
    return base::CreateControl(L"BUTTON", caption, WS_VISIBLE | WS_TABSTOP | BS_PUSHBUTTON, S(x), S(y), S(width),
                               S(26), parent, id);
}

HWND Group(HWND parent, const char* caption, int y, int height) {
    return base::CreateControl(L"BUTTON", caption, WS_VISIBLE | BS_GROUPBOX, S(8), S(y), S(kWidth - 16), S(height),
                               parent, 0);
}

}  // namespace

void FrmMachine::ShowModal(HWND owner) {
    CreateModal(kClassName, L"ユーティリティ", S(kWidth), S(kHeight), owner);
    CreateControls();
    m_panel.SetListener([this] { ShowPanel(); });
    ShowPanel();
    RunModal(owner);
    m_panel.SetListener(nullptr);
}

void FrmMachine::CreateControls() {
    const HWND self = Handle();
    Group(self, "グローバルIPアドレス取得", 6, 64);
    m_textIP = Edit(self, kTextIP, 20, 32, 250, 24);
    m_cmdGET = Button(self, "取得", kCmdGET, 282, 31);
    Group(self, "メッセンジャ", 78, 216);
    Label(self, "相手マシン(PC名／IPアドレス)", 20, 98, 300);
    m_text5 = Edit(self, kText5, 20, 116, 340, 24);
    Label(self, "送信マシン", 20, 146, 300);
    m_text7 = Edit(self, kText7, 20, 164, 340, 24);
    base::SetWindowTextUtf8(m_text7, m_panel.Text7());
    Label(self, "送信内容", 20, 194, 300);
    m_text6 = Edit(self, kText6, 20, 212, 250, 74, ES_MULTILINE | ES_WANTRETURN | WS_VSCROLL);
    m_command1 = Button(self, "送信", kCommand1, 282, 260);
    Button(self, "閉じる", kCmdEnd, kWidth - 88, kHeight - 36);
    SetFocus(m_cmdGET);
}

void FrmMachine::ShowPanel() {
    base::SetWindowTextUtf8(m_textIP, m_panel.TextIP());
    EnableWindow(m_cmdGET, m_panel.GetEnabled() ? TRUE : FALSE);
    EnableWindow(m_command1, m_panel.SendEnabled() ? TRUE : FALSE);
}

LRESULT FrmMachine::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND:
            if (HIWORD(wParam) != BN_CLICKED) break;
            switch (LOWORD(wParam)) {
                case kCmdGET: m_panel.cmdGET_Click(); return 0;
                case kCommand1:
                    m_panel.Command1_Click(base::WindowText(m_text5), base::WindowText(m_text7),
                                           base::WindowText(m_text6));
                    return 0;
                case kCmdEnd:
                case IDCANCEL: Close(); return 0;
                default: break;
            }
            break;
        case WM_CLOSE: Close(); return 0;
        default: break;
    }
    return base::Window::HandleMessage(message, wParam, lParam);
}

}  // namespace network
