#include "controls/demo_form.h"

#include <gtest/gtest.h>

#include "fakes/fake_alert_factory.h"
#include "unit/expect_runtime_error.h"

namespace controls {
namespace {

using fakes::DisplayedMessage;

const std::string kSession = "[マシン名]\r\nPC01\r\n[ユーザ名]\r\nguest";
const std::string kCodeOnlyPrefix = "Close By Code Only\r\nメッセージを受信しました。\r\n";

TEST(DemoForm, Command1AndAppviewShowFourSecondsAndCommand2WaitsForAClick) {
    fakes::FakeAlertFactory alerts;
    DemoForm form(alerts);
    form.SetText1(kSession);
    form.Command1Click();
    form.Appview();  // always a fading teal square, whatever the options say
    form.SetFade(true);
    form.SetSquare(false);
    form.OptColorClick(2);
    form.Command1Click();
    form.Command2Click();  // waits for a click; the frame follows chkSquare
    EXPECT_EQ(alerts.displayed, (std::vector<DisplayedMessage>{
                                    {kSession, 4, false, true, true, 0},  // no colour chosen yet
                                    {kSession, 4, true, true, true, base::Rgb(100, 200, 200)},
                                    {kSession, 4, true, true, true, base::Rgb(255, 200, 200)},
                                    {kSession, 0, true, true, false, base::Rgb(255, 200, 200)},
                                }));
    EXPECT_EQ(alerts.alerts.size(), 4u);  // a new alert each time
    // Four colours, 0 to 3.
    ExpectRuntimeError(base::RuntimeErrorNumber::SubscriptOutOfRange, [&] { form.OptColorClick(4); });
}

TEST(DemoForm, Command3OpensTheCodeClosedAlertThenClosesEveryOpenAlert) {
    fakes::FakeAlertFactory alerts;
    DemoForm form(alerts);
    int changes = 0;
    form.Changed = [&] { ++changes; };
    form.SetText1("body");
    form.SetFade(true);
    form.OptColorClick(3);
    EXPECT_EQ(form.Command3Caption(), "Code Close Alert");

    form.Command3Click();
    EXPECT_EQ(form.Command3Caption(), "Click Here to Close");
    EXPECT_EQ(alerts.displayed, (std::vector<DisplayedMessage>{
                                    {kCodeOnlyPrefix + "body", -1, true, false, false, base::Rgb(200, 255, 200)}}));
    form.Command1Click();

    form.Command3Click();
    EXPECT_EQ(form.Command3Caption(), "Code Close Alert");
    for (const auto& alert : alerts.alerts) EXPECT_EQ(alert->closeActivate, std::vector<bool>{true});

    form.Command3Click();
    EXPECT_EQ(alerts.alerts.size(), 2u);  // the code-closed alert is the default one, reused
    EXPECT_EQ(changes, 4);  // Text1 once, the caption three times
}

}  // namespace
}  // namespace controls
