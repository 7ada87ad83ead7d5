#include "controls/alert_model.h"

#include <gtest/gtest.h>

#include <functional>

#include "unit/expect_runtime_error.h"
#include "recording_alert_surface.h"

namespace controls {
namespace {

using testing::RecordingAlertSurface;

constexpr base::Colour kPink = base::Rgb(255, 200, 200);

// One alert loaded on its own board, on the standard screen unless told otherwise.
struct Alert {
    explicit Alert(AlertBoard& board, AlertScreen screen = testing::StandardScreen()) : surface(screen), model(board) {
        model.Load(surface);
    }
    RecordingAlertSurface surface;
    AlertModel model;
};

// Ticks until the condition holds; the number of ticks it took, or -1 after 100000.
int TicksUntil(AlertModel& model, const std::function<bool()>& done) {
    for (int ticks = 1; ticks <= 100000; ++ticks) {
        model.Tick();
        if (done()) return ticks;
    }
    return -1;
}

TEST(AlertSlots, FirstFreeSlotUpToEightAndReleaseToggles) {
    AlertSlots slots;
    for (int expected : {1, 2, 3, 4, 5, 6, 7, 8, 8}) EXPECT_EQ(slots.Take(), expected);
    slots.Release(7);
    EXPECT_EQ(slots.Mask(), 191);
    EXPECT_EQ(slots.Take(), 7);
}

TEST(AlertModel, TimedSlideComesUpHiddenShowsCountsDownAndSlidesAway) {
    AlertBoard board;
    Alert alert(board);
    alert.model.DisplayMessage("hello", 4, false, true, true, kPink);
    EXPECT_EQ(alert.surface.labelBounds, (PixelRect{5, 10, 150, 55}));

    // 1000 twips up at 50 a tick, then one tick to arrive and show.
    EXPECT_EQ(TicksUntil(alert.model, [&] { return !alert.surface.topmost.empty(); }), 21);
    // 400 ticks shown, the last one leaving behind the taskbar, then down past the screen's
    // 15360 twips and unloaded on the tick after.
    EXPECT_EQ(TicksUntil(alert.model, [&] { return alert.surface.unloads == 1; }), 399 + 1 + 30);
    EXPECT_EQ(alert.surface.topmost, (std::vector<bool>{true, false}));
    EXPECT_EQ(alert.model.Placement().top, 15410.0f);
    EXPECT_EQ(board.slots.Mask(), 0);
    EXPECT_TRUE(board.open.empty());
}

TEST(AlertModel, AStackThatWouldRiseAboveTheScreenStopsAtTheTop) {
    AlertBoard board;
    const AlertScreen small{1280, 400, 430, {15, 15}};
    std::vector<std::unique_ptr<Alert>> below;
    for (int i = 0; i < 6; ++i) below.push_back(std::make_unique<Alert>(board, small));
    Alert seventh(board, small);
    seventh.model.DisplayMessage("g", 4, false, true, true, kPink);
    EXPECT_EQ(TicksUntil(seventh.model, [&] { return seventh.model.Arrived(); }), 61);
    EXPECT_EQ(seventh.model.Placement().top, 0.0f);

    Alert eighth(board, small);
    eighth.model.DisplayMessage("h", 4, true, true, true, kPink);
    EXPECT_EQ(eighth.model.Placement().top, 0.0f);
}

TEST(AlertModel, EighthAndLaterAlertsShareTheEighthPlace) {
    AlertBoard board;
    std::vector<std::unique_ptr<Alert>> alerts;
    for (int i = 0; i < 9; ++i) alerts.push_back(std::make_unique<Alert>(board));
    EXPECT_EQ(board.open.size(), 9u);
    for (int i : {7, 8}) {
        AlertModel& alert = alerts[static_cast<std::size_t>(i)]->model;
        EXPECT_EQ(alert.Slot(), 8);
        alert.DisplayMessage("same place", 1, true, true, true, kPink);  // a fade stands at its place at once
        EXPECT_EQ(alert.Placement().top, 6910.0f);
        alert.Unload();
    }
    EXPECT_EQ(board.slots.Mask(), 255);  // two releases of slot 8 set its bit again
}

TEST(AlertModel, FadeShowsAtOnceFadesInFiftyTicksAndOutFiftyOnePlusOne) {
    AlertBoard board;
    Alert alert(board);
    alert.model.DisplayMessage("fade", 4, true, true, true, kPink);
    EXPECT_EQ(alert.surface.topmost, std::vector<bool>{true});
    // Loaded under the work area, then put at its place at once, 100 % transparent.
    EXPECT_EQ(alert.surface.moves,
              (std::vector<FormPlacement>{{16800, 14910, 2400, 1000}, {16800, 13910, 2400, 1000}}));

    // 50 ticks in, 400 shown, 51 out to 102 %, and unloaded on the tick after.
    EXPECT_EQ(TicksUntil(alert.model, [&] { return alert.surface.unloads == 1; }), 50 + 400 + 51 + 1);
    ASSERT_EQ(alert.surface.alphas.size(), 101u);  // 102 % has no alpha: nothing applied
    EXPECT_EQ(alert.surface.alphas[0], 0);
    EXPECT_EQ(alert.surface.alphas[25], 128);  // 50 %: 127.5 rounds to even
    EXPECT_EQ(alert.surface.alphas[50], 255);
    EXPECT_EQ(alert.surface.moves.size(), 2u);  // a fade never moves
}

TEST(AlertModel, NegativeTimeOutIgnoresClicksAndLeavesOnCloseActivate) {
    AlertBoard board;
    Alert alert(board);
    alert.model.DisplayMessage("code only", -1, true, false, false, kPink);
    TicksUntil(alert.model, [&] { return alert.model.StepOrTransparency() == 0; });
    alert.model.Click();
    alert.model.SetCloseActivate(false);
    for (int i = 0; i < 1000; ++i) alert.model.Tick();
    EXPECT_EQ(alert.model.TicksLeft(), 1);
    alert.model.SetCloseActivate(true);
    EXPECT_EQ(TicksUntil(alert.model, [&] { return !alert.model.Loaded(); }), 52);
}

TEST(AlertModel, CloseActivateDuringTheSlideInTurnsItBackUnseen) {
    AlertBoard board;
    Alert alert(board);
    alert.model.DisplayMessage("never seen", 4, false, true, true, kPink);
    for (int i = 0; i < 5; ++i) alert.model.Tick();
    alert.model.SetCloseActivate(true);
    // Straight back down from 14660 twips past the screen's 15360, unloaded on the tick after.
    EXPECT_EQ(TicksUntil(alert.model, [&] { return !alert.model.Loaded(); }), 16);
    EXPECT_TRUE(alert.surface.topmost.empty());
}

TEST(AlertModel, TimeOutTimesHundredMustFitIn32Bits) {
    AlertBoard board;
    Alert alert(board);
    alert.model.DisplayMessage("long", 21474836, false, true, true, kPink);
    EXPECT_EQ(alert.model.TicksLeft(), 2147483600);
    Alert tooLong(board);
    ExpectRuntimeError(base::RuntimeErrorNumber::Overflow,
                       [&] { tooLong.model.DisplayMessage("too long", 21474837, false, true, true, kPink); });
    EXPECT_EQ(tooLong.surface.timerStarts, 0);  // the overflow comes before the timer is started
}

TEST(AlertPicture, SquareFrameIsEightLinesOverAWhiteToColourGradient) {
    AlertBoard board;
    Alert alert(board);
    const base::Colour blue = base::Rgb(160, 195, 255);
    alert.model.DisplayMessage("square", 4, false, true, true, blue);
    const AlertPicture& picture = *alert.surface.picture;
    EXPECT_EQ(picture.width, 160);
    EXPECT_EQ(picture.height, 67);
    EXPECT_EQ(picture.vertices, (std::array<GradientVertex, 4>{{
                                    {0, 0, -256, -256, -256, 0},
                                    {160, 0, -256, -256, -256, 0},
                                    {160, 67, -24576, -15616, -256, 0},
                                    {0, 67, -256, -256, -256, 0},
                                }}));
    ASSERT_EQ(picture.lines.size(), 8u);
    EXPECT_EQ(picture.lines[0], (FrameLine{159, 66, 159, 0, base::kButtonFace}));
    EXPECT_EQ(picture.lines[7], (FrameLine{1, 65, 1, 1, blue}));
    EXPECT_FALSE(alert.surface.region);
    EXPECT_EQ(GradientChannel(127), 32512);  // channels shift into signed 16 bits
    EXPECT_EQ(GradientChannel(128), -32768);
}

}  // namespace
}  // namespace controls
