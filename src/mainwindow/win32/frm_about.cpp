#include "mainwindow/win32/frm_about.h"

#include "base/product.h"
#include "base/resource_ids.h"
#include "base/win32/controls.h"
#include "base/win32/wide.h"

namespace mainwindow {
namespace {

constexpr wchar_t kClassName[] = L"Veskar_Lookout.frmAbout";
constexpr int kLinkId = 200;
constexpr COLORREF kLinkColour = RGB(0, 0, 255);

// Layout in pixels at 96 DPI.
constexpr int kWidth = 360;
constexpr int kHeight = 150;
constexpr int kTextLeft = 64;

int S(int pixels) { return base::ScaleForDpi(pixels); }

base::UniqueFont UnderlinedUiFont() {
    LOGFONTW font{};
    if (!GetObjectW(base::UiFont(), sizeof font, &font)) return {};
    font.lfUnderline = TRUE;
    return base::UniqueFont(CreateFontIndirectW(&font));
}

}  // namespace

FrmAbout::FrmAbout(AboutTexts texts, std::function<void()> openWebSite)
    : m_texts(std::move(texts)), m_openWebSite(std::move(openWebSite)) {}

void FrmAbout::ShowModal(HWND owner) {
    CreateModal(kClassName, base::Widen(m_texts.caption), S(kWidth), S(kHeight), owner);
    CreateControls();
    RunModal(owner);
}

void FrmAbout::CreateControls() {
    const HWND self = Handle();
    const HWND picture = base::CreateControl(L"STATIC", "", WS_VISIBLE | SS_ICON, S(16), S(16), S(32), S(32), self, 0);
    SendMessageW(picture, STM_SETICON,
                 reinterpret_cast<WPARAM>(LoadIconW(base::ModuleInstance(), MAKEINTRESOURCEW(IDI_APPLICATION_ICON))),
                 0);
    base::CreateControl(L"STATIC", m_texts.versionLabel, WS_VISIBLE | SS_LEFT, S(kTextLeft), S(18),
                        S(kWidth - kTextLeft - 16), S(18), self, 0);
    base::CreateControl(L"STATIC", base::kBanner, WS_VISIBLE | SS_LEFT, S(kTextLeft), S(42),
                        S(kWidth - kTextLeft - 16), S(18), self, 0);
    m_link = base::CreateControl(L"STATIC", m_texts.linkLabel, WS_VISIBLE | SS_LEFT | SS_NOTIFY, S(kTextLeft),
                                 S(66), S(kWidth - kTextLeft - 16), S(18), self, kLinkId);
    m_linkFont = UnderlinedUiFont();
    if (m_linkFont) SendMessageW(m_link, WM_SETFONT, reinterpret_cast<WPARAM>(m_linkFont.Get()), FALSE);
    const HWND ok = base::CreateControl(L"BUTTON", "OK", WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON, S(kWidth - 106),
                                        S(kHeight - 40), S(90), S(28), self, IDOK);
    SetFocus(ok);
}

LRESULT FrmAbout::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND:
            if (LOWORD(wParam) == kLinkId && HIWORD(wParam) == STN_CLICKED) {
                m_openWebSite();
            } else if (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL) {
                Close();
            }
            return 0;
        case WM_CTLCOLORSTATIC:
            if (reinterpret_cast<HWND>(lParam) == m_link) {
                SetTextColor(reinterpret_cast<HDC>(wParam), kLinkColour);
                SetBkMode(reinterpret_cast<HDC>(wParam), TRANSPARENT);
                return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_BTNFACE));
            }
            break;
        case WM_SETCURSOR:
            if (reinterpret_cast<HWND>(wParam) == m_link) {
                SetCursor(LoadCursorW(nullptr, IDC_HAND));
                return TRUE;
            }
            break;
        case WM_CLOSE: Close(); return 0;
        default: break;
    }
    return base::Window::HandleMessage(message, wParam, lParam);
}

}  // namespace mainwindow
