#include "controls/demo_form.h"

namespace controls {
namespace {

const base::FixedArray<base::Colour, 0, 3> kOptionColours = [] {
    base::FixedArray<base::Colour, 0, 3> colours;
    colours[0] = 0xC0FFFF;
    colours[1] = base::Rgb(160, 195, 255);
    colours[2] = base::Rgb(255, 200, 200);
    colours[3] = base::Rgb(200, 255, 200);
    return colours;
}();

}  // namespace

DemoForm::DemoForm(IAlertFactory& alerts) : m_alerts(alerts) {}

void DemoForm::SetText1(const std::string& text) {
    if (text == m_text1) return;
    m_text1 = text;
    NotifyChanged();
}

void DemoForm::OptColorClick(int index) { m_colour = kOptionColours[index]; }

void DemoForm::Command1Click() { m_alerts.NewAlert().DisplayMessage(m_text1, 4, m_fade, true, true, m_colour); }

void DemoForm::Command2Click() { m_alerts.NewAlert().DisplayMessage(m_text1, 0, m_fade, true, m_square, m_colour); }

void DemoForm::Command3Click() {
    if (!m_codeClosedOpen) {
        m_alerts.DefaultAlert().DisplayMessage(
            "Close By Code Only\r\nメッセージを受信しました。\r\n" + m_text1, -1, m_fade, false, m_square, m_colour);
        m_command3Caption = kClickToCloseCaption;
    } else {
        m_command3Caption = kCodeCloseCaption;
        for (IAlert* alert : m_alerts.OpenAlerts()) alert->SetCloseActivate(true);
    }
    m_codeClosedOpen = !m_codeClosedOpen;
    NotifyChanged();
}

void DemoForm::Appview() { m_alerts.NewAlert().DisplayMessage(m_text1, 4, true, true, true, base::Rgb(100, 200, 200)); }

void DemoForm::NotifyChanged() {
    if (Changed) Changed();
}

}  // namespace controls
