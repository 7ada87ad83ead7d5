#include "app/win32/frm_option.h"

#include <commctrl.h>

#include <algorithm>

#include "base/win32/colour.h"
#include "base/win32/controls.h"
#include "base/win32/wide.h"

namespace app {
namespace {

constexpr wchar_t kClassName[] = L"VeskarLookoutOptions";
constexpr int kTabSetId = 1000;
constexpr int kSwatchId = 1010;  // lblCOLOR(0), lblCOLOR(1)
constexpr int kInterfaceId = 1002;
constexpr int kIntervalId = 1003;
constexpr int kListEnableId = 1020;   // + page
constexpr int kListBoxId = 1100;      // + 20 x list + box

// Layout in pixels at 96 DPI.
constexpr int kWidth = 480;
constexpr int kHeight = 430;
constexpr int kTabRowHeight = 24;
constexpr int kPageX = 22;
constexpr int kPageY = 46;

int S(int pixels) { return base::ScaleForDpi(pixels); }

bool IsChecked(HWND box) { return SendMessageW(box, BM_GETCHECK, 0, 0) == BST_CHECKED; }
void SetChecked(HWND box, bool checked) { SendMessageW(box, BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0); }

void FillCombo(HWND combo, const std::vector<std::string>& items) {
    for (const auto& item : items) SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(base::Widen(item).c_str()));
}

}  // namespace

FrmOption::FrmOption(OptionsModel& model, std::function<void()> onSaved)
    : m_model(model), m_onSaved(std::move(onSaved)) {}

void FrmOption::ShowModal(HWND owner) {
    m_model.Load();
    // No WS_CLIPCHILDREN: group boxes are transparent and rely on the dialog painting under them.
    CreateModal(kClassName, L"全般的な設定", S(kWidth), S(kHeight), owner);
    CreateControls();
    FillControls();
    ShowPage(0);

    RunModal(owner);
}

void FrmOption::CreateControls() {
    const HWND self = Handle();
    // Only the row of tabs: the pages stand on the dialog's own background below it.
    m_tabSet = base::CreateControl(WC_TABCONTROLW, "", WS_VISIBLE | WS_TABSTOP | WS_CLIPSIBLINGS, S(10), S(10),
                                   S(kWidth - 20), S(kTabRowHeight), self, kTabSetId);
    const char* captions[] = {"全般", "許可マシンリスト", "拒否マシンリスト"};
    for (int i = 0; i < 3; ++i) {
        std::wstring caption = base::Widen(captions[i]);
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = caption.data();
        SendMessageW(m_tabSet, TCM_INSERTITEMW, i, reinterpret_cast<LPARAM>(&item));
    }
    CreateGeneralPage(S(kPageX), S(kPageY));
    CreateListPage(1, "許可マシンリスト（PC名／IPアドレス）", S(kPageX), S(kPageY));
    CreateListPage(2, "拒否マシンリスト（PC名／IPアドレス）", S(kPageX), S(kPageY));
    base::CreateControl(L"BUTTON", "OK", WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON, S(kWidth - 200),
                        S(kHeight - 40), S(90), S(28), self, IDOK);
    base::CreateControl(L"BUTTON", "キャンセル", WS_VISIBLE | WS_TABSTOP | BS_PUSHBUTTON, S(kWidth - 100),
                        S(kHeight - 40), S(90), S(28), self, IDCANCEL);
}

