#pragma once
// frmApp, the editor of the allowed applications: a modal window over an AppEditor.
#include <windows.h>

#include <memory>

#include "base/win32/modal_window.h"
#include "mainwindow/win32/virtual_list_view.h"
#include "processes/app_editor.h"

namespace processes {

class FrmApp : public base::ModalWindow {
public:
    explicit FrmApp(AppEditor& editor) : m_editor(editor) {}

    // Shows the editor over the owner and returns when it is closed.
    void ShowModal(HWND owner);

private:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void CreateControls();

    AppEditor& m_editor;
    std::unique_ptr<mainwindow::VirtualListView> m_list;  // lstvAppEdit
};

}  // namespace processes
