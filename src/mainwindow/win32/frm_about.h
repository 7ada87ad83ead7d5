#pragma once
// frmAbout, the about box: a modal window over the texts of AboutTexts. A click on the link
// label opens the maker's web site; cmdOK closes the box.
#include <windows.h>

#include <functional>

#include "base/win32/unique_resource.h"
#include "base/win32/modal_window.h"
#include "mainwindow/about_box.h"

namespace mainwindow {

class FrmAbout : public base::ModalWindow {
public:
    FrmAbout(AboutTexts texts, std::function<void()> openWebSite);

    // Shows the box over the owner and returns when it is closed.
    void ShowModal(HWND owner);

private:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void CreateControls();

    AboutTexts m_texts;
    std::function<void()> m_openWebSite;
    HWND m_link = nullptr;
    base::UniqueFont m_linkFont;
};

}  // namespace mainwindow
