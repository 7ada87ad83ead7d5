#pragma once
// The allowed-applications alert through frmDemo: Text1 := text, then Appview.
#include "controls/demo_form.h"
#include "processes/app_dictionary.h"

namespace processes {

class AppviewAlert final : public IAppAlert {
public:
    explicit AppviewAlert(controls::DemoForm& frmDemo) : m_frmDemo(frmDemo) {}
    void Appview(const std::string& text) override {
        m_frmDemo.SetText1(text);
        m_frmDemo.Appview();
    }

private:
    controls::DemoForm& m_frmDemo;
};

}  // namespace processes
