#pragma once
// frmDemo: the form through which the program raises its alerts, hidden in normal use, and
// a bench for trying alerts by hand when shown. It owns the program's alert factory.
//
//   auto frmDemo = std::make_unique<controls::DemoWindow>();  // once, at start-up
//   frmDemo->Form().SetText1(text);
//   frmDemo->Form().Command1Click();                          // a four-second square alert
#include <windows.h>

#include <array>

#include "base/win32/window.h"
#include "controls/demo_form.h"
#include "controls/win32/alert_window.h"

namespace controls {

class DemoWindow : public base::Window {
public:
    DemoWindow();
    ~DemoWindow() override;

    DemoForm& Form() noexcept { return m_form; }

protected:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void CreateControls();
    void ShowForm();
    void OnCommand(int id, int code, HWND control);

    AlertWindowFactory m_alerts;
    DemoForm m_form;
    HWND m_text1 = nullptr;
    HWND m_command3 = nullptr;
    bool m_showing = false;  // set while the window shows what code changed
};

}  // namespace controls
