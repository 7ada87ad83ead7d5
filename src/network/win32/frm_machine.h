#pragma once
// frmMACHINE, "ユーティリティ": a modal window over a MachinePanel. It shows TextIP and the
// buttons' state as the panel says and hands the three text boxes to the send.
#include <windows.h>

#include "base/win32/modal_window.h"
#include "network/machine_panel.h"

namespace network {

class FrmMachine : public base::ModalWindow {
public:
    explicit FrmMachine(MachinePanel& panel) : m_panel(panel) {}

    // Shows the window over the owner and returns when it is closed.
    void ShowModal(HWND owner);

private:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void CreateControls();
    void ShowPanel();

    MachinePanel& m_panel;
    HWND m_textIP = nullptr;
    HWND m_cmdGET = nullptr;
    HWND m_text5 = nullptr;
    HWND m_text7 = nullptr;
    HWND m_text6 = nullptr;
    HWND m_command1 = nullptr;
};

}  // namespace network