void FrmOption::CreateGeneralPage(int x, int y) {
    const HWND self = Handle();
    auto& page = m_pages[0];
    const auto add = [&](const wchar_t* cls, const std::string& text, DWORD style, int cx, int cy, int w, int h,
                         int id = 0) {
        const HWND control = base::CreateControl(cls, text, style, x + S(cx), y + S(cy), S(w), S(h), self, id);
        page.push_back(control);
        return control;
    };
    const auto check = [&](const std::string& text, int cx, int cy, int w) {
        return add(L"BUTTON", text, WS_TABSTOP | BS_AUTOCHECKBOX, cx, cy, w, 20);
    };

    add(L"BUTTON", "ネットワークカード", BS_GROUPBOX, 0, 0, 436, 58);
    m_interface = add(WC_COMBOBOXW, "", WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST, 12, 22, 410, 200, kInterfaceId);

    add(L"BUTTON", "ログ", BS_GROUPBOX, 0, 66, 214, 86);
    m_logflag = check("終了時にログを保存", 12, 88, 190);
    add(L"STATIC", "ログ間隔", SS_LEFT, 12, 121, 70, 18);
    m_interval = add(WC_COMBOBOXW, "", WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWN, 84, 117, 80, 200, kIntervalId);
    add(L"STATIC", "秒", SS_LEFT, 170, 121, 30, 18);

    add(L"BUTTON", "ディスプレイ", BS_GROUPBOX, 222, 66, 214, 86);
    add(L"STATIC", "文字色", SS_LEFT, 236, 92, 80, 18);
    add(L"STATIC", "背景色", SS_LEFT, 236, 122, 80, 18);
    for (int i = 0; i < 2; ++i) {
        m_lblColour[static_cast<std::size_t>(i)] =
            add(L"STATIC", "", SS_NOTIFY | SS_SUNKEN, 320, 88 + 30 * i, 60, 22, kSwatchId + i);
    }

    add(L"BUTTON", "監視と通知", BS_GROUPBOX, 0, 160, 436, 108);
    m_app = check("アプリケーションの監視", 12, 182, 200);
    m_packet = check("通信パケットの監視", 12, 210, 200);
    m_beep = check("外部アクセスの際に音で通知", 12, 238, 200);
    m_window = check("別ウィンドウによる通知", 224, 182, 200);
    m_start = check("監視を開始する", 224, 210, 200);
    m_open = check("起動時に画面を表示する", 224, 238, 200);
}

void FrmOption::CreateListPage(int page, const char* title, int x, int y) {
    const HWND self = Handle();
    auto& controls = m_pages[static_cast<std::size_t>(page)];
    const std::size_t list = static_cast<std::size_t>(page - 1);
    controls.push_back(base::CreateControl(L"BUTTON", title, BS_GROUPBOX, x, y, S(436), S(300), self, 0));
    m_listEnabled[list] = base::CreateControl(L"BUTTON", "このリストを有効にする", WS_TABSTOP | BS_AUTOCHECKBOX,
                                              x + S(12), y + S(22), S(300), S(20), self, kListEnableId + page);
    controls.push_back(m_listEnabled[list]);
    for (int i = 0; i < 20; ++i) {
        const int column = i / 10;
        const int row = i % 10;
        const int cx = x + S(12 + 212 * column);
        const int cy = y + S(52 + 24 * row);
        controls.push_back(base::CreateControl(L"STATIC", std::to_string(i + 1), SS_RIGHT, cx, cy + S(3), S(22),
                                               S(18), self, 0));
        m_listBoxes[list][static_cast<std::size_t>(i)] =
            base::CreateControl(L"EDIT", "", WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL, cx + S(28), cy, S(170), S(21),
                                self, kListBoxId + 20 * static_cast<int>(list) + i);
        controls.push_back(m_listBoxes[list][static_cast<std::size_t>(i)]);
    }
}

void FrmOption::ShowPage(int page) {
    for (int i = 0; i < 3; ++i) {
        for (HWND control : m_pages[static_cast<std::size_t>(i)]) ShowWindow(control, i == page ? SW_SHOW : SW_HIDE);
    }
    SendMessageW(m_tabSet, TCM_SETCURSEL, page, 0);
}

