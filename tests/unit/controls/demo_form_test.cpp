#include "controls/demo_form.h"

#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "fakes/fake_alert_factory.h"
#include "recording_alert_surface.h"

namespace controls {
namespace {

using fakes::DisplayedMessage;

const std::string kSession = "[マシン名]\r\nPC01\r\n[ユーザ名]\r\nguest";
const std::string kCodeOnlyPrefix = "Close By Code Only\r\nメッセージを受信しました。\r\n";

TEST(DemoForm, Command1IsAFourSecondSquareAlertWithText1) {
    fakes::FakeAlertFactory alerts;
    DemoForm form(alerts);
    form.SetText1(kSession);
    form.Command1Click();
    form.SetFade(true);
    form.SetSquare(false);
    form.OptColorClick(2);
    form.Command1Click();
    EXPECT_EQ(alerts.displayed, (std::vector<DisplayedMessage>{
                                    {kSession, 4, false, true, true, 0},  // no colour chosen yet
                                    {kSession, 4, true, true, true, base::Rgb(255, 200, 200)},
                                }));
    EXPECT_EQ(alerts.alerts.size(), 2u);  // a new alert each time
}

TEST(DemoForm, Command2WaitsForAClickAndTakesTheFrameFromChkSquare) {
    fakes::FakeAlertFactory alerts;
    DemoForm form(alerts);
    form.SetText1("x");
    form.Command2Click();
    form.SetSquare(true);
    form.OptColorClick(0);
    form.Command2Click();
    EXPECT_EQ(alerts.displayed, (std::vector<DisplayedMessage>{
                                    {"x", 0, false, true, false, 0},
                                    {"x", 0, false, true, true, 0xC0FFFF},
                                }));
}

TEST(DemoForm, AppviewIsAFadingTealAlert) {
    fakes::FakeAlertFactory alerts;
    DemoForm form(alerts);
    form.SetText1("[アプリケーション]\r\nfoo.exe\r\n");
    form.Appview();
    EXPECT_EQ(alerts.displayed, (std::vector<DisplayedMessage>{
                                    {"[アプリケーション]\r\nfoo.exe\r\n", 4, true, true, true, base::Rgb(100, 200, 200)}}));
}

TEST(DemoForm, OptColorPicksOneOfFourColours) {
    fakes::FakeAlertFactory alerts;
    DemoForm form(alerts);
    EXPECT_EQ(form.Colour(), 0u);
    const base::Colour expected[] = {base::Rgb(255, 255, 192), base::Rgb(160, 195, 255), base::Rgb(255, 200, 200),
                                     base::Rgb(200, 255, 200)};
    for (int i = 0; i < 4; ++i) {
        form.OptColorClick(i);
        EXPECT_EQ(form.Colour(), expected[i]);
    }
    try {
        form.OptColorClick(4);
        FAIL() << "no subscript error";
    } catch (const base::RuntimeError& error) {
        EXPECT_EQ(error.Number(), base::RuntimeErrorNumber::SubscriptOutOfRange);
    }
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
    ASSERT_NE(alerts.defaultAlert, nullptr);
    EXPECT_EQ(alerts.defaultAlert->displayed, (std::vector<DisplayedMessage>{
                                                  {kCodeOnlyPrefix + "body", -1, true, false, false,
                                                   base::Rgb(200, 255, 200)}}));
    form.Command1Click();

    form.Command3Click();
    EXPECT_EQ(form.Command3Caption(), "Code Close Alert");
    for (const auto& alert : alerts.alerts) EXPECT_EQ(alert->closeActivate, std::vector<bool>{true});

    form.Command3Click();
    EXPECT_EQ(alerts.defaultAlert->displayed.size(), 2u);
    EXPECT_EQ(changes, 4);  // Text1 once, the caption three times
}

TEST(DemoForm, SettingTheSameTextAgainIsNoChange) {
    fakes::FakeAlertFactory alerts;
    DemoForm form(alerts);
    int changes = 0;
    form.Changed = [&] { ++changes; };
    form.SetText1("a");
    form.SetText1("a");
    EXPECT_EQ(changes, 1);
}

// The form over real alert models: what the end-to-end run shows on a screen.
TEST(DemoFormWithAlerts, ThreeAlertsStackInSlotsOneToThreeAndLeaveByThemselves) {
    testing::RecordedAlertFactory alerts;
    DemoForm form(alerts);
    form.SetText1("stack");
    for (int i = 0; i < 3; ++i) form.Command1Click();
    ASSERT_EQ(alerts.made.size(), 3u);
    alerts.TickAll(31);  // slot 3 travels 3000 twips at 100 a tick
    for (int slot = 1; slot <= 3; ++slot) {
        const AlertModel& model = alerts.made[static_cast<std::size_t>(slot - 1)]->model;
        EXPECT_EQ(model.Slot(), slot);
        EXPECT_TRUE(model.Arrived());
        EXPECT_EQ(model.Placement().left, 16800.0f);
        EXPECT_EQ(model.Placement().top, 14910.0f - 1000.0f * static_cast<float>(slot));
    }
    EXPECT_EQ(alerts.Board().slots.Mask(), 7);
    alerts.TickAll(400 + 36);
    EXPECT_TRUE(alerts.Board().open.empty());
    EXPECT_EQ(alerts.Board().slots.Mask(), 0);
}

TEST(DemoFormWithAlerts, ClosingTheCodeClosedAlertUnloadsTheDefaultInstanceAndTheNextIsFresh) {
    testing::RecordedAlertFactory alerts;
    DemoForm form(alerts);
    form.Command3Click();
    form.Command2Click();
    alerts.TickAll(30);
    AlertModel& codeClosed = alerts.made[0]->model;
    EXPECT_TRUE(codeClosed.CodeCloseOnly());
    codeClosed.Click();
    alerts.TickAll(1000);
    EXPECT_TRUE(codeClosed.Loaded());

    form.Command3Click();  // closes both, also the one that waits for a click
    alerts.TickAll(100);
    EXPECT_TRUE(alerts.Board().open.empty());

    form.Command3Click();
    ASSERT_EQ(alerts.made.size(), 3u);
    EXPECT_EQ(alerts.made[2]->model.Slot(), 1);
    EXPECT_EQ(alerts.Board().open.size(), 1u);
}

TEST(DemoFormWithAlerts, ReopeningWhileTheDefaultInstanceStillLeavesTurnsItBack) {
    testing::RecordedAlertFactory alerts;
    DemoForm form(alerts);
    form.Command3Click();
    alerts.TickAll(30);
    form.Command3Click();
    alerts.TickAll(3);  // on its way down, still loaded
    AlertModel& model = alerts.made[0]->model;
    const float leaving = model.Placement().top;
    form.Command3Click();
    EXPECT_EQ(alerts.made.size(), 1u);
    alerts.TickAll(1);
    EXPECT_LT(model.Placement().top, leaving);
    EXPECT_EQ(alerts.Board().slots.Mask(), 1);
}

}  // namespace
}  // namespace controls
