#include "processes/win32/frm_app.h"

#include <array>

#include "base/win32/controls.h"
#include "base/win32/wide.h"
#include "controls/win32/screen.h"

namespace processes {
namespace {

constexpr wchar_t kClassName[] = L"Veskar_Lookout.frmApp";
constexpr int kListId = 100;
constexpr int kAddId = 101, kDeleteId = 102, kEditId = 103;  // cmdAdd, cmdDel, cmdEdit; cmdOK, cmdNG: IDOK, IDCANCEL
constexpr mainwindow::Column kNameColumn[] = {{"名前", 4350}};
// Layout in pixels at 96 DPI.
constexpr int kWidth = 470;
constexpr int kHeight = 260;
constexpr int kButtonLeft = 340;

int S(int pixels) { return base::ScaleForDpi(pixels); }

}  // namespace

void FrmApp::ShowModal(HWND owner) {
    CreateModal(kClassName, base::Widen(AppEditor::kCaption), S(kWidth), S(kHeight), owner);
    CreateControls();
    RunModal(owner);
    m_list.reset();
}

void FrmApp::CreateControls() {
    const HWND self = Handle();
    m_list = std::make_unique<mainwindow::VirtualListView>(self, kListId, m_editor.Rows(), kNameColumn, controls::ScreenTwipsPerPixel(),
                                                           mainwindow::PixelRect{S(10), S(10), S(320), S(240)});
    SetWindowLongPtrW(m_list->Handle(), GWL_STYLE,
                      GetWindowLongPtrW(m_list->Handle(), GWL_STYLE) | LVS_SHOWSELALWAYS);
    SendMessageW(m_list->Handle(), LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_FULLROWSELECT);
    ShowWindow(m_list->Handle(), SW_SHOW);
    const std::array<std::pair<int, const char*>, 5> buttons{{{kAddId, "プログラムの追加(&R)"},
                                                              {kDeleteId, "削除(&D)"},
                                                              {kEditId, "編集(&E)"},
                                                              {IDOK, "Ok"},
                                                              {IDCANCEL, "キャンセル"}}};
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        // Ok and キャンセル stand at the bottom.
        const int row = static_cast<int>(i);
        const int top = row < 3 ? 10 + 34 * row : kHeight - 72 + 34 * (row - 3);
        base::CreateControl(L"BUTTON", buttons[i].second, WS_VISIBLE | WS_TABSTOP, S(kButtonLeft), S(top), S(120),
                            S(28), self, buttons[i].first);
    }
}

LRESULT FrmApp::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_NOTIFY:
            if (m_list && m_list->OnNotify(*reinterpret_cast<NMHDR*>(lParam))) return 0;
            break;
        case WM_COMMAND:
            switch (LOWORD(wParam)) {
                case kAddId: m_editor.Add(); return 0;
                case kDeleteId: m_editor.Delete(); return 0;
                case IDOK:
                    if (m_editor.Ok()) Close();
                    return 0;
                case IDCANCEL: Close(); return 0;
                default: return 0;  // cmdEdit does nothing
            }
        case WM_CLOSE: Close(); return 0;
        default: break;
    }
    return base::Window::HandleMessage(message, wParam, lParam);
}

}  // namespace processes
