#pragma once
// frmDemo without a screen: the form through which the program raises its alerts, and a
// bench to try them by hand. The monitoring code puts its text into Text1 and calls
// Command1Click (a four-second square alert); the applications check calls Appview.
#include <functional>
#include <string>

#include "base/colour.h"
#include "base/fixed_array.h"
#include "controls/alert.h"

namespace controls {

class DemoForm {
public:
    static constexpr const char* kCodeCloseCaption = "Code Close Alert";
    static constexpr const char* kClickToCloseCaption = "Click Here to Close";

    explicit DemoForm(IAlertFactory& alerts);

    const std::string& Text1() const { return m_text1; }
    void SetText1(const std::string& text);
    bool Fade() const { return m_fade; }   // chkFade
    void SetFade(bool checked) { m_fade = checked; }
    bool Square() const { return m_square; }  // chkSquare
    void SetSquare(bool checked) { m_square = checked; }
    // optColor(index), 0 to 3; any other index raises the subscript error.
    void OptColorClick(int index);
    base::Colour Colour() const { return m_colour; }
    const std::string& Command3Caption() const { return m_command3Caption; }

    // A four-second square alert with Text1.
    void Command1Click();
    // An alert with Text1 that stays until clicked.
    void Command2Click();
    // Opens the code-closed alert, or closes every open alert when it is open.
    void Command3Click();
    // A four-second square fading alert with Text1 in a fixed teal.
    void Appview();

    // Called after code changed Text1 or Command3's caption, for the window to show it.
    std::function<void()> Changed;

private:
    void NotifyChanged();

    IAlertFactory& m_alerts;
    std::string m_text1;
    bool m_fade = false;
    bool m_square = false;
    base::Colour m_colour = 0;
    std::string m_command3Caption = kCodeCloseCaption;
    bool m_codeClosedOpen = false;
};

}  // namespace controls
