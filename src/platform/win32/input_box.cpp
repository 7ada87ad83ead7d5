#include "platform/win32/input_box.h"

#include "base/win32/controls.h"
#include "base/win32/modal_window.h"
#include "base/win32/wide.h"

namespace platform::win32 {
namespace {

constexpr wchar_t kClassName[] = L"Veskar_Lookout.InputBox";
constexpr int kEditId = 100;
// Layout in pixels at 96 DPI.
constexpr int kWidth = 360;
constexpr int kHeight = 130;

int S(int pixels) { return base::ScaleForDpi(pixels); }

class InputWindow final : public base::ModalWindow {
public:
    std::string Run(HWND owner, const std::string& prompt, const std::string& title) {
        CreateModal(kClassName, base::Widen(title), S(kWidth), S(kHeight), owner);
        base::CreateControl(L"STATIC", prompt, WS_VISIBLE | SS_LEFT, S(10), S(10), S(250), S(60), Handle(), 0);
        base::CreateControl(L"BUTTON", "OK", WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON, S(270), S(10), S(80), S(26),
                            Handle(), IDOK);
        base::CreateControl(L"BUTTON", "キャンセル", WS_VISIBLE | WS_TABSTOP, S(270), S(42), S(80), S(26), Handle(),
                            IDCANCEL);
        m_edit = base::CreateControl(L"EDIT", "", WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL, S(10), S(94), S(340),
                                     S(24), Handle(), kEditId, WS_EX_CLIENTEDGE);
        SetFocus(m_edit);
        RunModal(owner);
        return m_answer;
    }

private:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_COMMAND && (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL)) {
            if (LOWORD(wParam) == IDOK) m_answer = base::WindowText(m_edit);
            Close();
            return 0;
        }
        if (message == WM_CLOSE) {
            Close();
            return 0;
        }
        return base::Window::HandleMessage(message, wParam, lParam);
    }

    HWND m_edit = nullptr;
    std::string m_answer;
};

}  // namespace

std::string InputBox::Ask(const std::string& prompt, const std::string& title) {
    InputWindow window;
    return window.Run(m_owner, prompt, title);
}

}  // namespace platform::win32
