#pragma once
// The options dialog frmOPTION: a modal window over OptionsModel.
#include <array>
#include <functional>

#include "app/options_model.h"
#include "base/win32/unique_resource.h"
#include "base/win32/modal_window.h"

namespace app {

class FrmOption : public base::ModalWindow {
public:
    // onSaved runs after OK has written the files: the main window applies the colours
    // and the interval text.
    FrmOption(OptionsModel& model, std::function<void()> onSaved);

    // Loads the model, shows the dialog over the owner and returns when it is closed.
    void ShowModal(HWND owner);

private:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void CreateControls();
    void CreateGeneralPage(int x, int y);
    void CreateListPage(int page, const char* title, int x, int y);
    void ShowPage(int page);
    void FillControls();
    void ReadControls();
    void OnOk();
    LRESULT SwatchColour(HDC dc, HWND control);

    OptionsModel& m_model;
    std::function<void()> m_onSaved;
    HWND m_tabSet = nullptr;
    std::array<std::vector<HWND>, 3> m_pages;
    HWND m_interface = nullptr, m_interval = nullptr;
    HWND m_logflag = nullptr, m_app = nullptr, m_packet = nullptr, m_beep = nullptr, m_window = nullptr,
         m_start = nullptr, m_open = nullptr;
    std::array<HWND, 2> m_lblColour{};
    std::array<base::UniqueBrush, 2> m_swatchBrushes;
    std::array<HWND, 2> m_listEnabled{};
    std::array<std::array<HWND, 20>, 2> m_listBoxes{};
};

}  // namespace app