void FrmOption::FillControls() {
    auto interfaces = m_model.InterfaceChoices();
    // A stored interface that is gone is still offered, so OK does not lose it.
    if (!m_model.interfaceText.empty() &&
        std::find(interfaces.begin(), interfaces.end(), m_model.interfaceText) == interfaces.end()) {
        interfaces.push_back(m_model.interfaceText);
    }
    FillCombo(m_interface, interfaces);
    const auto chosen = std::find(interfaces.begin(), interfaces.end(), m_model.interfaceText);
    if (chosen != interfaces.end()) {
        SendMessageW(m_interface, CB_SETCURSEL, static_cast<WPARAM>(chosen - interfaces.begin()), 0);
    }
    FillCombo(m_interval, OptionsModel::IntervalChoices());
    base::SetWindowTextUtf8(m_interval, m_model.interval);

    SetChecked(m_logflag, m_model.logflag);
    SetChecked(m_app, m_model.app);
    SetChecked(m_packet, m_model.packet);
    SetChecked(m_beep, m_model.beep);
    SetChecked(m_window, m_model.window);
    SetChecked(m_start, m_model.start);
    SetChecked(m_open, m_model.open);
    const PcListBoxes* lists[] = {&m_model.allow, &m_model.deny};
    for (std::size_t l = 0; l < 2; ++l) {
        SetChecked(m_listEnabled[l], lists[l]->enabled);
        for (std::size_t i = 0; i < 20; ++i) base::SetWindowTextUtf8(m_listBoxes[l][i], lists[l]->entries[i]);
    }
}

void FrmOption::ReadControls() {
    m_model.interfaceText = base::WindowText(m_interface);
    m_model.interval = base::WindowText(m_interval);
    m_model.logflag = IsChecked(m_logflag);
    m_model.app = IsChecked(m_app);
    m_model.packet = IsChecked(m_packet);
    m_model.beep = IsChecked(m_beep);
    m_model.window = IsChecked(m_window);
    m_model.start = IsChecked(m_start);
    m_model.open = IsChecked(m_open);
    PcListBoxes* lists[] = {&m_model.allow, &m_model.deny};
    for (std::size_t l = 0; l < 2; ++l) {
        lists[l]->enabled = IsChecked(m_listEnabled[l]);
        for (std::size_t i = 0; i < 20; ++i) lists[l]->entries[i] = base::WindowText(m_listBoxes[l][i]);
    }
}

void FrmOption::OnOk() {
    ReadControls();
    m_model.Ok();
    Close();
    if (m_onSaved) m_onSaved();
}

LRESULT FrmOption::SwatchColour(HDC dc, HWND control) {
    for (std::size_t i = 0; i < 2; ++i) {
        if (control != m_lblColour[i]) continue;
        const COLORREF colour = base::ToColorRef(m_model.swatches[i]);
        m_swatchBrushes[i].Reset(CreateSolidBrush(colour));
        SetBkColor(dc, colour);
        return reinterpret_cast<LRESULT>(m_swatchBrushes[i].Get());
    }
    return DefWindowProcW(Handle(), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(control));
}

LRESULT FrmOption::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND: {
        const int id = LOWORD(wParam);
        if (id == IDOK) {
            OnOk();
        } else if (id == IDCANCEL) {
            Close();
        } else if ((id == kSwatchId || id == kSwatchId + 1) && HIWORD(wParam) == STN_CLICKED) {
            m_model.ChooseSwatchColour(static_cast<Swatch>(id - kSwatchId));
            InvalidateRect(m_lblColour[static_cast<std::size_t>(id - kSwatchId)], nullptr, TRUE);
        }
        return 0;
    }
    case WM_NOTIFY: {
        const auto* header = reinterpret_cast<const NMHDR*>(lParam);
        if (header->hwndFrom == m_tabSet && header->code == TCN_SELCHANGE) {
            ShowPage(static_cast<int>(SendMessageW(m_tabSet, TCM_GETCURSEL, 0, 0)));
        }
        return 0;
    }
    case WM_CTLCOLORSTATIC:
        return SwatchColour(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam));
    case WM_CLOSE:
        Close();
        return 0;
    default:
        return base::Window::HandleMessage(message, wParam, lParam);
    }
}

}  // namespace app
